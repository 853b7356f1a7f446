// A list that grows without moving what is in it: scratch space of one call.
#ifndef ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_
#define ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_

#include <algorithm>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace Ortholan {

// Where items go, whatever their type. Growing is kept apart, so that adding is a few instructions.
class Chunks {
 protected:
  struct Chunk {
    std::unique_ptr<unsigned char[]> bytes;
    size_t items;
  };

  // Adds a chunk of `items` items of `itemSize` bytes.
  void Grow(size_t items, size_t itemSize);

  std::vector<Chunk> chunks_;
  unsigned char* next_;
  unsigned char* end_;
};

// The first N items need no allocation; behind them come chunks, each as large as all before it but
// neither tiny nor huge, so that little is ever unused and nothing is copied. Items are trivial and
// not initialised.
template <typename T, size_t N>
class ChunkedList : private Chunks {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
  static_assert(alignof(T) <= alignof(std::max_align_t));

 public:
  ChunkedList() noexcept {
    next_ = first_;
    end_ = next_ + sizeof(first_);
  }
  ChunkedList(const ChunkedList&) = delete;
  ChunkedList& operator=(const ChunkedList&) = delete;

  // Room for one more item. Throws std::bad_alloc, the list unchanged.
  T* Add() {
    if (next_ == end_) Grow(std::clamp(size_, kSmallest, kLargest), sizeof(T));
    ++size_;
    T* const item = reinterpret_cast<T*>(next_);
    next_ += sizeof(T);
    return item;
  }
  size_t size() const { return size_; }

  // Calls `use` with each item, in order, until it returns false; whether none did.
  template <typename Use>
  bool ForEach(Use use) {
    if (!ForEachOf(first_, std::min(size_, N), use)) return false;
    size_t left = size_ - std::min(size_, N);
    for (const Chunk& chunk : chunks_) {
      if (!ForEachOf(chunk.bytes.get(), std::min(left, chunk.items), use)) return false;
      left -= std::min(left, chunk.items);
    }
    return true;
  }

 private:
  static constexpr size_t kSmallest = 64;
  static constexpr size_t kLargest = 4096;

  template <typename Use>
  static bool ForEachOf(unsigned char* bytes, size_t count, Use& use) {
    T* const items = reinterpret_cast<T*>(bytes);
    for (T* item = items; item != items + count; ++item) {
      if (!use(*item)) return false;
    }
    return true;
  }

  size_t size_ = 0;
  alignas(T) unsigned char first_[N * sizeof(T)];
};

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_
