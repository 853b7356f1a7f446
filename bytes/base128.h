// Numbers in groups of seven bits, most significant first, the top bit set on all but the last:
// high tag numbers (X.690 8.1.2.4) and the arcs of an OBJECT IDENTIFIER (8.19).
//
//   uint8_t octets[kMostBase128];
//   uint8_t* end = WriteBase128(octets, 311);  // 82 37
#ifndef ORTHOLAN_BYTES_BASE128_H_
#define ORTHOLAN_BYTES_BASE128_H_

#include <cstddef>
#include <cstdint>

#include "bytes/byte_view.h"

namespace Ortholan {

inline constexpr uint8_t kMoreGroups = 0x80;
inline constexpr size_t kMostBase128 = 10;  // octets of the largest number

constexpr size_t Base128Size(uint64_t value) {
  size_t octets = 1;
  while ((value >>= 7) != 0) ++octets;
  return octets;
}

// Writes Base128Size(value) octets and returns their end.
constexpr uint8_t* WriteBase128(uint8_t* out, uint64_t value) {
  for (size_t group = Base128Size(value) - 1; group != 0; --group) {
    *out++ = static_cast<uint8_t>(kMoreGroups | (value >> (7 * group)));
  }
  *out++ = static_cast<uint8_t>(value & 0x7F);
  return out;
}

enum class Base128Result { kDone, kUnfinished, kTooLarge };

// Reads the number at `*position`, which moves past it or to where the failure was seen: no last
// group, or more than `most`, which is below 2^57. Leading groups of zero are taken.
inline Base128Result ReadBase128(ByteView in, uint64_t most, size_t* position, uint64_t* value) {
  uint64_t number = 0;
  size_t at = *position;
  Base128Result result = Base128Result::kUnfinished;
  while (at < in.size) {
    const uint8_t octet = in[at++];
    number = number << 7 | (octet & 0x7Fu);
    if (number > most) {
      result = Base128Result::kTooLarge;
      break;
    }
    if (octet < kMoreGroups) {
      result = Base128Result::kDone;
      break;
    }
  }
  *position = at;
  *value = number;
  return result;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_BASE128_H_
