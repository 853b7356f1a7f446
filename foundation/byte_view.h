// Bytes that somebody else owns: passed by value, valid as long as their owner leaves them alone.
#ifndef ORTHOLAN_FOUNDATION_BYTE_VIEW_H_
#define ORTHOLAN_FOUNDATION_BYTE_VIEW_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <cstddef>
#include <cstring>

namespace Ortholan {

struct ByteView {
  const BYTE* data = nullptr;
  size_t size = 0;

  constexpr ByteView() = default;
  constexpr ByteView(const BYTE* bytes, size_t count) : data(bytes), size(count) {}
  // A blob with a size and no pointer holds nothing that could be read.
  explicit ByteView(const CRYPT_DATA_BLOB& blob)
      : data(blob.pbData), size(blob.pbData != nullptr ? blob.cbData : 0) {}

  constexpr const BYTE* begin() const { return data; }
  constexpr const BYTE* end() const { return data + size; }
  constexpr bool empty() const { return size == 0; }
  constexpr BYTE operator[](size_t index) const { return data[index]; }
  // The bytes from `offset`, which is at most `size`, to the end.
  constexpr ByteView From(size_t offset) const { return {data + offset, size - offset}; }
  constexpr ByteView First(size_t count) const { return {data, count}; }
};

inline bool SameBytes(ByteView a, ByteView b) {
  return a.size == b.size && (a.size == 0 || std::memcmp(a.data, b.data, a.size) == 0);
}

inline ByteView AsBytes(const void* data, size_t size) {
  return {static_cast<const BYTE*>(data), data != nullptr ? size : 0};
}

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_BYTE_VIEW_H_
