// Length octets, and headers whose identifier is one octet. Written in the shortest definite form
// (X.690 10.1), read in any (8.1.3).
//
//   out = WriteHeader(out, kSequenceOctet, content.size);
//   out = WriteBytes(out, content);
#ifndef ORTHOLAN_BYTES_DER_LENGTH_H_
#define ORTHOLAN_BYTES_DER_LENGTH_H_

#include <cstddef>
#include <cstdint>

#include "bytes/byte_view.h"

namespace Ortholan {

constexpr uint8_t kLongForm = 0x80;  // with a count of octets; without one the indefinite form

// Octets of the length field.
constexpr size_t LengthSize(uint64_t length) {
  if (length < kLongForm) return 1;
  size_t octets = 2;
  while ((length >>= 8) != 0) ++octets;
  return octets;
}

// Octets of an element with a one-octet identifier.
constexpr uint64_t ElementSize(uint64_t content) { return 1 + LengthSize(content) + content; }

// These return the end of what they wrote.
inline uint8_t* WriteLength(uint8_t* out, uint64_t length) {
  if (length < kLongForm) {
    *out++ = static_cast<uint8_t>(length);
    return out;
  }
  const size_t octets = LengthSize(length) - 1;
  *out++ = static_cast<uint8_t>(kLongForm | octets);
  for (size_t i = octets; i-- != 0;) *out++ = static_cast<uint8_t>(length >> (8 * i));
  return out;
}

inline uint8_t* WriteHeader(uint8_t* out, uint8_t identifier, uint64_t length) {
  *out++ = identifier;
  return WriteLength(out, length);
}

struct Length {
  uint64_t octets = 0;  // 0 where it is indefinite
  bool indefinite = false;
};

// The rule for all but the short form: `first` is the octet before `*position`.
// Whole in the header: the readers of single elements keep all of it in registers then.
inline bool ReadLongLength(ByteView in, uint8_t first, size_t* position, Length* length) {
  constexpr size_t kMostOctets = 8;
  const size_t octets = first - size_t{kLongForm};
  *length = {0, octets == 0};
  if (octets > kMostOctets || octets > in.size - *position) return false;
  for (size_t i = 0; i < octets; ++i) length->octets = length->octets << 8 | in[(*position)++];
  return true;
}

// Reads the length at `*position`, which moves past it. False where it is not all there or has more
// than eight octets. Content need not be there.
inline bool ReadLength(ByteView in, size_t* position, Length* length) {
  if (*position >= in.size) return false;
  const uint8_t first = in[(*position)++];
  *length = {first, false};
  return first < kLongForm || ReadLongLength(in, first, position, length);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_DER_LENGTH_H_
