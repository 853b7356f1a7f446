// Four characters of three UTF-8 bytes each, such as Chinese, Japanese and Korean ones, converted
// at once, two in a word: 24 bits a character, the first in the lowest.

#ifndef ORTHOLAN_BYTES_TRIPLE_RUN_H_
#define ORTHOLAN_BYTES_TRIPLE_RUN_H_

#include <cstddef>
#include <cstdint>

#include "bytes/lanes.h"

namespace Ortholan {

inline constexpr size_t kTripleRunBytes = 3 * kLanes;

constexpr uint64_t EachTriple(uint64_t bits) { return bits << 24 | bits; }

// A lead is E0 to EF, the followers are 80 to BF.
constexpr bool AreTriples(uint64_t two) {
  return (two & EachTriple(0xC0C0F0)) == EachTriple(0x8080E0);
}
// Two lanes, the others are clear.
constexpr uint64_t UnitsOfTriples(uint64_t two) {
  const uint64_t spread = (two & EachTriple(0x0F)) << 12 | (two >> 2 & EachTriple(0xFC0)) |
                          (two >> 16 & EachTriple(0x3F));
  return (spread & 0xFFFF) | (spread >> 8 & 0xFFFF0000);
}
constexpr uint64_t TriplesOfUnits(uint64_t units) {
  const uint64_t spread = (units & 0xFFFF) | (units & 0xFFFF0000) << 8;
  return EachTriple(0x8080E0) | (spread >> 12 & EachTriple(0x0F)) |
         (spread << 2 & EachTriple(0x3F00)) | (spread << 16 & EachTriple(0x3F0000));
}

// A unit a lane: U+0800 to U+FFFF without the surrogates.
constexpr bool AreTripleUnits(uint64_t units) {
  const uint64_t tops = units >> 11 & EachLane(0x1F);
  return AllReach(tops, 1) && AllReach(tops ^ EachLane(0xD800 >> 11), 1);
}

// False, with nothing read, where the twelve bytes are no such characters.
inline bool ReadTripleRun(const uint8_t* text, uint64_t* units) {
  const uint64_t first = LoadLanes(text);
  const uint64_t second = LoadLanes(text + 4) >> 16;
  if (!AreTriples(first) || !AreTriples(second)) return false;
  *units = UnitsOfTriples(first) | UnitsOfTriples(second) << 32;
  return AreTripleUnits(*units);
}
inline void WriteTripleRun(uint64_t units, uint8_t* out) {
  const uint64_t first = TriplesOfUnits(units & 0xFFFFFFFF);
  const uint64_t second = TriplesOfUnits(units >> 32);
  StoreLanes(first | second << 48, out);
  for (unsigned i = 0; i < 4; ++i) out[8 + i] = static_cast<uint8_t>(second >> (16 + 8 * i));
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_TRIPLE_RUN_H_
