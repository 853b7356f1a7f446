#include "names/decoder/attribute_walk.h"

#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"

namespace Ortholan {

bool ReadAttribute(ByteView rdn, DecodedAttribute* attribute) {
  Status status = Status::kOk;
  AttributeElements elements;
  if (!SplitRdn(rdn, &elements, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  for (const Element& child : elements.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    if (!IsType(child)) {
      attribute->value = child;
    } else if (!DecodeAttrOid(child, &attribute->type)) {
      return false;
    }
  }
  return true;
}

}  // namespace Ortholan
