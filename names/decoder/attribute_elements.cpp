#include "names/decoder/attribute_elements.h"

#include "bytes/der_length.h"
#include "bytes/der_tag.h"

namespace Ortholan {
namespace {

constexpr size_t kPlainHeader = 2;

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

// An element with a one-octet tag and length, `size` octets in all.
void SetPlain(const uint8_t* start, size_t size, Element* element) {
  element->bytes = {start, size};
  element->header.cls = start[0] & kClassMask;
  element->header.constructed = start[0] & kConstructed;
  element->header.tag = start[0] & kTagMask;
  element->header.length = start[1];
  element->header.content = start + kPlainHeader;
  element->header.indefinite = false;
}

}  // namespace

bool SplitPlainRdn(ByteView rdn, PlainAttribute* out) {
  constexpr size_t kTypeAt = 2 * kPlainHeader;
  if (rdn.size < kTypeAt + 2 * kPlainHeader || rdn.size >= kPlainHeader + kLongForm) return false;
  const uint8_t* const set = rdn.data;
  const uint8_t* const attribute = set + kPlainHeader;
  const uint8_t* const type = set + kTypeAt;
  if (set[0] != kSetOctet || set[1] != rdn.size - kPlainHeader) return false;
  if (attribute[0] != kSequenceOctet || attribute[1] != rdn.size - 2 * kPlainHeader) return false;
  if (type[0] != kTagOid || type[1] + kTypeAt + 2 * kPlainHeader > rdn.size) return false;
  const uint8_t* const value = type + kPlainHeader + type[1];
  const size_t value_size = static_cast<size_t>(rdn.end() - value);
  const uint8_t tag = value[0] & kTagMask;
  if (tag == kHighTagNumber || tag == kTagOid || value[1] != value_size - kPlainHeader)
    return false;
  out->type = {type + kPlainHeader, type[1]};
  SetPlain(value, value_size, &out->value);
  return true;
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
