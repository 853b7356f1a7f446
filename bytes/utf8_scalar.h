// One character in UTF-8: how many octets it takes, what its first one tells, and how it is written
// (Unicode 15, 3.9, table 3-7). Whole texts are utf8.h's affair.
//
//   uint32_t scalar;
//   const size_t count = ReadUtf8Scalar(octets, &scalar);   // C3 A9: 2, U+00E9; 0 for no UTF-8
#ifndef ORTHOLAN_BYTES_UTF8_SCALAR_H_
#define ORTHOLAN_BYTES_UTF8_SCALAR_H_

#include "bytes/byte_view.h"

namespace Ortholan {

// Octets of a scalar.
constexpr size_t Utf8Octets(uint32_t scalar) {
  return scalar < 0x80 ? 1 : scalar < 0x800 ? 2 : scalar < 0x10000 ? 3 : 4;
}

// What the first octet of a character beyond ASCII says of those behind it.
struct Utf8Lead {
  size_t size;   // octets of the character; 0 where none begins so
  uint8_t low;   // the range of the second octet, which keeps out overlong forms, surrogates and
  uint8_t high;  // what lies beyond U+10FFFF; all others are from 80 to BF
};
constexpr Utf8Lead ReadUtf8Lead(uint32_t lead) {
  if (lead < 0xC2 || lead > 0xF4) return {0, 0, 0};
  return {lead < 0xE0   ? size_t{2}
          : lead < 0xF0 ? size_t{3}
                        : size_t{4},
          static_cast<uint8_t>(lead == 0xE0   ? 0xA0
                               : lead == 0xF0 ? 0x90
                                              : 0x80),
          static_cast<uint8_t>(lead == 0xED   ? 0x9F
                               : lead == 0xF4 ? 0x8F
                                              : 0xBF)};
}

// The bits of the character that its first octet of `size` holds.
constexpr uint32_t Utf8LeadBits(uint32_t lead, size_t size) { return lead & (0x7Fu >> size); }

// Writes a scalar and returns the end.
inline uint8_t* WriteUtf8Scalar(uint8_t* out, uint32_t scalar) {
  const auto follower = [](uint32_t bits) { return static_cast<uint8_t>(0x80 | (bits & 0x3F)); };
  if (scalar < 0x80) {
    *out++ = static_cast<uint8_t>(scalar);
  } else if (scalar < 0x800) {
    *out++ = static_cast<uint8_t>(0xC0 | scalar >> 6);
    *out++ = follower(scalar);
  } else if (scalar < 0x10000) {
    *out++ = static_cast<uint8_t>(0xE0 | scalar >> 12);
    *out++ = follower(scalar >> 6);
    *out++ = follower(scalar);
  } else {
    *out++ = static_cast<uint8_t>(0xF0 | scalar >> 18);
    *out++ = follower(scalar >> 12);
    *out++ = follower(scalar >> 6);
    *out++ = follower(scalar);
  }
  return out;
}

// Reads the scalar at the front and tells how many octets it takes; 0 for octets that are none.
size_t ReadUtf8Scalar(ByteView in, uint32_t* scalar);

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_UTF8_SCALAR_H_
