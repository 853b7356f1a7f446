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

constexpr char kQuote = '"';

template <typename Char>
bool HasDoubledQuote(std::basic_string_view<Char> text, size_t quote) {
  return quote + 1 < text.size() && text[quote + 1] == Char(kQuote);
}

}  // namespace

template <typename Char>
NameParser<Char>::NameParser(View trimmedText, DWORD options, const AttributeRow* unfinished)
    : next_(trimmedText.data()),
      end_(next_ + trimmedText.size()),
      delimiters_(DelimitersFor(options)),
      row_(unfinished) {}

template <typename Char>
bool NameParser<Char>::Parse_NameElems() {
  if (!GetToken(TokenKind::kType) || !Parse_ElemType() || !Parse_ElemComponents()) return false;
  for (;;) {
    AppendElem();
    if (!GetToken()) return false;
    if (kind_ == TokenKind::kEnd) return true;
    if (kind_ != TokenKind::kDelimiter) return false;
    if (!GetToken(TokenKind::kType) || !Parse_ElemType() || !Parse_ElemComponents()) return false;
  }
}

// Member by member: what was just stored singly is slow to read back as a whole.
template <typename Char>
void NameParser<Char>::AppendElem() {
  NameElem<Char>* const elem = elements_.Extend(1);
  elem->row = row_;
  elem->value = View(value_.data(), value_.size());
  elem->classes = value_classes_;
  row_ = nullptr;
  value_ = {};
  value_classes_ = kInBoth;
}

template <typename Char>
bool NameParser<Char>::Parse_ElemType() {
  return ResolveType(Trimmed(token_), &row_);
}

template <typename Char>
void NameParser<Char>::Parse_ElemValue() {
  value_ = Trimmed(token_);
  // Of what was cut off, a tab alone is in no alphabet.
  const bool known = token_classes_ == kInBoth || value_.size() == token_.size();
  value_classes_ = known ? token_classes_ : CommonClasses(value_);
}

template <typename Char>
bool NameParser<Char>::Parse_ElemComponents() {
  if (!GetToken()) return true;
  if (kind_ != TokenKind::kEquals) return false;
  // Where the type was not resolved this reads another type, which is no value either.
  if (!GetToken()) return true;
  if (kind_ != TokenKind::kValue) return false;
  Parse_ElemValue();
  return true;
}

template <typename Char>
bool NameParser<Char>::GetToken() {
  token_ = {};
  kind_ = TokenKind::kEnd;
  if (AtEnd() || *next_ == Char(0)) return true;
  while (*next_ == Char(' ')) {
    if (++next_; AtEnd()) return true;
  }
  if (IsElementDelimiter(*next_)) {
    do {
      if (++next_; AtEnd()) return true;
    } while (IsElementDelimiter(*next_));
    kind_ = TokenKind::kDelimiter;
    return true;
  }
  if (*next_ == Char('=')) {
    kind_ = TokenKind::kEquals;
    ++next_;
    return !AtEnd();
  }
  if (row_ == nullptr) return ReadType();
  kind_ = TokenKind::kValue;
  if (*next_ == Char(kQuote)) {
    ReadQuotedValue();
  } else {
    ReadUnquotedValue();
  }
  return true;
}

template <typename Char>
bool NameParser<Char>::ReadType() {
  kind_ = TokenKind::kType;
  const Char* const first = next_;
  while (!AtEnd() && *next_ != Char('=')) ++next_;
  if (AtEnd()) return false;
  token_ = {first, static_cast<size_t>(next_ - first)};
  return true;
}

// The alphabets are found on the way: this loop is where most of a text is read.
template <typename Char>
void NameParser<Char>::ReadUnquotedValue() {
  const Char* at = next_;
  unsigned common = kInBoth;
  for (; end_ - at >= 4; at += 4) {
    const unsigned a = ClassesOf(at[0]);
    const unsigned b = ClassesOf(at[1]);
    const unsigned c = ClassesOf(at[2]);
    const unsigned d = ClassesOf(at[3]);
    if (((a | b | c | d) & delimiters_) != 0) break;
    common &= a & b & c & d;
  }
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
template <typename Char>
void NameParser<Char>::ReadQuotedValue() {
  ++next_;
  const View rest = Rest();
  const size_t quote = rest.find(Char(kQuote));
  if (quote == View::npos) {
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
template <typename Char>
auto NameParser<Char>::Unescape(View rest, size_t quote) -> View {
  // Views into the copy stay valid, because all texts from here on need no more than this.
  if (unescaped_.empty()) unescaped_.reserve(rest.size());
  const size_t start = unescaped_.size();
  size_t copied = 0;
  while (quote != View::npos && HasDoubledQuote(rest, quote)) {
    unescaped_.append(rest, copied, quote + 1 - copied);
    copied = quote + 2;
    quote = rest.find(Char(kQuote), copied);
  }
  const size_t end = quote != View::npos ? quote : rest.size();
  unescaped_.append(rest, copied, end - copied);
  next_ = quote != View::npos ? next_ + quote + 1 : end_;
  return View(unescaped_).substr(start);
}

template class NameParser<char>;
template class NameParser<wchar_t>;

}  // namespace Ortholan
