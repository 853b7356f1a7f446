// Identifier octets read and written, those of high tag numbers too (X.690 8.1.2).
#ifndef ORTHOLAN_BYTES_DER_IDENTIFIER_H_
#define ORTHOLAN_BYTES_DER_IDENTIFIER_H_

#include <cstddef>
#include <cstdint>

#include "bytes/base128.h"
#include "bytes/byte_view.h"
#include "bytes/der_tag.h"

namespace Ortholan {

// Octets of the identifier at the front of `in`, however many groups it was written with; 0 where
// it is not all there.
inline size_t IdentifierOctets(ByteView in) {
  if (in.empty()) return 0;
  if ((in[0] & kTagMask) != kHighTagNumber) return 1;
  size_t octets = 1;
  while (octets < in.size && (in[octets] & kMoreGroups) != 0) ++octets;
  return octets < in.size ? octets + 1 : 0;
}

// Octets that WriteIdentifier writes.
constexpr size_t IdentifierSize(uint32_t tag) {
  return tag < kHighTagNumber ? 1 : 1 + Base128Size(tag);
}

inline uint8_t* WriteIdentifier(uint8_t* out, uint8_t class_and_form, uint32_t tag) {
  if (tag < kHighTagNumber) {
    *out++ = static_cast<uint8_t>(class_and_form | tag);
    return out;
  }
  *out++ = class_and_form | kHighTagNumber;
  return WriteBase128(out, tag);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_DER_IDENTIFIER_H_
