// OBJECT IDENTIFIERs: content octets checked, and to and from dotted text, arcs of any size (X.690
// 8.19; X.660: 2.999 is 2.999).
#ifndef ORTHOLAN_STRICT_DER_IDENTIFIER_H_
#define ORTHOLAN_STRICT_DER_IDENTIFIER_H_

#include <string_view>

#include "bytes/byte_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

// Longest content that is turned into text or made from it: the work grows with the square of an
// arc's size.
constexpr size_t kMaxIdentifierOctets = 4096;

// Whether `content` is the content of an OBJECT IDENTIFIER in DER.
inline bool IsIdentifier(ByteView content) {
  // An octet an arc: the types of X.520.
  if (content.size == 3 && ((content[0] | content[1] | content[2]) & 0x80) == 0) return true;
  if (content.empty() || (content[content.size - 1] & 0x80) != 0) return false;
  bool starts = true;
  for (const uint8_t octet : content) {
    if (starts && octet == 0x80) return false;
    starts = (octet & 0x80) == 0;
  }
  return true;
}

// Puts the dotted text of checked content; false, with nothing promised of `out`, for content above
// kMaxIdentifierOctets.
bool PutIdentifierText(ByteView content, Output* out);

// Puts the content octets of dotted text; false where it names no identifier or one above
// kMaxIdentifierOctets.
bool PutIdentifier(std::string_view text, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_IDENTIFIER_H_
