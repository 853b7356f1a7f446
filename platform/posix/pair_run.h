// Four characters of two UTF-8 bytes each, such as Greek and Cyrillic letters, converted at once:
// lanes of 16 bits in one word, the first character in the lowest.

#ifndef ORTHOLAN_PLATFORM_POSIX_PAIR_RUN_H_
#define ORTHOLAN_PLATFORM_POSIX_PAIR_RUN_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>

namespace Ortholan::posix {

inline constexpr std::size_t kPairRun = 4;

constexpr std::uint64_t EachLane(std::uint64_t lane) { return lane * 0x0001000100010001; }

// Compilers make one load and one store of these.
inline std::uint64_t LoadLanes(const BYTE* bytes) {
  const auto at = [bytes](unsigned i) { return static_cast<std::uint64_t>(bytes[i]) << (8 * i); };
  return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);
}
inline void StoreLanes(std::uint64_t lanes, BYTE* bytes) {
  for (unsigned i = 0; i < 8; ++i) bytes[i] = static_cast<BYTE>(lanes >> (8 * i));
}

// Whether every lane is at least `least`; the top bits of the lanes are clear.
constexpr bool AllReach(std::uint64_t lanes, std::uint64_t least) {
  return ((lanes + EachLane(0x8000 - least)) & EachLane(0x8000)) == EachLane(0x8000);
}

// Two bytes a lane, the lead lowest. A lead is C2 to DF, a follower 80 to BF.
constexpr bool ArePairs(std::uint64_t pairs) {
  return (pairs & EachLane(0xC0E0)) == EachLane(0x80C0) && AllReach(pairs & EachLane(0x1F), 2);
}
constexpr std::uint64_t UnitsOfPairs(std::uint64_t pairs) {
  return (pairs & EachLane(0x1F)) << 6 | (pairs >> 8 & EachLane(0x3F));
}

// A unit a lane: U+0080 to U+07FF.
constexpr bool ArePairUnits(std::uint64_t units) {
  return (units & EachLane(0xF800)) == 0 && AllReach(units, 0x80);
}
constexpr std::uint64_t PairsOfUnits(std::uint64_t units) {
  return EachLane(0x80C0) | (units >> 6 & EachLane(0x1F)) | (units & EachLane(0x3F)) << 8;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_PAIR_RUN_H_
