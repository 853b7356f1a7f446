// One ASN.1 header: identifier and length octets (ITU-T X.690 8.1).
#ifndef ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_
#define ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_

#include "bytes/byte_view.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/status_code.h"

namespace Ortholan {

constexpr uint32_t kIndefiniteLength = 0xFFFFFFFF;

constexpr const char* kHeaderFault = "CASNTBaseRecord::ReadASNInfo";
constexpr const char* kMeasureFault = "ASNTGetIndefiniteLength";

// Field by field what ASNT_ASN_STRUCT_INFO has, and the form of the length.
struct ElementHeader {
  uint8_t cls;
  uint8_t constructed;  // kConstructed or 0
  uint32_t tag;
  uint32_t length;         // of the content; kIndefiniteLength: constructed, indefinite form
  const uint8_t* content;  // its first octet
  bool indefinite;         // written in the indefinite form, also where `length` was counted
};

// The whole rule, every form.
Status ReadAnyHeader(ByteView in, ElementHeader* header);

// Reads the header at the front of `in`. The content may reach past the end of `in`. Fails with
// kBadTag or kCorrupt; `content` is then null.
inline Status ReadHeader(ByteView in, ElementHeader* header) {
  const bool short_form = in.size >= 2 && (in[0] & kTagMask) != kHighTagNumber && in[1] < kLongForm;
  if (!short_form) return ReadAnyHeader(in, header);
  header->cls = in[0] & kClassMask;
  header->constructed = in[0] & kConstructed;
  header->tag = in[0] & kTagMask;
  header->length = in[1];
  header->content = in.data + 2;
  header->indefinite = false;
  return Status::kOk;
}

// The content octets, where they are known to lie before `end`: kCorrupt for content that is
// missing, in the indefinite form, or passes `end`. `header` may be the public
// ASNT_ASN_STRUCT_INFO.
Status BoundedContent(const uint8_t* content, uint32_t length, const uint8_t* end, ByteView* out);
template <class Header>
Status BoundedContent(const Header& header, const uint8_t* end, ByteView* out) {
  return BoundedContent(header.content, static_cast<uint32_t>(header.length), end, out);
}

// Measures content in the indefinite form, end-of-contents octets included; all of `rest` where
// there are none. A terminator is a pair of zero octets.
Fault MeasureIndefinite(ByteView rest, bool constructed, size_t* length);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_
