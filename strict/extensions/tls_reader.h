// Structures in the presentation language of TLS inside an OCTET STRING (RFC 8446 3, RFC 6962 3.3):
// numbers of fixed size, and sizes of two octets in front of what varies.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_TLS_READER_H_
#define ORTHOLAN_STRICT_EXTENSIONS_TLS_READER_H_

#include "strict/extensions/shape_reader.h"

namespace Ortholan::strict {

// Octets of a size in front of a vector.
constexpr size_t kTlsSizeOctets = 2;

// A number of at most eight octets.
inline uint64_t TlsNumber(ByteView octets) {
  uint64_t number = 0;
  for (const uint8_t octet : octets) number = number << 8 | octet;
  return number;
}

// Reads one value that is the whole of `in`.
bool ReadTls(const Shape& shape, ByteView in, ShapeVisitor* visitor, Refusal* refusal);

// Takes the element at the front of a list that was read; `*bytes` are those behind its size.
bool ReadTlsElement(const Shape& shape, ByteView* list, ByteView* bytes, ShapeVisitor* visitor);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_TLS_READER_H_
