// Case and white space of single octets, where no table of Unicode is needed.
//
//   MatchFolded(a, kPreparedAscii.printable, b, kPreparedAscii.any)  // "Foo  Bar ", "foo bar"
#ifndef ORTHOLAN_STRICT_MATCHING_FOLDING_H_
#define ORTHOLAN_STRICT_MATCHING_FOLDING_H_

#include "bytes/byte_view.h"
#include "bytes/small_buffer.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {

// What becomes of each octet: itself or its lower case, or one of the numbers above.
struct Folding {
  static constexpr uint16_t kBlank = 0x100;
  static constexpr uint16_t kDropped = 0x101;
  static constexpr uint16_t kForeign = 0x102;  // outside what the folding is for
  uint16_t to[256];
};

// Space, tabulations, line ends and form feed.
constexpr bool IsAsciiBlank(uint8_t octet) {
  return octet == ' ' || static_cast<uint8_t>(octet - '\t') < 5;
}

// Which octets a folding takes.
enum class Octets { kAll, kAscii, kPrintable };

constexpr Folding MakeFolding(Octets taken, bool drops_controls) {
  Folding folding = {};
  for (int at = 0; at < 256; ++at) {
    const auto octet = static_cast<uint8_t>(at);
    const bool takes =
        taken == Octets::kAll || (octet < 0x80 && taken == Octets::kAscii) || IsPrintable(octet);
    const bool drops = drops_controls && (octet < ' ' || octet == 0x7F);
    folding.to[at] = !takes                ? Folding::kForeign
                     : IsAsciiBlank(octet) ? Folding::kBlank
                     : drops               ? Folding::kDropped
                                           : uint16_t{ToAsciiLower(octet)};
  }
  return folding;
}

// ASCII case and white space alone.
inline constexpr Folding kCaseAndBlanks = MakeFolding(Octets::kAll, false);

// Foldings of text that is ASCII, by whether it has to be PrintableString.
struct AsciiFoldings {
  Folding any;
  Folding printable;
};
// What RFC 4518 makes of it.
inline constexpr AsciiFoldings kPreparedAscii = {MakeFolding(Octets::kAscii, true),
                                                 MakeFolding(Octets::kPrintable, true)};
inline constexpr AsciiFoldings kPlainAscii = {MakeFolding(Octets::kAscii, false),
                                              MakeFolding(Octets::kPrintable, false)};

// Whether two texts are the same once they are folded, blanks at the ends are gone and those
// between characters count as one. False as well where one has a foreign octet.
bool MatchFolded(ByteView a, const Folding& folding_a, ByteView b, const Folding& folding_b);
// Appends the folded text, blanks at the ends gone and those between characters one. No octet is
// foreign.
void PutFolded(ByteView text, const Folding& folding, SmallBuffer<uint8_t, 512>* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_FOLDING_H_
