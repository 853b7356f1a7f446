#include "names/encoder/name_parser.h"

#include <algorithm>
#include <functional>

#include "names/doubled_quotes.h"
#include "names/encoder/trim.h"

namespace Ortholan {

template <typename Char>
NameParser<Char>::NameParser(View trimmedText, DWORD options, const AttributeRow* unfinished)
    : begin_(trimmedText.data()),
      next_(begin_),
      end_(next_ + trimmedText.size()),
      chars_(ValueCharsFor(options)),
      row_(unfinished) {}

template <typename Char>
bool NameParser<Char>::Parse_NameElems() {
  for (;;) {
    if (!Parse_NameElem()) return false;
    AppendElem();
    const bool read = GetToken();
    if (read && kind_ == TokenKind::kEnd) return true;
    if (!read || kind_ != TokenKind::kDelimiter) {
      return RefuseToken(NameTextFault::kUnexpectedText);
    }
  }
}

template <typename Char>
bool NameParser<Char>::Parse_NameElem() {
  if (!GetToken(TokenKind::kType)) return RefuseForType();
  return Parse_ElemType() && Parse_ElemComponents();
}

template <typename Char>
void NameParser<Char>::AppendElem() {
  elements_.Add()->Set(row_, value_, value_classes_);
  row_ = nullptr;
  value_ = {};
  value_classes_ = kInBoth;
}

template <typename Char>
bool NameParser<Char>::Parse_ElemType() {
  type_ = Trimmed(token_);
  return types_.Resolve(type_, &row_) || Refuse(NameTextFault::kUnknownType, type_);
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
  // The type was read up to its "=".
  if (++next_; AtEnd()) return true;
  // Where the type was not resolved this reads another type, which is no value either.
  if (!GetToken()) return true;
  if (kind_ != TokenKind::kValue) return RefuseForValue();
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
  if (*next_ == Char('=')) {
    kind_ = TokenKind::kEquals;
    ++next_;
    return !AtEnd();
  }
  if (IsElementDelimiter(*next_)) {
    do {
      if (++next_; AtEnd()) return true;
    } while (IsElementDelimiter(*next_));
    kind_ = TokenKind::kDelimiter;
    return true;
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
  const Char* end = next_;
  while (end != end_ && *end != Char('=')) ++end;
  token_ = {next_, static_cast<size_t>(end - next_)};
  next_ = end;
  return !AtEnd();
}

// The alphabets are found on the way: this loop is where most of a text is read.
template <typename Char>
void NameParser<Char>::ReadUnquotedValue() {
  const ValueChars& chars = chars_;
  ValueChars::Entry seen = ValueChars::kAll;
  const Char* const end = std::find_if(next_, end_, [&seen, &chars](Char c) {
    seen = static_cast<ValueChars::Entry>(seen & chars.Of(c));
    return seen >= 0;
  });
  token_ = {next_, static_cast<size_t>(end - next_)};
  token_classes_ = static_cast<unsigned>(seen) & kInBoth;
  next_ = end;
}

// A missing closing quote is accepted.
template <typename Char>
void NameParser<Char>::ReadQuotedValue() {
  ++next_;
  const View rest = Rest();
  size_t doubled = 0;
  size_t quote = rest.find(Char(kQuote));
  while (quote != View::npos && IsDoubledQuote(rest, quote)) {
    ++doubled;
    quote = rest.find(Char(kQuote), quote + 2);
  }
  next_ = quote != View::npos ? next_ + quote + 1 : end_;
  token_ = rest.substr(0, quote);
  if (doubled != 0) token_ = Unescape(token_, doubled);
  token_classes_ = CommonClasses(token_);
}

// A copy in which each of the `doubled` doubled quotes is written once.
template <typename Char>
auto NameParser<Char>::Unescape(View quoted, size_t doubled) -> View {
  const size_t size = quoted.size() - doubled;
  Char* const copy = unescaped_.Take<Char>(size);
  WriteUnquoted(quoted, copy);
  copies_.push_back({View(copy, size), quoted});
  return {copy, size};
}

template <typename Char>
const Char* NameParser<Char>::Origin(const Char* at) const {
  const std::less_equal<const Char*> not_behind;
  for (const Copy& made : copies_) {
    if (!not_behind(made.copy.data(), at) || !not_behind(at, made.copy.data() + made.copy.size())) {
      continue;
    }
    const View before = made.copy.substr(0, static_cast<size_t>(at - made.copy.data()));
    const auto quotes = std::count(before.begin(), before.end(), Char(kQuote));
    return made.source.data() + before.size() + quotes;
  }
  return at;
}

template <typename Char>
bool NameParser<Char>::Refuse(NameTextFault fault, View stop) {
  fault_ = fault;
  stop_ = stop;
  return false;
}

template <typename Char>
auto NameParser<Char>::Token() const -> View {
  switch (kind_) {
    case TokenKind::kType:
      return Trimmed(token_);
    case TokenKind::kEquals:
      return {next_ - 1, 1};
    case TokenKind::kDelimiter: {
      const Char* first = next_ - 1;
      while (first != begin_ && IsElementDelimiter(first[-1])) --first;
      return {first, static_cast<size_t>(next_ - first)};
    }
    default:
      return {next_, 0};
  }
}

template <typename Char>
bool NameParser<Char>::RefuseForType() {
  if (kind_ == TokenKind::kType) return RefuseToken(NameTextFault::kMissingEquals);
  const bool is_empty = elements_.size() == 0 && kind_ == TokenKind::kEnd;
  return RefuseToken(is_empty ? NameTextFault::kNoText : NameTextFault::kMissingType);
}

template <typename Char>
bool NameParser<Char>::RefuseForValue() {
  if (row_ == nullptr) return Refuse(NameTextFault::kUnknownType, type_);
  const bool is_equals = kind_ == TokenKind::kEquals;
  return RefuseToken(is_equals ? NameTextFault::kUnexpectedEquals : NameTextFault::kMissingValue);
}

template class NameParser<char>;
template class NameParser<wchar_t>;

}  // namespace Ortholan
