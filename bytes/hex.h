// Octets as two hexadecimal digits each, and back.
//
//   char digits[2];
//   WriteHexOctet(0x5C, digits);                   // "5C"
//   AppendHexOctets("5c0A", &octets, &fault);      // 5C 0A
#ifndef ORTHOLAN_BYTES_HEX_H_
#define ORTHOLAN_BYTES_HEX_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Ortholan {

inline constexpr char kHexDigits[] = "0123456789ABCDEF";

// Writes two upper-case digits to `out`, which may be of any character type, and returns their end.
template <class Char>
Char* WriteHexOctet(uint8_t octet, Char* out) {
  *out++ = static_cast<Char>(kHexDigits[octet >> 4]);
  *out++ = static_cast<Char>(kHexDigits[octet & 0x0F]);
  return out;
}

// The value of a digit of either case; -1 for any other character.
constexpr int HexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}
constexpr bool IsHexDigit(char c) { return HexDigitValue(c) >= 0; }

// The octet that two digits stand for.
constexpr uint8_t HexOctet(const char* digits) {
  return static_cast<uint8_t>(HexDigitValue(digits[0]) << 4 | HexDigitValue(digits[1]));
}

// Whether `digits` are whole octets; if so they are appended. `*fault` is the first character that
// is wrong, or the end.
inline bool AppendHexOctets(std::string_view digits, std::string* octets, size_t* fault) {
  for (size_t i = 0; i < digits.size(); i += 2) {
    const bool has_low = i + 1 < digits.size() && IsHexDigit(digits[i + 1]);
    *fault = IsHexDigit(digits[i]) ? i + 1 : i;
    if (!has_low || !IsHexDigit(digits[i])) return false;
    *octets += static_cast<char>(HexOctet(&digits[i]));
  }
  return true;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_HEX_H_
