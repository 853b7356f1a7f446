// One element of DER as views, its identifier octets, and how strictly elements are read.
#ifndef ORTHOLAN_STRICT_DER_ELEMENT_H_
#define ORTHOLAN_STRICT_DER_ELEMENT_H_

#include <ortholan/strict/base.h>

#include "bytes/byte_view.h"

namespace Ortholan::strict {

enum class Leniency : int32_t {
  kDer = ORTHOLAN_READ_DER,
  kLenient = ORTHOLAN_READ_LENIENT,
  kStructure = ORTHOLAN_READ_STRUCTURE,
};

// Identifier octets: class, form and tag number together.
enum Identifier : uint8_t {
  kBoolean = 0x01,
  kInteger = 0x02,
  kBitString = 0x03,
  kOctetString = 0x04,
  kNull = 0x05,
  kOid = 0x06,
  kEnumerated = 0x0A,
  kUtf8String = 0x0C,
  kNumericString = 0x12,
  kPrintableString = 0x13,
  kTeletexString = 0x14,
  kIA5String = 0x16,
  kUtcTime = 0x17,
  kGeneralizedTime = 0x18,
  kVisibleString = 0x1A,
  kGeneralString = 0x1B,
  kUniversalString = 0x1C,
  kBmpString = 0x1E,
  kSequence = 0x30,
  kSet = 0x31,
};

constexpr uint8_t kConstructedBit = 0x20;
constexpr uint8_t kLongTag = 0x1F;

// Context-specific identifiers, [n] primitive and constructed; n is at most 30.
constexpr uint8_t Context(uint8_t number) { return static_cast<uint8_t>(0x80 | number); }
constexpr uint8_t ContextConstructed(uint8_t number) { return static_cast<uint8_t>(0xA0 | number); }

struct Element {
  uint8_t identifier = 0;  // first identifier octet; low bits 1F where the tag has the long form
  ByteView content;
  ByteView bytes;  // header and content

  bool constructed() const { return (identifier & kConstructedBit) != 0; }
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_ELEMENT_H_
