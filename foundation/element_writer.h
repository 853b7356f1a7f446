// Identifier and length octets written straight into a buffer that was sized beforehand.
#ifndef ORTHOLAN_FOUNDATION_ELEMENT_WRITER_H_
#define ORTHOLAN_FOUNDATION_ELEMENT_WRITER_H_

#include <cstdint>

#include "foundation/byte_view.h"
#include "foundation/element_header.h"

namespace Ortholan {

constexpr BYTE kSequenceOctet = kConstructed | kTagSequence;
constexpr BYTE kSetOctet = kConstructed | kTagSet;

// Octets of the length field: minimal, definite (X.690 10.1).
constexpr size_t LengthSize(uint64_t length) {
  if (length < kLongForm) return 1;
  size_t octets = 2;
  while ((length >>= 8) != 0) ++octets;
  return octets;
}

// Octets of an element with a one-octet identifier.
constexpr uint64_t ElementSize(uint64_t content) { return 1 + LengthSize(content) + content; }

inline BYTE* WriteLength(BYTE* out, uint64_t length) {
  if (length < kLongForm) {
    *out++ = static_cast<BYTE>(length);
    return out;
  }
  const size_t octets = LengthSize(length) - 1;
  *out++ = static_cast<BYTE>(kLongForm | octets);
  for (size_t i = octets; i-- != 0;) *out++ = static_cast<BYTE>(length >> (8 * i));
  return out;
}

inline BYTE* WriteHeader(BYTE* out, BYTE identifier, uint64_t length) {
  *out++ = identifier;
  return WriteLength(out, length);
}

inline BYTE* WriteBytes(BYTE* out, ByteView bytes) {
  if (!bytes.empty()) std::memcpy(out, bytes.data, bytes.size);
  return out + bytes.size;
}

// Identifier octets of any tag number: one, or 1F and base-128 groups.
size_t IdentifierSize(DWORD tag);
BYTE* WriteIdentifier(BYTE* out, BYTE classAndForm, DWORD tag);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_ELEMENT_WRITER_H_
