// The reader of attributes: every decoder, be it to text, tree, pairs or keys to compare, takes an
// RDN apart by it.
//
//   Status fault = Status::kOk;
//   const bool read = ReadRdn(rdn, &fault, [&](ByteView type) { return Format(type, &oid); },
//                             [&](const Element& value) { return Decode(value, &text); });
#ifndef ORTHOLAN_NAMES_DECODER_RDN_READER_H_
#define ORTHOLAN_NAMES_DECODER_RDN_READER_H_

#include "foundation/report.h"
#include "names/decoder/attribute_elements.h"

namespace Ortholan {

// The content octets of an identifier element. False with the last error set where they are not
// all there.
inline bool ReadTypeContent(const Element& type, ByteView* content) {
  const Status status = BoundedContent(type.header, type.bytes.end(), content);
  return status == Status::kOk || FailWith(status);
}

// Reads the one attribute of an RDN: `on_type` gets the content octets of its identifier,
// `on_value` its value, which stands alone, in the order in which they stand, so that the first
// failure is told. False where either returns false, and for what is no RDN of one attribute, with
// the status of the fault in `*fault` where there is one.
template <class OnType, class OnValue>
bool ReadRdn(ByteView rdn, Status* fault, OnType on_type, OnValue on_value) {
  PlainAttribute plain;
  if (SplitPlainRdn(rdn, &plain)) return on_type(plain.type) && on_value(plain.value);
  AttributeElements any;
  if (!SplitAnyRdn(rdn, &any, fault)) return false;
  for (const Element& child : any.child) {
    *fault = StandsAlone(child);
    if (*fault != Status::kOk) return false;
    ByteView type;
    const bool taken =
        IsType(child) ? ReadTypeContent(child, &type) && on_type(type) : on_value(child);
    if (!taken) return false;
  }
  return true;
}

// The same with the fault's last-error code set; it is left alone for an RDN of several attributes
// and an attribute without a type or value.
template <class OnType, class OnValue>
bool ReadRdn(ByteView rdn, OnType on_type, OnValue on_value) {
  Status fault = Status::kOk;
  if (ReadRdn(rdn, &fault, on_type, on_value)) return true;
  return fault != Status::kOk ? FailWith(fault) : false;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_RDN_READER_H_
