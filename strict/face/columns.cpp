// Columns, by the functions for single items.
#include <ortholan/strict/columns.h>
#include <ortholan/strict/general_names.h>
#include <ortholan/strict/matching.h>

#include "strict/face/call.h"

namespace {

bool IsColumn(const ortholan_column* items) {
  return items != nullptr && items->offsets != nullptr &&
         Ortholan::strict::IsGiven(ortholan_octets{items->data, items->size});
}

bool IsColumnRoom(const ortholan_column_room* room, size_t count) {
  return room != nullptr && room->offsets != nullptr && (room->reasons != nullptr || count == 0) &&
         Ortholan::strict::IsRoom(room->data, room->size);
}

// The item, unless its offsets are wrong.
bool ItemAt(const ortholan_column& items, size_t index, ortholan_octets* item) {
  const int64_t begin = items.offsets[index];
  const int64_t end = items.offsets[index + 1];
  if (begin < 0 || end < begin || static_cast<uint64_t>(end) > items.size) return false;
  *item = {items.data + begin, static_cast<size_t>(end - begin)};
  return true;
}

ortholan_text TextOfItem(ortholan_octets item) {
  return {reinterpret_cast<const char*>(item.data), item.size};
}

// Asks `one` about each item, with the room that is left.
template <class Character, class One>
ortholan_reason AnswerEach(const ortholan_column* items, const ortholan_column_room* room,
                           size_t* done, One one) {
  if (done == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *done = 0;
  if (!IsColumn(items) || !IsColumnRoom(room, items->count)) return ORTHOLAN_REASON_ARGUMENT;
  auto* const out = reinterpret_cast<Character*>(room->data);
  size_t used = 0;
  room->offsets[0] = 0;
  for (; *done != items->count; ++*done) {
    ortholan_octets item;
    if (!ItemAt(*items, *done, &item)) return ORTHOLAN_REASON_ARGUMENT;
    size_t size = 0;
    const ortholan_reason reason = one(item, out + used, room->size - used, &size);
    if (reason == ORTHOLAN_REASON_ROOM) break;
    if (reason == ORTHOLAN_REASON_ARGUMENT || reason == ORTHOLAN_REASON_MEMORY) return reason;
    if (reason == ORTHOLAN_REASON_NONE) used += size;
    room->reasons[*done] = reason;
    room->offsets[*done + 1] = static_cast<int64_t>(used);
  }
  return ORTHOLAN_REASON_NONE;
}

}  // namespace

ortholan_reason ortholan_column_rfc4514_write(const ortholan_column* names, int32_t mode,
                                              const ortholan_rfc4514_options* options,
                                              const ortholan_column_room* room, size_t* done) {
  return AnswerEach<char>(
      names, room, done, [=](ortholan_octets item, char* out, size_t left, size_t* size) {
        ortholan_name_view name;
        const ortholan_reason reason = ortholan_name_view_read(item, mode, &name, nullptr);
        if (reason != ORTHOLAN_REASON_NONE) return reason;
        return ortholan_rfc4514_write(&name, options, out, left, size, nullptr);
      });
}

ortholan_reason ortholan_column_rfc4514_read(const ortholan_column* texts,
                                             const ortholan_rfc4514_options* options,
                                             const ortholan_column_room* room, size_t* done) {
  return AnswerEach<uint8_t>(
      texts, room, done, [=](ortholan_octets item, uint8_t* out, size_t left, size_t* size) {
        return ortholan_rfc4514_read(TextOfItem(item), options, out, left, size, nullptr);
      });
}

ortholan_reason ortholan_column_match_key(const ortholan_column* names, int32_t rule,
                                          const ortholan_column_room* room, size_t* done) {
  return AnswerEach<uint8_t>(names, room, done,
                             [=](ortholan_octets item, uint8_t* out, size_t left, size_t* size) {
                               return ortholan_match_key(item, rule, out, left, size, nullptr);
                             });
}

ortholan_reason ortholan_column_general_name_to_text(const ortholan_column* names,
                                                     const ortholan_column_room* room,
                                                     size_t* done) {
  return AnswerEach<char>(names, room, done,
                          [](ortholan_octets item, char* out, size_t left, size_t* size) {
                            return ortholan_general_name_to_text(item, out, left, size, nullptr);
                          });
}
