// Bytes that somebody else owns: passed by value, valid as long as their owner leaves them alone.
#ifndef ORTHOLAN_BYTES_BYTE_VIEW_H_
#define ORTHOLAN_BYTES_BYTE_VIEW_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Ortholan {

struct ByteView {
  const uint8_t* data = nullptr;
  size_t size = 0;

  constexpr ByteView() = default;
  constexpr ByteView(const uint8_t* bytes, size_t count) : data(bytes), size(count) {}

  constexpr const uint8_t* begin() const { return data; }
  constexpr const uint8_t* end() const { return data + size; }
  constexpr bool empty() const { return size == 0; }
  constexpr uint8_t operator[](size_t index) const { return data[index]; }
  // The bytes from `offset`, which is at most `size`, to the end.
  constexpr ByteView From(size_t offset) const { return {data + offset, size - offset}; }
  constexpr ByteView First(size_t count) const { return {data, count}; }
};

inline bool SameBytes(ByteView a, ByteView b) {
  return a.size == b.size && (a.size == 0 || std::memcmp(a.data, b.data, a.size) == 0);
}

// A size without a pointer is no bytes.
inline ByteView AsBytes(const void* data, size_t size) {
  return {static_cast<const uint8_t*>(data), data != nullptr ? size : 0};
}

inline std::string_view AsText(ByteView bytes) {
  return {reinterpret_cast<const char*>(bytes.data), bytes.size};
}

// Copies the bytes and returns the end of the copy.
inline uint8_t* WriteBytes(uint8_t* out, ByteView bytes) {
  if (!bytes.empty()) std::memcpy(out, bytes.data, bytes.size);
  return out + bytes.size;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_BYTE_VIEW_H_
