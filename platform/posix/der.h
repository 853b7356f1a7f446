// Reading and writing single DER elements for the codecs. X.690, 8.1 and 10.1.

#ifndef ORTHOLAN_PLATFORM_POSIX_DER_H_
#define ORTHOLAN_PLATFORM_POSIX_DER_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>

namespace Ortholan::posix {

// Bytes not owned; lives no longer than what it looks at.
struct Bytes {
  const BYTE* data = nullptr;
  std::size_t size = 0;
};

// Octets of a length field for `size` content octets.
inline std::size_t LengthFieldSize(std::size_t size) {
  if (size < 0x80) return 1;
  std::size_t octets = 1;
  for (; size != 0; size >>= 8) ++octets;
  return octets;
}

// Size of a whole element with a single tag octet.
inline std::size_t ElementSize(std::size_t contentSize) {
  return 1 + LengthFieldSize(contentSize) + contentSize;
}

// Writes tag and length; returns where the content goes.
inline BYTE* WriteHeader(BYTE tag, std::size_t contentSize, BYTE* out) {
  *out++ = tag;
  if (contentSize < 0x80) {
    *out++ = static_cast<BYTE>(contentSize);
    return out;
  }
  const std::size_t octets = LengthFieldSize(contentSize) - 1;
  *out++ = static_cast<BYTE>(0x80 | octets);
  for (std::size_t i = octets; i-- > 0;) *out++ = static_cast<BYTE>(contentSize >> (8 * i));
  return out;
}

// Reads the length field behind the tag octet at the front of `in` and sets `*content`. Any length
// form but the indefinite one is taken. False where the field or the content is not all there.
inline bool ReadContent(Bytes in, Bytes* content) {
  if (in.size < 2) return false;
  std::uint64_t size = in.data[1];
  std::size_t position = 2;
  if (size >= 0x80) {
    const std::size_t octets = size & 0x7F;
    if (octets == 0 || octets > 8 || octets > in.size - position) return false;
    size = 0;
    for (std::size_t i = 0; i < octets; ++i) size = size << 8 | in.data[position++];
  }
  if (size > in.size - position) return false;
  *content = {in.data + position, static_cast<std::size_t>(size)};
  return true;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_DER_H_
