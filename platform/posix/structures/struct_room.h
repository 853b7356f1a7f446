// The block that a decoded structure and all that it points at lie in. Places are offsets from its
// beginning, which need not be aligned. Without a block it only counts.
//
//   const std::size_t text = room->Take(size, 1);
//   room->Put(at, room->Address(text));

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_STRUCT_ROOM_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_STRUCT_ROOM_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "bytes/byte_view.h"

namespace Ortholan::posix {

class StructRoom {
 public:
  explicit StructRoom(BYTE* block = nullptr) : block_(block) {}

  bool counts_only() const { return block_ == nullptr; }
  std::size_t used() const { return used_; }

  std::size_t Take(std::size_t size, std::size_t alignment) {
    const std::size_t taken = (used_ + alignment - 1) / alignment * alignment;
    used_ = taken + size;
    return taken;
  }
  // Null where places are only counted.
  BYTE* Address(std::size_t place) const { return counts_only() ? nullptr : block_ + place; }

  template <class Value>
  void Put(std::size_t place, const Value& value) {
    static_assert(std::is_trivially_copyable_v<Value>);
    if (!counts_only()) std::memcpy(block_ + place, &value, sizeof value);
  }
  // Stores a blob of `size` octets; returns where they go, null where there is nothing to write.
  BYTE* PutBlob(std::size_t place, std::size_t size) {
    BYTE* const octets = size != 0 ? Address(Take(size, 1)) : nullptr;
    Put(place, CRYPT_DATA_BLOB{static_cast<DWORD>(size), octets});
    return octets;
  }
  BYTE* PutBlob(std::size_t place, ByteView octets) {
    BYTE* const copy = PutBlob(place, octets.size);
    if (copy != nullptr) WriteBytes(copy, octets);
    return copy;
  }

 private:
  BYTE* block_;
  std::size_t used_ = 0;
};

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_STRUCT_ROOM_H_
