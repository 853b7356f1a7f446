// The RDN that nearly all names consist of, recognised at a glance: one attribute, lengths of one
// octet each, a value that is primitive and has a low tag. Anything else is left to the reader.
#ifndef ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_
#define ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_

#include "strict/der/element.h"

namespace Ortholan::strict {

// Reads the attribute at the front of `in`: the whole SEQUENCE, content octets that may be those of
// an identifier, and the value. False for one that is not plain.
inline bool ReadPlainAttribute(ByteView in, ByteView* attribute, ByteView* type, Element* value) {
  constexpr size_t kHeaders = 6;  // of SEQUENCE, type and value
  const uint8_t* const octets = in.data;
  if (in.size < kHeaders || octets[0] != kSequence || octets[2] != kOid) return false;
  const size_t size = octets[1] + size_t{2};
  const size_t type_size = octets[3];
  if (octets[1] >= 0x80 || size > in.size || type_size + kHeaders > size) return false;
  const uint8_t* const at = octets + 4 + type_size;
  const size_t value_size = size - kHeaders - type_size;
  if (at[1] != value_size || (at[0] & kConstructedBit) != 0 || (at[0] & kLongTag) == kLongTag) {
    return false;
  }
  *attribute = {octets, size};
  *type = {octets + 4, type_size};
  *value = {at[0], {at + 2, value_size}, {at, value_size + 2}};
  return true;
}

// Reads the RDN at the front of `in`, which is the SET of the attribute's octets.
inline bool ReadPlainRdn(ByteView in, ByteView* attribute, ByteView* type, Element* value) {
  return in.size > 2 && in.data[0] == kSet && in.data[1] < 0x80 &&
         ReadPlainAttribute(in.From(2), attribute, type, value) && attribute->size == in.data[1];
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_
