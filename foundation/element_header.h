// One ASN.1 header: identifier and length octets (ITU-T X.690 8.1).
#ifndef ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_
#define ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_

#include <ortholan/asn1.h>

#include "bytes/byte_view.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/status_code.h"

namespace Ortholan {

constexpr DWORD kIndefiniteLength = 0xFFFFFFFF;

constexpr const char* kHeaderFault = "CASNTBaseRecord::ReadASNInfo";
constexpr const char* kMeasureFault = "ASNTGetIndefiniteLength";

struct ElementHeader : ASNT_ASN_STRUCT_INFO {
  // Written in the indefinite form, also where `length` was counted.
  bool indefinite;
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
// missing, in the indefinite form, or passes `end`.
Status BoundedContent(const ASNT_ASN_STRUCT_INFO& info, const BYTE* end, ByteView* content);

// Measures content in the indefinite form, end-of-contents octets included; all of `rest` where
// there are none. A terminator is a pair of zero octets.
Fault MeasureIndefinite(ByteView rest, bool constructed, size_t* length);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_
