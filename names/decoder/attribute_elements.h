// An RDN taken apart: the identifier and the value of its one attribute.
//
//   PlainAttribute plain;
//   if (SplitPlainRdn(rdn, &plain)) use(plain.type, plain.value.bytes);
#ifndef ORTHOLAN_NAMES_DECODER_ATTRIBUTE_ELEMENTS_H_
#define ORTHOLAN_NAMES_DECODER_ATTRIBUTE_ELEMENTS_H_

#include "foundation/element_reader.h"
#include "foundation/status_code.h"

namespace Ortholan {

// The two children of an AttributeTypeAndValue, in the order in which they stand. One has tag
// number 6 and is the type, whichever comes first; the other is the value.
struct AttributeElements {
  Element child[2];
};

inline bool IsType(const Element& child) { return child.header.tag == kTagOid; }

// An attribute of the shape that nearly every one has.
struct PlainAttribute {
  ByteView type;  // content octets of the identifier
  Element value;  // stands alone
};

// Takes an RDN apart that has one attribute, its type first, every length in one octet. False for
// any other, well-formed or not.
bool SplitPlainRdn(ByteView rdn, PlainAttribute* out);

// Splits an RDN of any shape. False with a status for bytes that are no such structure, false with
// kOk for an RDN without exactly one attribute and an attribute without exactly one type and one
// value. Where SplitPlainRdn takes the RDN, both agree.
bool SplitAnyRdn(ByteView rdn, AttributeElements* out, Status* status);

// Whether the child can be read from its own bytes. A primitive element in the indefinite form
// cannot: its terminator stays outside.
inline Status StandsAlone(const Element& child) {
  return child.header.indefinite && child.header.constructed == 0 ? Status::kCorrupt : Status::kOk;
}

// The number of children of `element`, a failure of any of them first.
Status CountChildren(ByteView element, size_t* count);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_ATTRIBUTE_ELEMENTS_H_
