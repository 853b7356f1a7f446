#include "strict/names/shown_characters.h"

#include <algorithm>
#include <iterator>

namespace Ortholan::strict {
namespace {

// Ascending; a run of shown characters begins at every even place and ends before the next.
constexpr uint32_t kEdges[] = {
#include "strict/names/shown_edges.inc"
};

}  // namespace

bool IsShown(uint32_t scalar) {
  // Latin, Greek and Cyrillic letters without a gap, and the Han and Hangul blocks.
  if (scalar - 0x20 < 0x5F || scalar - 0x3A3 < 0xE0 || scalar - 0x4E00 < 0x5200) return true;
  const uint32_t* const next = std::upper_bound(std::begin(kEdges), std::end(kEdges), scalar);
  return (next - kEdges) % 2 == 1;
}

}  // namespace Ortholan::strict
