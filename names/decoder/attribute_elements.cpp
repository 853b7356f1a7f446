#include "names/decoder/attribute_elements.h"

#include "foundation/element_writer.h"

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

// A child with a one-octet tag and length, `size` octets in all.
void SetPlainChild(const BYTE* start, size_t size, Element* child) {
  child->bytes = {start, size};
  child->header.cls = start[0] & kClassMask;
  child->header.constructed = start[0] & kConstructed;
  child->header.tag = start[0] & kTagMask;
  child->header.length = start[1];
  child->header.content = start + 2;
  child->header.indefinite = false;
}

}  // namespace

bool SplitPlainRdn(ByteView rdn, AttributeElements* out) {
  constexpr size_t kHeader = 2;
  constexpr size_t kTypeAt = 2 * kHeader;
  if (rdn.size < kTypeAt + 2 * kHeader || rdn.size >= kHeader + kLongForm) return false;
  const BYTE* const set = rdn.data;
  const BYTE* const attribute = set + kHeader;
  const BYTE* const type = set + kTypeAt;
  if (set[0] != kSetOctet || set[1] != rdn.size - kHeader) return false;
  if (attribute[0] != kSequenceOctet || attribute[1] != rdn.size - 2 * kHeader) return false;
  if (type[0] != kTagOid || type[1] + kTypeAt + 2 * kHeader > rdn.size) return false;
  const BYTE* const value = type + kHeader + type[1];
  const size_t value_size = static_cast<size_t>(rdn.end() - value);
  const BYTE tag = value[0] & kTagMask;
  if (tag == kHighTagNumber || tag == kTagOid || value[1] != value_size - kHeader) return false;
  SetPlainChild(type, kHeader + type[1], &out->child[0]);
  SetPlainChild(value, value_size, &out->child[1]);
  return true;
}

bool SplitRdn(ByteView rdn, AttributeElements* out, Status* status) {
  *status = Status::kOk;
  return SplitPlainRdn(rdn, out) || SplitAnyRdn(rdn, out, status);
}

bool SplitAnyRdn(ByteView rdn, AttributeElements* out, Status* status) {
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
