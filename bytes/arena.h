// Memory for the texts of one call, released as a whole.
#ifndef ORTHOLAN_BYTES_ARENA_H_
#define ORTHOLAN_BYTES_ARENA_H_

#include <cstddef>
#include <memory>
#include <vector>

namespace Ortholan {

// Pieces stay where they are as long as the arena. The first ones need no allocation.
class Arena {
 public:
  Arena() noexcept {}
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  // Room for `count` items, not initialised. Throws std::bad_alloc.
  template <typename T>
  T* Take(size_t count) {
    static_assert(alignof(T) <= kAlignment);
    if (count > kMost / sizeof(T)) throw std::bad_alloc();
    return reinterpret_cast<T*>(TakeBytes(count * sizeof(T)));
  }

 private:
  static constexpr size_t kAlignment = 8;
  static constexpr size_t kFirst = 512;
  static constexpr size_t kChunk = 16 * 1024;
  static constexpr size_t kMost = static_cast<size_t>(-1) - kAlignment;

  uint8_t* TakeBytes(size_t size) {
    size = (size + kAlignment - 1) / kAlignment * kAlignment;
    if (size > left_) return TakeChunk(size);
    uint8_t* const taken = next_;
    next_ += size;
    left_ -= size;
    return taken;
  }
  // A large piece has a chunk of its own, so that the room left is not lost.
  uint8_t* TakeChunk(size_t size) {
    const bool is_large = size > kChunk / 4;
    chunks_.emplace_back(new uint8_t[is_large ? size : kChunk]);
    uint8_t* const chunk = chunks_.back().get();
    if (!is_large) {
      next_ = chunk + size;
      left_ = kChunk - size;
    }
    return chunk;
  }

  alignas(kAlignment) uint8_t first_[kFirst];
  uint8_t* next_ = first_;
  size_t left_ = kFirst;
  std::vector<std::unique_ptr<uint8_t[]>> chunks_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_ARENA_H_
