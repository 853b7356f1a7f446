// The content of an INTEGER (X.690 8.3): two's complement, the most significant octet first, in as
// few octets as hold the number and its sign.
//
//   uint8_t octets[kMaxIntegerOctets];
//   const size_t size = WriteInteger(-129, octets);   // FF 7F
#ifndef ORTHOLAN_STRICT_DER_INTEGER_H_
#define ORTHOLAN_STRICT_DER_INTEGER_H_

#include "bytes/byte_view.h"

namespace Ortholan::strict {

constexpr size_t kMaxIntegerOctets = sizeof(int64_t);  // of what WriteInteger writes

// Whether the content is one, without an octet too many in front (8.3.2).
inline bool IsMinimalInteger(ByteView content) {
  if (content.size < 2) return !content.empty();
  return content[0] != (content[1] >= 0x80 ? 0xFF : 0x00);
}

// The number of a content of one to eight octets.
inline int64_t ReadInteger(ByteView content) {
  uint64_t number = content[0] >= 0x80 ? UINT64_MAX : 0;
  for (const uint8_t octet : content) number = number << 8 | octet;
  return static_cast<int64_t>(number);
}

// Writes the content to the front of `octets` and tells its size.
inline size_t WriteInteger(int64_t number, uint8_t (&octets)[kMaxIntegerOctets]) {
  for (size_t i = 0; i < kMaxIntegerOctets; ++i) {
    octets[i] = static_cast<uint8_t>(static_cast<uint64_t>(number) >> (56 - 8 * i));
  }
  ByteView content(octets, kMaxIntegerOctets);
  while (!IsMinimalInteger(content)) content = content.From(1);
  std::memmove(octets, content.data, content.size);
  return content.size;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_INTEGER_H_
