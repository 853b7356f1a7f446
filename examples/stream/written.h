// Calls that write into room, over and over: the room stays as large as it was ever needed, and
// nothing of it is cleared.
#ifndef ORTHOLAN_EXAMPLES_STREAM_WRITTEN_H_
#define ORTHOLAN_EXAMPLES_STREAM_WRITTEN_H_

#include <ortholan/strict/base.h>

#include <cstddef>
#include <new>
#include <string>
#include <string_view>

namespace Example {

// `call` takes pointer, room and the place of the size; what it writes is seen by `written`, which
// points into `room`. Throws std::bad_alloc.
template <class Call>
ortholan_reason Write(std::string& room, std::string_view* written, Call call) {
  constexpr std::size_t kUsualRoom = 512;
  if (room.size() < kUsualRoom) room.resize(kUsualRoom);
  std::size_t size = 0;
  ortholan_reason reason = call(room.data(), room.size(), &size);
  if (reason == ORTHOLAN_REASON_ROOM) {
    room.resize(size);
    reason = call(room.data(), room.size(), &size);
  }
  if (reason == ORTHOLAN_REASON_MEMORY) throw std::bad_alloc();
  *written = {room.data(), size};
  return reason;
}

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_WRITTEN_H_
