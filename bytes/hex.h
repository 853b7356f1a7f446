// Octets as two hexadecimal digits each.
#ifndef ORTHOLAN_BYTES_HEX_H_
#define ORTHOLAN_BYTES_HEX_H_

#include <cstdint>

namespace Ortholan {

inline constexpr char kHexDigits[] = "0123456789ABCDEF";

// Writes two upper-case digits to `out`, which may be of any character type, and returns their end.
template <class Char>
Char* WriteHexOctet(uint8_t octet, Char* out) {
  *out++ = static_cast<Char>(kHexDigits[octet >> 4]);
  *out++ = static_cast<Char>(kHexDigits[octet & 0x0F]);
  return out;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_HEX_H_
