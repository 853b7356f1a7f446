// One ASN.1 header: identifier and length octets (ITU-T X.690 8.1).
#ifndef ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_
#define ORTHOLAN_FOUNDATION_ELEMENT_HEADER_H_

#include <ortholan/asn1.h>

#include "foundation/byte_view.h"
#include "foundation/status_code.h"

namespace Ortholan {

constexpr BYTE kClassMask = 0xC0;
constexpr BYTE kUniversal = 0x00;
constexpr BYTE kContextSpecific = 0x80;
constexpr BYTE kConstructed = 0x20;
constexpr BYTE kTagMask = 0x1F;
constexpr BYTE kHighTagNumber = 0x1F;
constexpr BYTE kLongForm = 0x80;
constexpr DWORD kIndefiniteLength = 0xFFFFFFFF;

// Universal tag numbers.
enum Tag : DWORD {
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
  kTagIA5String = 22,
  kTagUtcTime = 23,
  kTagGeneralizedTime = 24,
  kTagVisibleString = 26,
  kTagBmpString = 30,
};

constexpr const char* kHeaderFault = "CASNTBaseRecord::ReadASNInfo";

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
