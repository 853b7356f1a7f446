#include "strict/der/any_value.h"

#include "strict/der/bit_string.h"
#include "strict/der/integer.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kClassBits = 0xC0;

// Tag numbers of universal types that are constructed: EXTERNAL, EMBEDDED PDV, SEQUENCE, SET and
// CHARACTER STRING. All others are primitive in DER.
constexpr uint32_t kConstructedTypes = 1u << 8 | 1u << 11 | 1u << 16 | 1u << 17 | 1u << 29;
// Numbers of no type: what ends an indefinite length, and one that is reserved.
constexpr uint32_t kNoTypes = 1u << 0 | 1u << 15;

bool HasItsForm(uint8_t identifier) {
  const uint32_t type = 1u << (identifier & kLongTag);
  const bool constructed = (identifier & kConstructedBit) != 0;
  // Numbers of 31 and more are types that are encoded as one pleases.
  if ((identifier & kLongTag) == kLongTag) return true;
  return (type & kNoTypes) == 0 && constructed == ((type & kConstructedTypes) != 0);
}

bool IsBitsInDer(ByteView content) { return IsBitString(content) && AreUnusedZero(content); }

bool IsBoolean(ByteView content) {
  return content.size == 1 && (content[0] == 0x00 || content[0] == 0xFF);
}

bool IsNull(ByteView content) { return content.empty(); }

// Types whose content is looked at, and what it is refused for.
struct ContentRule {
  uint8_t identifier;
  bool (*is_in_order)(ByteView content);
  ortholan_reason reason;
};

constexpr ContentRule kContents[] = {
    {kBoolean, IsBoolean, ORTHOLAN_REASON_BOOLEAN},
    {kInteger, IsMinimalInteger, ORTHOLAN_REASON_INTEGER},
    {kBitString, IsBitsInDer, ORTHOLAN_REASON_BIT_STRING},
    {kNull, IsNull, ORTHOLAN_REASON_NULL},
    {kOid, IsIdentifier, ORTHOLAN_REASON_OID},
    {kEnumerated, IsMinimalInteger, ORTHOLAN_REASON_INTEGER},
};

bool CheckElement(const Element& element, Leniency leniency, Refusal* refusal) {
  if ((element.identifier & kClassBits) != 0) return true;
  if (IsString(element.identifier)) return CheckString(element, leniency, refusal);
  if (!HasItsForm(element.identifier)) {
    return Refuse(refusal, ORTHOLAN_REASON_FORM, element.bytes.data, element.bytes.size);
  }
  for (const ContentRule& rule : kContents) {
    if (rule.identifier == element.identifier && !rule.is_in_order(element.content)) {
      return Refuse(refusal, rule.reason, element.content.data, element.content.size);
    }
  }
  return true;
}

}  // namespace

bool CheckOtherValue(const Element& value, Leniency leniency, Refusal* refusal) {
  return CheckElement(value, leniency, refusal) &&
         CheckNested(value, leniency, refusal, CheckElement);
}

}  // namespace Ortholan::strict
