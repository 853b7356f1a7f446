// Octets written as hexadecimal digits of either case.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_HEX_TEXT_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_HEX_TEXT_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace Ortholan::strict {

// -1 for any other character.
constexpr int HexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Whether `digits` are whole octets; if so they are appended. `*fault` is the first character that
// is wrong, or the end.
inline bool AppendHexOctets(std::string_view digits, std::string* octets, size_t* fault) {
  for (size_t i = 0; i < digits.size(); i += 2) {
    const int high = HexDigitValue(digits[i]);
    const int low = i + 1 < digits.size() ? HexDigitValue(digits[i + 1]) : -1;
    *fault = high < 0 ? i : i + 1;
    if (high < 0 || low < 0) return false;
    *octets += static_cast<char>(high << 4 | low);
  }
  return true;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_HEX_TEXT_H_
