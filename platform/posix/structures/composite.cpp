// The walk through a description, in both directions.

#include <cstring>

#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"
#include "platform/posix/structures/set_order.h"

namespace Ortholan::posix {
namespace {

constexpr DWORD kInvalidArgument = 0x80070057;

// Structures and arrays lie as their pointers do.
constexpr std::size_t kAlignment = alignof(void*);

// From the count of an array to the pointer behind it.
std::size_t ToPointer(const Field& array) {
  const std::size_t end = array.at + sizeof(DWORD);
  return (end + kAlignment - 1) / kAlignment * kAlignment - array.at;
}

bool IsAbsent(const Field& field, const BYTE* value) {
  if (field.presence == Presence::kFlagged) return Load<BOOL>(value - sizeof(BOOL)) == FALSE;
  if (field.presence == Presence::kRequired) return false;
  if (field.kind->is_pointer) return Load<const void*>(value) == nullptr;
  return Load<DWORD>(value) == 0;
}

// Calls `write` for each of `count` things: from the first on to count, so that the first that
// cannot be written is the one to report, from the last back to write.
template <class Write>
DWORD WriteEach(std::size_t count, DerWriter* out, Write write) {
  for (std::size_t i = 0; i < count; ++i) {
    if (const DWORD error = write(out->counts_only() ? i : count - 1 - i)) return error;
  }
  return ERROR_SUCCESS;
}

DWORD WriteSequence(const Field& field, const BYTE* structure, DerWriter* out) {
  return WriteEach(field.count, out,
                   [&](std::size_t i) { return WriteField(field.inner[i], structure, out); });
}

DWORD ReadMembers(const Field& field, ByteView content, std::size_t structure, StructRoom* room) {
  for (std::size_t i = 0; i < field.count; ++i) {
    const Field& member = field.inner[i];
    const bool accepted = !content.empty() && Accepts(member, content[0]);
    if (!accepted && member.presence != Presence::kRequired) continue;
    Element element;
    if (const DWORD error = TakeElement(&content, &element)) return error;
    if (!accepted) return CRYPT_E_ASN1_BADTAG;
    if (const DWORD error = ReadField(member, element, structure, room)) return error;
  }
  return content.empty() ? ERROR_SUCCESS : DWORD{CRYPT_E_ASN1_CORRUPT};
}

DWORD ReadSequence(const Field& field, const Element& element, std::size_t place,
                   StructRoom* room) {
  return ReadMembers(field, element.content, place, room);
}

DWORD WritePointer(const Field& field, const BYTE* value, DerWriter* out) {
  const auto* const pointed = Load<const BYTE*>(value);
  return pointed != nullptr ? WriteSequence(field, pointed, out) : DWORD{ERROR_INVALID_PARAMETER};
}

DWORD ReadPointer(const Field& field, const Element& element, std::size_t place, StructRoom* room) {
  const std::size_t pointed = room->Take(field.size, kAlignment);
  room->Put(place, room->Address(pointed));
  return ReadMembers(field, element.content, pointed, room);
}

DWORD WriteArray(const Field& field, const BYTE* value, DerWriter* out) {
  const auto count = Load<DWORD>(value);
  const auto* const items = Load<const BYTE*>(value + ToPointer(field));
  if (count != 0 && items == nullptr) return ERROR_INVALID_PARAMETER;
  return WriteEach(count, out, [&](std::size_t i) {
    const DWORD error = WriteField(*field.inner, items + i * field.size, out);
    if (error != ERROR_SUCCESS) out->AddPlace(static_cast<DWORD>(i << field.index));
    return error;
  });
}

DWORD CountItems(const Field& item, ByteView content, std::size_t* count) {
  Element element;
  for (*count = 0; !content.empty(); ++*count) {
    if (const DWORD error = TakeElement(&content, &element)) return error;
    if (item.tag != 0 && item.tag != element.tag) return CRYPT_E_ASN1_BADTAG;
  }
  return ERROR_SUCCESS;
}

DWORD ReadArray(const Field& field, const Element& element, std::size_t place, StructRoom* room) {
  const Field& item = *field.inner;
  std::size_t count;
  if (const DWORD error = CountItems(item, element.content, &count)) return error;
  room->Put(place, static_cast<DWORD>(count));
  if (count == 0) return ERROR_SUCCESS;
  const std::size_t items = room->Take(count * field.size, kAlignment);
  room->Put(place + ToPointer(field), room->Address(items));
  ByteView rest = element.content;
  for (std::size_t i = 0; i < count; ++i) {
    Element one;
    TakeElement(&rest, &one);
    if (!Accepts(item, one.tag)) return CRYPT_E_ASN1_BADTAG;
    if (const DWORD error = ReadField(item, one, items + i * field.size, room)) return error;
  }
  return ERROR_SUCCESS;
}

DWORD WriteSet(const Field& field, const BYTE* value, DerWriter* out) {
  const std::size_t mark = out->size();
  if (const DWORD error = WriteArray(field, value, out)) return error;
  if (out->counts_only() || Load<DWORD>(value) < 2) return ERROR_SUCCESS;
  return SortSet(out->front(), out->size() - mark) ? ERROR_SUCCESS : DWORD{ERROR_NOT_ENOUGH_MEMORY};
}

DWORD WriteChoice(const Field& field, const BYTE* structure, DerWriter* out) {
  const auto number = Load<DWORD>(structure);
  for (std::size_t i = 0; i < field.count; ++i) {
    if (field.inner[i].number == number) return WriteField(field.inner[i], structure, out);
  }
  return kInvalidArgument;
}

const Field* FindAlternative(const Field& field, BYTE tag) {
  for (std::size_t i = 0; i < field.count; ++i) {
    if (Accepts(field.inner[i], tag)) return &field.inner[i];
  }
  return nullptr;
}

bool AcceptsChoice(const Field& field, BYTE tag) { return FindAlternative(field, tag) != nullptr; }

DWORD ReadChoice(const Field& field, const Element& element, std::size_t place, StructRoom* room) {
  const Field& alternative = *FindAlternative(field, element.tag);
  room->Put(place, DWORD{alternative.number});
  return ReadField(alternative, element, place, room);
}

DWORD WriteWrapped(const Field& field, const BYTE* structure, DerWriter* out) {
  return WriteField(*field.inner, structure, out);
}

DWORD WriteUnnamed(const Field& /*field*/, const BYTE* /*value*/, DerWriter* /*out*/) {
  return kInvalidArgument;
}

DWORD ReadUnnamed(const Field& /*field*/, const Element& /*element*/, std::size_t /*place*/,
                  StructRoom* /*room*/) {
  return ERROR_SUCCESS;
}

}  // namespace

const Kind kSequenceKind = {WriteSequence, ReadSequence};
const Kind kPointerKind = {WritePointer, ReadPointer, nullptr, true};
const Kind kArrayKind = {WriteArray, ReadArray};
const Kind kSetKind = {WriteSet, ReadArray};
const Kind kChoiceKind = {WriteChoice, ReadChoice, AcceptsChoice};
const Kind kWrapperKind = {WriteWrapped, ReadSequence};
const Kind kUnnamedKind = {WriteUnnamed, ReadUnnamed};

DWORD WriteField(const Field& field, const BYTE* structure, DerWriter* out) {
  const BYTE* const value = structure + field.at;
  if (IsAbsent(field, value)) return ERROR_SUCCESS;
  const std::size_t mark = out->size();
  if (const DWORD error = field.kind->write(field, value, out)) {
    if (field.mark != 0) out->AddPlace(DWORD{1} << field.mark);
    return error;
  }
  if (field.tag != 0) out->PutHeader(field.tag, mark);
  return ERROR_SUCCESS;
}

bool Accepts(const Field& field, BYTE tag) {
  if (field.tag != 0) return field.tag == tag;
  return field.kind->accepts == nullptr || field.kind->accepts(field, tag);
}

DWORD ReadField(const Field& field, const Element& element, std::size_t structure,
                StructRoom* room) {
  const std::size_t place = structure + field.at;
  if (field.presence == Presence::kFlagged) room->Put(place - sizeof(BOOL), TRUE);
  return field.kind->read(field, element, place, room);
}

}  // namespace Ortholan::posix
