// How a quoted value has its own double quotes doubled, and how they are halved again.
//
//   say "a"  ->  "say ""a"""
#ifndef ORTHOLAN_NAMES_DOUBLED_QUOTES_H_
#define ORTHOLAN_NAMES_DOUBLED_QUOTES_H_

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Ortholan {

inline constexpr char kQuote = '"';

// Characters that a value takes in quotes.
template <class Char>
size_t QuotedSize(const Char* value, size_t size) {
  return size + static_cast<size_t>(std::count(value, value + size, Char{kQuote})) + 2;
}

// Quotes the `size` characters at `value`, which has room for `quotedSize`.
template <class Char>
void QuoteInPlace(Char* value, size_t size, size_t quotedSize) {
  // From the back, so that nothing is overwritten before it is read.
  Char* from = value + size;
  Char* to = value + quotedSize;
  *--to = Char{kQuote};
  while (from != value) {
    const Char c = *--from;
    *--to = c;
    if (c == Char{kQuote}) *--to = c;
  }
  *value = Char{kQuote};
}

// Whether another quote stands behind the one at `at`.
template <class Char>
bool IsDoubledQuote(std::basic_string_view<Char> text, size_t at) {
  return at + 1 < text.size() && text[at + 1] == Char{kQuote};
}

// Writes `text` with doubled quotes once and without single ones; returns the end.
template <class Char>
Char* WriteUnquoted(std::basic_string_view<Char> text, Char* out) {
  while (!text.empty()) {
    const size_t quote = std::min(text.find(Char{kQuote}), text.size());
    const size_t more = IsDoubledQuote(text, quote) ? 1 : 0;
    out = std::copy_n(text.data(), quote + more, out);
    text.remove_prefix(std::min(quote + more + 1, text.size()));
  }
  return out;
}

// Quotes what a string holds from `start` to its end.
template <class String>
void QuoteFrom(size_t start, String* text) {
  const size_t size = text->size() - start;
  const size_t quoted = QuotedSize(text->data() + start, size);
  text->resize(start + quoted);
  QuoteInPlace(text->data() + start, size, quoted);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DOUBLED_QUOTES_H_
