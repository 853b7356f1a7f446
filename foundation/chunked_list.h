// A list that grows without moving what is in it: scratch space of one call.
#ifndef ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_
#define ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_

#include <algorithm>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace Ortholan {

// The first N items need no allocation; behind them come chunks, each as large as all before it but
// neither tiny nor huge, so that little is ever unused and nothing is copied. Items are trivial and
// not initialised.
template <typename T, size_t N>
class ChunkedList {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

 public:
  ChunkedList() noexcept {}
  ChunkedList(const ChunkedList&) = delete;
  ChunkedList& operator=(const ChunkedList&) = delete;

  // Room for one more item. Throws std::bad_alloc, the list unchanged.
  T* Add() {
    if (next_ == end_) Grow();
    ++size_;
    return next_++;
  }
  size_t size() const { return size_; }

  // Calls `use` with each item, in order, until it returns false; whether none did.
  template <typename Use>
  bool ForEach(Use use) {
    if (!ForEachOf(reinterpret_cast<T*>(first_), std::min(size_, N), use)) return false;
    size_t left = size_ - std::min(size_, N);
    for (const Chunk& chunk : chunks_) {
      if (!ForEachOf(chunk.items.get(), std::min(left, chunk.size), use)) return false;
      left -= std::min(left, chunk.size);
    }
    return true;
  }

 private:
  static constexpr size_t kSmallest = 64;
  static constexpr size_t kLargest = 4096;

  struct Chunk {
    std::unique_ptr<T[]> items;
    size_t size;
  };

  template <typename Use>
  static bool ForEachOf(T* items, size_t count, Use& use) {
    for (T* item = items; item != items + count; ++item) {
      if (!use(*item)) return false;
    }
    return true;
  }

  void Grow() {
    const size_t count = std::clamp(size_, kSmallest, kLargest);
    chunks_.push_back({std::unique_ptr<T[]>(new T[count]), count});
    next_ = chunks_.back().items.get();
    end_ = next_ + count;
  }

  size_t size_ = 0;
  T* next_ = reinterpret_cast<T*>(first_);
  T* end_ = next_ + N;
  std::vector<Chunk> chunks_;
  alignas(T) unsigned char first_[N * sizeof(T)];
};

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_CHUNKED_LIST_H_
