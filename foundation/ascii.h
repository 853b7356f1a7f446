// Letters and case of ASCII alone: names mean the same under every locale.
#ifndef ORTHOLAN_FOUNDATION_ASCII_H_
#define ORTHOLAN_FOUNDATION_ASCII_H_

#include <string_view>

namespace Ortholan {

template <typename Char>
constexpr bool IsAsciiLetter(Char c) {
  return (c >= Char('A') && c <= Char('Z')) || (c >= Char('a') && c <= Char('z'));
}

template <typename Char>
constexpr Char ToAsciiUpper(Char c) {
  return c >= Char('a') && c <= Char('z') ? static_cast<Char>(c - Char('a') + Char('A')) : c;
}

template <typename Char>
constexpr Char ToAsciiLower(Char c) {
  return c >= Char('A') && c <= Char('Z') ? static_cast<Char>(c - Char('A') + Char('a')) : c;
}

template <typename Char>
constexpr bool IsAsciiDigit(Char c) {
  return c >= Char('0') && c <= Char('9');
}

// -1, 0 or 1 by lower-cased bytes, unsigned, as `_stricmp` has it.
inline int CompareIgnoreCase(std::string_view a, std::string_view b) {
  const size_t common = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < common; ++i) {
    const auto x = static_cast<unsigned char>(ToAsciiLower(a[i]));
    const auto y = static_cast<unsigned char>(ToAsciiLower(b[i]));
    if (x != y) return x < y ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_ASCII_H_
