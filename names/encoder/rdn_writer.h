// The writer of names: whatever a name is made from, its DER (RFC 5280 4.1.2.4) is put by these.
//
//   SEQUENCE {                     the RDNs in the order given
//     SET {                        the RDN's attributes in the order given, never re-sorted
//       SEQUENCE { OBJECT IDENTIFIER, value } ... } ... }
//
// Sizes come first, from the inside to the outside, then everything is written once, from the
// front:
//
//   BYTE* out = nullptr;
//   if (!AllocateName(RdnSize(AttributeSize(content)), &name, &out)) return false;
//   out = WriteAttributeHeader(WriteRdnHeader(out, AttributeSize(content)), content);
#ifndef ORTHOLAN_NAMES_ENCODER_RDN_WRITER_H_
#define ORTHOLAN_NAMES_ENCODER_RDN_WRITER_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <cstdint>
#include <cstring>

#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "names/attribute_table.h"

namespace Ortholan {

// Octets of an attribute whose identifier and value take `content`, and of an RDN whose attributes
// take `attributes`.
constexpr uint64_t AttributeSize(uint64_t content) { return ElementSize(content); }
constexpr uint64_t RdnSize(uint64_t attributes) { return ElementSize(attributes); }

// Room for a name whose RDNs take `rdns` octets in all, its header written; `*out` is where they
// go. False with last error 8 where memory runs out or the name passes 4 GiB.
bool AllocateName(uint64_t rdns, IdentObj* name, BYTE** out);

// These return the end of what they wrote.
inline BYTE* WriteRdnHeader(BYTE* out, uint64_t attributes) {
  return WriteHeader(out, kSetOctet, attributes);
}
inline BYTE* WriteAttributeHeader(BYTE* out, uint64_t content) {
  return WriteHeader(out, kSequenceOctet, content);
}

// Both headers for an RDN of one attribute, as nearly all are.
inline BYTE* WriteSingleHeaders(BYTE* out, uint64_t content) {
  if (content >= kLongForm - 2) {
    return WriteAttributeHeader(WriteRdnHeader(out, AttributeSize(content)), content);
  }
  *out++ = kSetOctet;
  *out++ = static_cast<BYTE>(content + 2);
  *out++ = kSequenceOctet;
  *out++ = static_cast<BYTE>(content);
  return out;
}

// The identifier of the row: a copy of fixed size where there is room for it before `end`; what is
// too much is written over.
inline BYTE* WriteType(BYTE* out, const OidDer& der, const BYTE* end) {
  if (static_cast<size_t>(end - out) >= sizeof(der.bytes)) {
    std::memcpy(out, der.bytes, sizeof(der.bytes));
  } else {
    std::memcpy(out, der.bytes, der.size);
  }
  return out + der.size;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_RDN_WRITER_H_
