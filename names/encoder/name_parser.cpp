#include "names/encoder/name_parser.h"

#include "names/encoder/encoder_options.h"
#include "names/encoder/trim.h"
#include "names/encoder/type_resolver.h"

namespace Ortholan {
namespace {

// The first row whose option is set counts.
struct DelimiterRow {
  DWORD option;
  unsigned classes;
};
constexpr DelimiterRow kDelimiters[] = {
    {kOptionCommaOnly, kIsComma},
    {kOptionSemicolonOnly, kIsSemicolon},
    {kOptionCrLfOnly, kIsCrLf},
};
constexpr unsigned kAllDelimiters = kIsComma | kIsSemicolon | kIsCrLf;

unsigned DelimitersFor(DWORD options) {
  for (const DelimiterRow& row : kDelimiters) {
    if ((options & row.option) != 0) return row.classes;
  }
  return kAllDelimiters;
}

constexpr wchar_t kQuote = L'"';

bool HasDoubledQuote(std::wstring_view text, size_t quote) {
  return quote + 1 < text.size() && text[quote + 1] == kQuote;
}

}  // namespace

NameParser::NameParser(std::wstring_view trimmedText, DWORD options,
                       const AttributeRow* unfinished)
    : next_(trimmedText.data()),
      end_(next_ + trimmedText.size()),
      delimiters_(DelimitersFor(options)) {
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

void NameParser::Parse_ElemValue() {
  current_.value = Trimmed(token_);
  // Of what was cut off, a tab alone is in no alphabet.
  const bool known = token_classes_ == kInBoth || current_.value.size() == token_.size();
  current_.classes = known ? token_classes_ : CommonClasses(current_.value);
}

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
  if (AtEnd() || *next_ == L'\0') return true;
  while (*next_ == L' ') {
    if (++next_; AtEnd()) return true;
  }
  if (IsElementDelimiter(*next_)) {
    do {
      if (++next_; AtEnd()) return true;
    } while (IsElementDelimiter(*next_));
    kind_ = TokenKind::kDelimiter;
    return true;
  }
  if (*next_ == L'=') {
    kind_ = TokenKind::kEquals;
    ++next_;
    return !AtEnd();
  }
  if (current_.row == nullptr) return ReadType();
  kind_ = TokenKind::kValue;
  if (*next_ == kQuote) {
    ReadQuotedValue();
  } else {
    ReadUnquotedValue();
  }
  return true;
}

bool NameParser::ReadType() {
  kind_ = TokenKind::kType;
  const wchar_t* const first = next_;
  while (!AtEnd() && *next_ != L'=') ++next_;
  if (AtEnd()) return false;
  token_ = {first, static_cast<size_t>(next_ - first)};
  return true;
}

// The alphabets are found on the way: this loop is where most of a text is read.
void NameParser::ReadUnquotedValue() {
  const wchar_t* at = next_;
  unsigned common = kInBoth;
  for (; at != end_; ++at) {
    const unsigned classes = ClassesOf(*at);
    if ((classes & delimiters_) != 0) break;
    common &= classes;
  }
  token_ = {next_, static_cast<size_t>(at - next_)};
  token_classes_ = common;
  next_ = at;
}

// A missing closing quote is accepted.
void NameParser::ReadQuotedValue() {
  ++next_;
  const std::wstring_view rest = Rest();
  const size_t quote = rest.find(kQuote);
  if (quote == std::wstring_view::npos) {
    token_ = rest;
    next_ = end_;
  } else if (HasDoubledQuote(rest, quote)) {
    token_ = Unescape(rest, quote);
  } else {
    token_ = rest.substr(0, quote);
    next_ += quote + 1;
  }
  token_classes_ = CommonClasses(token_);
}

// Copies the quoted text at the front of `rest`, whose first doubled quote is at `quote`.
std::wstring_view NameParser::Unescape(std::wstring_view rest, size_t quote) {
  // Views into the copy stay valid, because all texts from here on need no more than this.
  if (unescaped_.empty()) unescaped_.reserve(rest.size());
  const size_t start = unescaped_.size();
  size_t copied = 0;
  while (quote != std::wstring_view::npos && HasDoubledQuote(rest, quote)) {
    unescaped_.append(rest, copied, quote + 1 - copied);
    copied = quote + 2;
    quote = rest.find(kQuote, copied);
  }
  const size_t end = quote != std::wstring_view::npos ? quote : rest.size();
  unescaped_.append(rest, copied, end - copied);
  next_ = quote != std::wstring_view::npos ? next_ + quote + 1 : end_;
  return std::wstring_view(unescaped_).substr(start);
}

}  // namespace Ortholan
