// Reading single BER elements and writing DER ones, for the codecs. X.690, 8.1 and 10.1.

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

struct Element {
  BYTE tag = 0;
  Bytes content;
  std::size_t size = 0;  // of the whole element
};

// Measures the content of a constructed element of indefinite length, from its first octet to the
// end-of-contents pair, which does not count. False where that pair is missing. X.690 8.1.3.6.
bool MeasureIndefinite(Bytes in, std::size_t* size);

// Reads the element at the front of `in`, whose tag takes one octet. False where the length or the
// content is not all there.
inline bool ReadElement(Bytes in, Element* element) {
  if (in.size < 2) return false;
  element->tag = in.data[0];
  std::uint64_t size = in.data[1];
  std::size_t position = 2;
  std::size_t terminator = 0;
  if (size == 0x80) {
    std::size_t measured;
    const bool constructed = (element->tag & 0x20) != 0;
    if (!constructed || !MeasureIndefinite({in.data + 2, in.size - 2}, &measured)) return false;
    size = measured;
    terminator = 2;
  } else if (size > 0x80) {
    const std::size_t octets = size & 0x7F;
    if (octets > 8 || octets > in.size - position) return false;
    size = 0;
    for (std::size_t i = 0; i < octets; ++i) size = size << 8 | in.data[position++];
  }
  if (size > in.size - position) return false;
  element->content = {in.data + position, static_cast<std::size_t>(size)};
  element->size = position + element->content.size + terminator;
  return true;
}

// Reads the element at the front of `in`, which must have the tag. A last-error code; 0 for
// success.
inline DWORD ReadTagged(Bytes in, BYTE tag, Bytes* content) {
  if (in.size == 0) return CRYPT_E_ASN1_CORRUPT;
  if (in.data[0] != tag) return CRYPT_E_ASN1_BADTAG;
  Element element;
  if (!ReadElement(in, &element)) return CRYPT_E_ASN1_CORRUPT;
  *content = element.content;
  return ERROR_SUCCESS;
}

// Moves the element at the front of `*in` out of it. The same codes.
inline DWORD TakeElement(Bytes* in, Element* element) {
  if (!ReadElement(*in, element)) return CRYPT_E_ASN1_CORRUPT;
  *in = {in->data + element->size, in->size - element->size};
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_DER_H_
