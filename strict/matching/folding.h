// Case and white space of single octets, where no table of Unicode is needed.
//
//   MatchFolded(AsBytes("Foo  Bar ", 9), AsBytes("foo bar", 7), kPreparedAscii)  // true
#ifndef ORTHOLAN_STRICT_MATCHING_FOLDING_H_
#define ORTHOLAN_STRICT_MATCHING_FOLDING_H_

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "bytes/small_buffer.h"

namespace Ortholan::strict {

// What becomes of each octet: itself, its lower case, a blank, or nothing.
struct Folding {
  static constexpr uint16_t kDropped = 0x100;
  uint16_t to[256];
};

// Space, tabulations, line ends and form feed.
constexpr bool IsAsciiBlank(uint8_t octet) {
  return octet == ' ' || static_cast<uint8_t>(octet - '\t') < 5;
}

constexpr Folding MakeFolding(bool blanks_fold, bool controls_drop) {
  Folding folding = {};
  for (int at = 0; at < 256; ++at) {
    const auto octet = static_cast<uint8_t>(at);
    const bool drops = controls_drop && (octet < ' ' || octet == 0x7F);
    folding.to[at] = blanks_fold && IsAsciiBlank(octet) ? uint16_t{' '}
                     : drops                            ? Folding::kDropped
                                                        : uint16_t{ToAsciiLower(octet)};
  }
  return folding;
}

// What RFC 4518 makes of ASCII.
inline constexpr Folding kPreparedAscii = MakeFolding(true, true);
// ASCII case and white space alone.
inline constexpr Folding kCaseAndBlanks = MakeFolding(true, false);

// Whether two texts are the same once they are folded, blanks at the ends are gone and those
// between characters count as one.
bool MatchFolded(ByteView a, ByteView b, const Folding& folding);
// Appends the folded text, blanks at the ends gone and those between characters one.
void PutFolded(ByteView text, const Folding& folding, SmallBuffer<uint8_t, 512>* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_FOLDING_H_
