// Octets that grow at their end and are used again: memory is taken once and never cleared.
//
//   OctetBuffer text;
//   text.Append("CN=");
//   const std::size_t written = Write(text.Room(100), 100);
//   text.Take(written);
#ifndef ORTHOLAN_EXAMPLES_OCTET_BUFFER_H_
#define ORTHOLAN_EXAMPLES_OCTET_BUFFER_H_

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace Example {

class OctetBuffer {
 public:
  std::string_view View() const { return {octets_.get(), size_}; }
  void Clear() { size_ = 0; }

  // At least `count` octets behind the end to be written into; what is taken of them stays.
  char* Room(std::size_t count) {
    if (capacity_ - size_ < count) Grow(size_ + count);
    return octets_.get() + size_;
  }
  void Take(std::size_t count) { size_ += count; }

  void Append(std::string_view octets) {
    if (octets.empty()) return;
    std::memcpy(Room(octets.size()), octets.data(), octets.size());
    Take(octets.size());
  }

 private:
  void Grow(std::size_t least) {
    const std::size_t capacity = std::max(least, 2 * capacity_);
    std::unique_ptr<char[]> octets(new char[capacity]);
    if (size_ != 0) std::memcpy(octets.get(), octets_.get(), size_);
    octets_ = std::move(octets);
    capacity_ = capacity;
  }

  std::unique_ptr<char[]> octets_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_OCTET_BUFFER_H_
