// The content of a BIT STRING (X.690 8.6 and 11.2): an octet with the number of bits at the end
// that are not used, and the octets of the bits.
//
//   IsBitString({03 A8})        // true: A8 without its last three bits, 10101
//   AreUnusedZero({03 A9})      // false: 1 where no bit is
//   AreNamedBits({02 A8})       // false: 101010, whose last bit says nothing where bits have names
#ifndef ORTHOLAN_STRICT_DER_BIT_STRING_H_
#define ORTHOLAN_STRICT_DER_BIT_STRING_H_

#include "bytes/byte_view.h"

namespace Ortholan::strict {

// 8.6.2
constexpr bool IsBitString(ByteView content) {
  return !content.empty() && content[0] <= 7 && (content.size > 1 || content[0] == 0);
}

// 11.2.1, of a content that is one.
constexpr bool AreUnusedZero(ByteView content) {
  return content.size == 1 || (content[content.size - 1] & ((1u << content[0]) - 1)) == 0;
}

// 11.2.2, of a content that is one: the last bit used is set, and the ones behind it are zeros.
constexpr bool AreNamedBits(ByteView content) {
  const unsigned unused = content[0];
  return content.size == 1 || (content[content.size - 1] & ((2u << unused) - 1)) == 1u << unused;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_BIT_STRING_H_
