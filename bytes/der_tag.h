// Identifier octets: class, form and tag number (X.690 8.1.2), and the universal tag numbers (X.680
// 8.4).
#ifndef ORTHOLAN_BYTES_DER_TAG_H_
#define ORTHOLAN_BYTES_DER_TAG_H_

#include <cstddef>
#include <cstdint>

#include "bytes/base128.h"
#include "bytes/byte_view.h"

namespace Ortholan {

constexpr uint8_t kClassMask = 0xC0;
constexpr uint8_t kUniversal = 0x00;
constexpr uint8_t kContextSpecific = 0x80;
constexpr uint8_t kConstructed = 0x20;
constexpr uint8_t kTagMask = 0x1F;
constexpr uint8_t kHighTagNumber = 0x1F;  // the number follows in base 128

enum Tag : uint32_t {
  kTagBoolean = 1,
  kTagInteger = 2,
  kTagBitString = 3,
  kTagOctetString = 4,
  kTagNull = 5,
  kTagOid = 6,
  kTagEnumerated = 10,
  kTagUtf8String = 12,
  kTagSequence = 16,
  kTagSet = 17,
  kTagNumericString = 18,
  kTagPrintableString = 19,
  kTagTeletexString = 20,
  kTagVideotexString = 21,
  kTagIA5String = 22,
  kTagUtcTime = 23,
  kTagGeneralizedTime = 24,
  kTagGraphicString = 25,
  kTagVisibleString = 26,
  kTagGeneralString = 27,
  kTagUniversalString = 28,
  kTagBmpString = 30,
};

constexpr uint8_t kSequenceOctet = kConstructed | kTagSequence;
constexpr uint8_t kSetOctet = kConstructed | kTagSet;

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

#endif  // ORTHOLAN_BYTES_DER_TAG_H_
