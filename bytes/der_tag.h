// What identifier octets consist of: class, form and tag number (X.690 8.1.2), and the universal
// tag numbers (X.680 8.4).
#ifndef ORTHOLAN_BYTES_DER_TAG_H_
#define ORTHOLAN_BYTES_DER_TAG_H_

#include <cstdint>

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

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_DER_TAG_H_
