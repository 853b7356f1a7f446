#include "names/decoder/attribute_walk.h"

#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"

namespace Ortholan {
namespace {

bool ReadElements(ByteView rdn, TypeText* type, Element* value) {
  Status status = Status::kOk;
  AttributeElements elements;
  if (!SplitAnyRdn(rdn, &elements, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  for (const Element& child : elements.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    if (!IsType(child)) {
      *value = child;
    } else if (!DecodeAttrOid(child, type)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool DecodedAttribute::Read(ByteView rdn) {
  PlainAttribute plain;
  if (SplitPlainRdn(rdn, &plain)) {
    if (!DecodeAttrOid(plain.type, &type_)) return false;
    value_ = plain.value;
  } else if (!ReadElements(rdn, &type_, &value_)) {
    return false;
  }
  is_ascii_ = ascii_.Decode(value_);
  return true;
}

}  // namespace Ortholan
