// The double quote of name texts: a value between two of them has its own doubled.
#ifndef ORTHOLAN_NAMES_DOUBLED_QUOTES_H_
#define ORTHOLAN_NAMES_DOUBLED_QUOTES_H_

#include <algorithm>
#include <cstddef>

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
