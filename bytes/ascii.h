// ASCII: letters and case of it alone, so that names mean the same under every locale, and texts
// that hold nothing else.
#ifndef ORTHOLAN_BYTES_ASCII_H_
#define ORTHOLAN_BYTES_ASCII_H_

#include <cstddef>
#include <cstdint>
#include <string>
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

// Whether every character is below 0x80, which all code pages of ours have in common.
bool IsAscii(std::string_view text);

// Appends text of characters below 0x80.
void AppendAscii(std::string_view text, std::wstring* out);

// Copies the low octets of `count` units and tells whether all of them are ASCII. `text` is indexed
// by unit. No branch in the loop: the compiler takes many units at a time.
template <class Source>
bool NarrowAscii(Source text, size_t count, char* out) {
  uint32_t seen = 0;
  for (size_t i = 0; i < count; ++i) {
    const auto unit = static_cast<uint32_t>(text[i]);
    seen |= unit;
    out[i] = static_cast<char>(unit);
  }
  return seen < 0x80;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_ASCII_H_
