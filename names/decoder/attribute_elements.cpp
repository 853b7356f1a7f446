#include "names/decoder/attribute_elements.h"

namespace Ortholan {
namespace {

// Reads up to `wanted` children and counts all of them: a fault behind them counts too.
bool ReadChildren(ByteView element, size_t wanted, Element* children, Status* status) {
  ElementReader reader(element);
  size_t count = 0;
  for (Element child; reader.Next(&child); ++count) {
    if (count < wanted) children[count] = child;
  }
  *status = reader.fault().status;
  return *status == Status::kOk && count == wanted;
}

}  // namespace

bool SplitRdn(ByteView rdn, AttributeElements* out, Status* status) {
  Element attribute;
  if (!ReadChildren(rdn, 1, &attribute, status)) return false;
  if (!ReadChildren(attribute.bytes, 2, out->child, status)) return false;
  return IsType(out->child[0]) != IsType(out->child[1]);
}

Status CountChildren(ByteView element, size_t* count) {
  ElementReader reader(element);
  *count = 0;
  for (Element child; reader.Next(&child);) ++*count;
  return reader.fault().status;
}

}  // namespace Ortholan
