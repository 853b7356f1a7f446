// OBJECT IDENTIFIERs: content octets checked, and to and from dotted text, arcs of any size (X.690
// 8.19; X.660: 2.999 is 2.999).
#ifndef ORTHOLAN_STRICT_DER_OID_H_
#define ORTHOLAN_STRICT_DER_OID_H_

#include <cstring>
#include <string_view>

#include "bytes/byte_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

// Longest content that is turned into text or made from it: the work grows with the square of an
// arc's size.
constexpr size_t kMaxIdentifierOctets = 4096;

// Whether one of eight octets is 80, a group of zero with more behind it.
inline bool HasZeroGroup(const uint8_t* octets) {
  constexpr uint64_t kEach = 0x0101010101010101;
  uint64_t word;
  std::memcpy(&word, octets, sizeof word);
  word ^= 0x80 * kEach;
  return ((word - kEach) & ~word & (0x80 * kEach)) != 0;
}

// Whether each arc begins with another group than a zero.
inline bool AreArcsShort(ByteView content) {
  constexpr size_t kWord = sizeof(uint64_t);
  // Those of at most two words most often have no zero group at all.
  if (content.size >= kWord && content.size <= 2 * kWord && !HasZeroGroup(content.data) &&
      !HasZeroGroup(content.end() - kWord)) {
    return true;
  }
  bool starts = true;
  for (const uint8_t octet : content) {
    if (starts && octet == 0x80) return false;
    starts = (octet & 0x80) == 0;
  }
  return true;
}

// Whether `content` is the content of an OBJECT IDENTIFIER in DER.
inline bool IsIdentifier(ByteView content) {
  // An octet an arc: the types of X.520.
  if (content.size == 3 && ((content[0] | content[1] | content[2]) & 0x80) == 0) return true;
  return !content.empty() && (content[content.size - 1] & 0x80) == 0 && AreArcsShort(content);
}

// Puts the dotted text of checked content; false, with nothing promised of `out`, for content above
// kMaxIdentifierOctets.
bool PutIdentifierText(ByteView content, Output* out);

// Puts the content octets of dotted text; false where it names no identifier or one above
// kMaxIdentifierOctets.
bool PutIdentifier(std::string_view text, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_OID_H_
