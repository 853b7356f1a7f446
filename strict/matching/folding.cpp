#include "strict/matching/folding.h"

#include <algorithm>

namespace Ortholan::strict {
namespace {

bool IsSkipped(uint16_t folded) { return folded == Folding::kBlank || folded == Folding::kDropped; }

// Passes blanks and what is dropped.
struct Skipped {
  const uint8_t* at;
  bool blank;  // whether there was one
};
Skipped SkipBlanks(const uint8_t* at, const uint8_t* end, const Folding& folding) {
  bool blank = false;
  for (; at != end && IsSkipped(folding.to[*at]); ++at) blank |= folding.to[*at] == Folding::kBlank;
  return {at, blank};
}

// Octets at the front that become the same characters, none of them blank.
size_t SameRun(ByteView a, const Folding& folding_a, ByteView b, const Folding& folding_b) {
  const size_t most = std::min(a.size, b.size);
  size_t count = 0;
  for (; count != most; ++count) {
    const uint16_t octet = folding_a.to[a[count]];
    if (octet != folding_b.to[b[count]] || octet >= Folding::kBlank) break;
  }
  return count;
}

}  // namespace

bool MatchFolded(ByteView a, const Folding& folding_a, ByteView b, const Folding& folding_b) {
  const uint8_t* const end_a = a.end();
  const uint8_t* const end_b = b.end();
  const uint8_t* x = SkipBlanks(a.begin(), end_a, folding_a).at;
  const uint8_t* y = SkipBlanks(b.begin(), end_b, folding_b).at;
  while (x != end_a && y != end_b) {
    const size_t same = SameRun({x, static_cast<size_t>(end_a - x)}, folding_a,
                                {y, static_cast<size_t>(end_b - y)}, folding_b);
    x += same;
    y += same;
    const Skipped in_a = SkipBlanks(x, end_a, folding_a);
    const Skipped in_b = SkipBlanks(y, end_b, folding_b);
    const bool moved = in_a.at != x || in_b.at != y;
    x = in_a.at;
    y = in_b.at;
    // At an end blanks do not count.
    if (x != end_a && y != end_b && (!moved || in_a.blank != in_b.blank)) return false;
  }
  return SkipBlanks(x, end_a, folding_a).at == end_a && SkipBlanks(y, end_b, folding_b).at == end_b;
}

void PutFolded(ByteView text, const Folding& folding, SmallBuffer<uint8_t, 512>* out) {
  uint8_t* end = out->Extend(text.size);
  const uint8_t* at = SkipBlanks(text.begin(), text.end(), folding).at;
  while (at != text.end()) {
    *end++ = static_cast<uint8_t>(folding.to[*at++]);
    const Skipped skipped = SkipBlanks(at, text.end(), folding);
    at = skipped.at;
    if (skipped.blank && at != text.end()) *end++ = ' ';
  }
  out->Truncate(static_cast<size_t>(end - out->data()));
}

}  // namespace Ortholan::strict
