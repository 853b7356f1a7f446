// A growing array whose first N items need no allocation: scratch space of one call.
#ifndef ORTHOLAN_BYTES_SMALL_BUFFER_H_
#define ORTHOLAN_BYTES_SMALL_BUFFER_H_

#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>

namespace Ortholan {

// Items are trivial and not initialised. Growing throws std::bad_alloc, the buffer unchanged.
template <typename T, size_t N>
class SmallBuffer {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

 public:
  SmallBuffer() noexcept {}
  SmallBuffer(const SmallBuffer&) = delete;
  SmallBuffer& operator=(const SmallBuffer&) = delete;

  T* data() { return data_; }
  const T* data() const { return data_; }
  size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  T& operator[](size_t index) { return data_[index]; }
  const T& operator[](size_t index) const { return data_[index]; }
  T* begin() { return data_; }
  T* end() { return data_ + size_; }
  const T* begin() const { return data_; }
  const T* end() const { return data_ + size_; }
  T& back() { return data_[size_ - 1]; }

  void clear() { size_ = 0; }
  void push_back(const T& item) {
    const T copy = item;
    *Extend(1) = copy;
  }
  void Reserve(size_t count) {
    if (count > capacity_) Grow(count - size_);
  }
  // Room for `count` more items at the end; returns the first of them.
  T* Extend(size_t count) {
    if (count > capacity_ - size_) Grow(count);
    T* first = data_ + size_;
    size_ += count;
    return first;
  }
  // The array holds `count` items, whose old values are lost. For scratch space.
  T* Take(size_t count) {
    size_ = 0;
    return Extend(count);
  }
  void Truncate(size_t count) { size_ = count; }

 private:
  void Grow(size_t count) {
    // Half as much again keeps the copying linear and the slack small.
    size_t capacity = capacity_ + capacity_ / 2;
    if (capacity < size_ + count) capacity = size_ + count;
    std::unique_ptr<T[]> grown(new T[capacity]);
    if (size_ != 0) std::memcpy(static_cast<void*>(grown.get()), data_, size_ * sizeof(T));
    heap_ = std::move(grown);
    data_ = heap_.get();
    capacity_ = capacity;
  }

  T* data_ = reinterpret_cast<T*>(inline_);
  size_t size_ = 0;
  size_t capacity_ = N;
  std::unique_ptr<T[]> heap_;
  alignas(T) unsigned char inline_[N * sizeof(T)];
};

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_SMALL_BUFFER_H_
