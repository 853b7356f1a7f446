// Four characters of two UTF-8 bytes each, such as Greek and Cyrillic letters, converted at once.

#ifndef ORTHOLAN_BYTES_PAIR_RUN_H_
#define ORTHOLAN_BYTES_PAIR_RUN_H_

#include <cstddef>
#include <cstdint>

#include "bytes/lanes.h"

namespace Ortholan {

inline constexpr size_t kPairRunBytes = 2 * kLanes;

// Two bytes a lane, the lead lowest. A lead is C2 to DF, a follower 80 to BF.
constexpr bool ArePairs(uint64_t pairs) {
  return (pairs & EachLane(0xC0E0)) == EachLane(0x80C0) && AllReach(pairs & EachLane(0x1F), 2);
}
constexpr uint64_t UnitsOfPairs(uint64_t pairs) {
  return (pairs & EachLane(0x1F)) << 6 | (pairs >> 8 & EachLane(0x3F));
}

// A unit a lane: U+0080 to U+07FF.
constexpr bool ArePairUnits(uint64_t units) {
  return (units & EachLane(0xF800)) == 0 && AllReach(units, 0x80);
}
constexpr uint64_t PairsOfUnits(uint64_t units) {
  return EachLane(0x80C0) | (units >> 6 & EachLane(0x1F)) | (units & EachLane(0x3F)) << 8;
}

// False, with nothing read, where the eight bytes are no such characters.
inline bool ReadPairRun(const uint8_t* text, uint64_t* units) {
  const uint64_t pairs = LoadLanes(text);
  if (!ArePairs(pairs)) return false;
  *units = UnitsOfPairs(pairs);
  return true;
}
inline void WritePairRun(uint64_t units, uint8_t* out) { StoreLanes(PairsOfUnits(units), out); }

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_PAIR_RUN_H_
