// The RDN that nearly all names consist of, recognised at a glance: one attribute, lengths of one
// octet each, a value that is primitive and has a low tag. Anything else is left to the reader.
#ifndef ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_
#define ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_

#include "strict/der/reader.h"

namespace Ortholan::strict {

struct PlainRdn {
  ByteView content;  // of the SET
  ByteView type;     // content octets that may be those of an identifier
  Element value;
};

// Reads the RDN at the front of `in`; false for one that is not plain. The type is not checked.
inline bool ReadPlainRdn(ByteView in, PlainRdn* rdn) {
  constexpr size_t kHeaders = 6;  // of SEQUENCE, type and value
  const uint8_t* const octets = in.data;
  if (in.size < 2 + kHeaders || octets[0] != kSet || octets[2] != kSequence || octets[4] != kOid) {
    return false;
  }
  const size_t size = octets[1];
  const size_t type_size = octets[5];
  if (size >= 0x80 || size > in.size - 2 || octets[3] + size_t{2} != size ||
      type_size + kHeaders > size) {
    return false;
  }
  const uint8_t* const value = octets + 6 + type_size;
  const size_t value_size = size - kHeaders - type_size;
  if (value[1] != value_size || (value[0] & kConstructedBit) != 0 ||
      (value[0] & kLongTag) == kLongTag) {
    return false;
  }
  rdn->content = {octets + 2, size};
  rdn->type = {octets + 6, type_size};
  rdn->value = {value[0], {value + 2, value_size}, {value, value_size + 2}};
  return true;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_PLAIN_RDN_H_
