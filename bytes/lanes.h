// Four UTF-16 units in one word, the first in the lowest 16 bits: runs of characters are converted
// that many at a time.

#ifndef ORTHOLAN_BYTES_LANES_H_
#define ORTHOLAN_BYTES_LANES_H_

#include <cstddef>
#include <cstdint>

namespace Ortholan {

inline constexpr size_t kLanes = 4;

constexpr uint64_t EachLane(uint64_t lane) { return lane * 0x0001000100010001; }

// Whether every lane is at least `least`; the top bits of the lanes are clear.
constexpr bool AllReach(uint64_t lanes, uint64_t least) {
  return ((lanes + EachLane(0x8000 - least)) & EachLane(0x8000)) == EachLane(0x8000);
}

// Compilers make one load and one store of these.
inline uint64_t LoadLanes(const uint8_t* bytes) {
  const auto at = [bytes](unsigned i) { return static_cast<uint64_t>(bytes[i]) << (8 * i); };
  return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);
}
inline void StoreLanes(uint64_t lanes, uint8_t* bytes) {
  for (unsigned i = 0; i < 8; ++i) bytes[i] = static_cast<uint8_t>(lanes >> (8 * i));
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_LANES_H_
