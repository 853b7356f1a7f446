// Four characters of three UTF-8 bytes each, such as Chinese, Japanese and Korean ones, converted
// at once, two in a word: 24 bits a character, the first in the lowest.

#ifndef ORTHOLAN_PLATFORM_POSIX_TRIPLE_RUN_H_
#define ORTHOLAN_PLATFORM_POSIX_TRIPLE_RUN_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>

#include "platform/posix/lanes.h"

namespace Ortholan::posix {

inline constexpr std::size_t kTripleRunBytes = 3 * kLanes;

constexpr std::uint64_t EachTriple(std::uint64_t bits) { return bits << 24 | bits; }

// A lead is E0 to EF, the followers are 80 to BF.
constexpr bool AreTriples(std::uint64_t two) {
  return (two & EachTriple(0xC0C0F0)) == EachTriple(0x8080E0);
}
// Two lanes, the others are clear.
constexpr std::uint64_t UnitsOfTriples(std::uint64_t two) {
  const std::uint64_t spread = (two & EachTriple(0x0F)) << 12 | (two >> 2 & EachTriple(0xFC0)) |
                               (two >> 16 & EachTriple(0x3F));
  return (spread & 0xFFFF) | (spread >> 8 & 0xFFFF0000);
}
constexpr std::uint64_t TriplesOfUnits(std::uint64_t units) {
  const std::uint64_t spread = (units & 0xFFFF) | (units & 0xFFFF0000) << 8;
  return EachTriple(0x8080E0) | (spread >> 12 & EachTriple(0x0F)) |
         (spread << 2 & EachTriple(0x3F00)) | (spread << 16 & EachTriple(0x3F0000));
}

// A unit a lane: U+0800 to U+FFFF without the surrogates.
constexpr bool AreTripleUnits(std::uint64_t units) {
  const std::uint64_t tops = units >> 11 & EachLane(0x1F);
  return AllReach(tops, 1) && AllReach(tops ^ EachLane(0xD800 >> 11), 1);
}

// False, with nothing read, where the twelve bytes are no such characters.
inline bool ReadTripleRun(const BYTE* text, std::uint64_t* units) {
  const std::uint64_t first = LoadLanes(text);
  const std::uint64_t second = LoadLanes(text + 4) >> 16;
  if (!AreTriples(first) || !AreTriples(second)) return false;
  *units = UnitsOfTriples(first) | UnitsOfTriples(second) << 32;
  return AreTripleUnits(*units);
}
inline void WriteTripleRun(std::uint64_t units, BYTE* out) {
  const std::uint64_t first = TriplesOfUnits(units & 0xFFFFFFFF);
  const std::uint64_t second = TriplesOfUnits(units >> 32);
  StoreLanes(first | second << 48, out);
  for (unsigned i = 0; i < 4; ++i) out[8 + i] = static_cast<BYTE>(second >> (16 + 8 * i));
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_TRIPLE_RUN_H_
