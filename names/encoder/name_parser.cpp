#include "names/encoder/name_parser.h"

#include "names/encoder/encoder_options.h"
#include "names/encoder/trim.h"
#include "names/encoder/type_resolver.h"

namespace Ortholan {
namespace {

constexpr uint64_t SetOf(std::string_view characters) {
  uint64_t set = 0;
  for (const char c : characters) set |= uint64_t{1} << c;
  return set;
}

// The first row whose option is set counts.
struct DelimiterRow {
  DWORD option;
  uint64_t characters;
};
constexpr DelimiterRow kDelimiters[] = {
    {kOptionCommaOnly, SetOf(",")},
    {kOptionSemicolonOnly, SetOf(";")},
    {kOptionCrLfOnly, SetOf("\r\n")},
};
constexpr uint64_t kAllDelimiters = SetOf("\n\r,;");

uint64_t DelimitersFor(DWORD options) {
  for (const DelimiterRow& row : kDelimiters) {
    if ((options & row.option) != 0) return row.characters;
  }
  return kAllDelimiters;
}

constexpr wchar_t kQuote = L'"';

}  // namespace

NameParser::NameParser(std::wstring_view trimmedText, DWORD options,
                       const AttributeRow* unfinished)
    : source_(trimmedText), delimiters_(DelimitersFor(options)) {
  current_.row = unfinished;
}

bool NameParser::Parse_NameElems() {
  if (!GetToken(TokenKind::kType) || !Parse_ElemType() || !Parse_ElemComponents()) return false;
  for (;;) {
    elements_.push_back(current_);
    current_ = {};
    if (!GetToken()) return false;
    if (kind_ == TokenKind::kEnd) return true;
    if (kind_ != TokenKind::kDelimiter) return false;
    if (!GetToken(TokenKind::kType) || !Parse_ElemType() || !Parse_ElemComponents()) return false;
  }
}

bool NameParser::Parse_ElemType() { return ResolveType(Trimmed(token_), &current_.row); }

void NameParser::Parse_ElemValue() { current_.value = Trimmed(token_); }

bool NameParser::Parse_ElemComponents() {
  if (!GetToken()) return true;
  if (kind_ != TokenKind::kEquals) return false;
  // Where the type was not resolved this reads another type, which is no value either.
  if (!GetToken()) return true;
  if (kind_ != TokenKind::kValue) return false;
  Parse_ElemValue();
  return true;
}

bool NameParser::GetToken() {
  token_ = {};
  kind_ = TokenKind::kEnd;
  if (AtEnd() || source_[position_] == L'\0') return true;
  while (source_[position_] == L' ') {
    if (++position_; AtEnd()) return true;
  }
  if (IsElementDelimiter(source_[position_])) {
    do {
      if (++position_; AtEnd()) return true;
    } while (IsElementDelimiter(source_[position_]));
    kind_ = TokenKind::kDelimiter;
    return true;
  }
  if (source_[position_] == L'=') {
    kind_ = TokenKind::kEquals;
    ++position_;
    return !AtEnd();
  }
  if (current_.row == nullptr) return ReadType();
  kind_ = TokenKind::kValue;
  if (source_[position_] == kQuote) {
    ReadQuotedValue();
  } else {
    ReadUnquotedValue();
  }
  return true;
}

bool NameParser::ReadType() {
  kind_ = TokenKind::kType;
  const size_t equals = source_.find(L'=', position_);
  if (equals == std::wstring_view::npos) {
    position_ = source_.size();
    return false;
  }
  token_ = source_.substr(position_, equals - position_);
  position_ = equals;
  return true;
}

void NameParser::ReadUnquotedValue() {
  const size_t start = position_;
  while (!AtEnd() && !IsElementDelimiter(source_[position_])) ++position_;
  token_ = source_.substr(start, position_ - start);
}

// A missing closing quote is accepted.
void NameParser::ReadQuotedValue() {
  const size_t start = position_ + 1;
  const size_t quote = source_.find(kQuote, start);
  if (quote == std::wstring_view::npos) {
    token_ = source_.substr(start);
    position_ = source_.size();
  } else if (quote + 1 < source_.size() && source_[quote + 1] == kQuote) {
    token_ = UnescapeFrom(start, quote);
  } else {
    token_ = source_.substr(start, quote - start);
    position_ = quote + 1;
  }
}

// Copies the quoted text from `start`, whose first doubled quote is at `quote`.
std::wstring_view NameParser::UnescapeFrom(size_t start, size_t quote) {
  // Views into the copy stay valid, because it can never need more than this.
  if (unescaped_.capacity() < source_.size()) unescaped_.reserve(source_.size());
  const size_t copy_start = unescaped_.size();
  while (quote + 1 < source_.size() && source_[quote + 1] == kQuote) {
    unescaped_.append(source_, start, quote + 1 - start);
    start = quote + 2;
    quote = source_.find(kQuote, start);
    if (quote == std::wstring_view::npos) break;
  }
  const size_t end = quote == std::wstring_view::npos ? source_.size() : quote;
  unescaped_.append(source_, start, end - start);
  position_ = end < source_.size() ? end + 1 : end;
  return std::wstring_view(unescaped_).substr(copy_start);
}

}  // namespace Ortholan
