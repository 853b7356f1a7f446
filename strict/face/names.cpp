// Names read, attribute by attribute.
#include <ortholan/strict/names.h>

#include "strict/der/string_value.h"
#include "strict/face/call.h"
#include "strict/names/name_view.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

// Moves the cursor behind the attribute at its place, which it reads.
bool Step(ByteView der, ortholan_name_cursor* at, ortholan_attribute_view* attribute) {
  const bool begins = at->offset == at->rdn_end;
  if (begins) {
    Reader rdns(der.From(at->offset), Leniency::kLenient, nullptr);
    Element rdn;
    if (!rdns.Read(&rdn)) return false;
    at->rdn_end = at->offset + rdn.bytes.size;
    at->offset = at->rdn_end - rdn.content.size;
    at->rdn += at->index != 0 ? 1 : 0;
  }
  Reader attributes(der.First(at->rdn_end).From(at->offset), Leniency::kLenient, nullptr);
  Element bytes;
  if (!attributes.Read(&bytes)) return false;
  Reader fields(bytes.content, Leniency::kLenient, nullptr);
  ByteView type;
  Element value;
  if (!fields.Read(kOid, &type) || !fields.Read(&value)) return false;
  *attribute = {Octets(type), Octets(value.bytes), Octets(value.content),
                at->rdn,      value.identifier,    begins ? 1 : 0};
  at->offset += bytes.bytes.size;
  ++at->index;
  return true;
}

// Begins at the first RDN, behind the header of the Name.
bool Begin(ByteView der, ortholan_name_cursor* at) {
  ByteView rdns;
  if (!ReadWhole(der, kSequence, Leniency::kLenient, &rdns, nullptr)) return false;
  *at = {0, der.size - rdns.size, 0, der.size - rdns.size};
  return true;
}

}  // namespace

ortholan_reason ortholan_name_view_read(ortholan_octets der, int32_t mode, ortholan_name_view* name,
                                        ortholan_refusal* refusal) {
  if (refusal != nullptr) *refusal = {};
  if (name == nullptr) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  *name = {};
  if (!IsGiven(der) || !IsMode(mode)) return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  NameView view;
  Refusal found;
  if (!NameView::Read(View(der), static_cast<Leniency>(mode), &view, &found)) {
    return Report(found, der.data, refusal);
  }
  *name = {der, view.rdn_count(), view.attribute_count()};
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_name_view_attribute(const ortholan_name_view* name, size_t index,
                                             ortholan_name_cursor* cursor,
                                             ortholan_attribute_view* attribute) {
  if (name == nullptr || attribute == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *attribute = {};
  if (index >= name->attribute_count) return ORTHOLAN_REASON_NOT_FOUND;
  const ByteView der = View(name->der);
  ortholan_name_cursor at = cursor != nullptr ? *cursor : ortholan_name_cursor{};
  if ((at.offset == 0 || at.index > index) && !Begin(der, &at)) return ORTHOLAN_REASON_ARGUMENT;
  while (at.index <= index) {
    if (!Step(der, &at, attribute)) return ORTHOLAN_REASON_ARGUMENT;
  }
  if (cursor != nullptr) *cursor = at;
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_attribute_view_text(const ortholan_attribute_view* attribute, char* out,
                                             size_t room, size_t* size) {
  Clear(size, nullptr);
  if (attribute == nullptr || !IsRoom(out, room)) return ORTHOLAN_REASON_ARGUMENT;
  const auto identifier = static_cast<uint8_t>(attribute->identifier);
  if (attribute->identifier > 0xFF || !IsString(identifier)) return ORTHOLAN_REASON_NO_STRING;
  Output text(out, room);
  if (!PutStringText(identifier, View(attribute->content), &text)) return ORTHOLAN_REASON_ENCODING;
  return Finish(text, size);
}
