// What RFC 4518 makes of single code points, and how canonical normalisation takes them apart and
// joins them. Made by scripts/make_preparation_tables.py from the tables of RFC 3454 and Unicode
// 3.2; 53 KiB.
#ifndef ORTHOLAN_STRICT_MATCHING_PREPARATION_TABLES_H_
#define ORTHOLAN_STRICT_MATCHING_PREPARATION_TABLES_H_

#include <cstddef>
#include <cstdint>

namespace Ortholan::strict {

// What becomes of a code point by mapping and compatibility normalisation: one of these, or from
// kFirstClass on itself, with a class of kClasses, or from kFirstMapping on a text of kMappings.
constexpr uint16_t kPlain = 0;  // itself, and what precedes it stays as it is
constexpr uint16_t kUndefined = 1;
constexpr uint16_t kNothing = 2;
constexpr uint16_t kBlank = 3;
constexpr uint16_t kFirstClass = 4;
constexpr uint16_t kFirstMapping = 64;

// Code points from here on have no entry.
constexpr uint32_t kTableLimit = 0x30000;

extern const uint8_t kBlocks[];    // by the code point without its low six bits
extern const uint16_t kLeaves[];   // entries, 64 for each block
extern const uint16_t kClasses[];  // combining class; above it whether it is a mark

// UTF-8 behind an octet with its size and two bits: the first character may join what precedes it;
// a blank is in it, or more than twice the octets that the code point has itself.
extern const uint8_t kMappings[];
constexpr uint8_t kJoinsBefore = 0x80;
constexpr uint8_t kNeedsCare = 0x40;
constexpr uint8_t kMappingSize = 0x3F;
// As many octets stand behind the head of every mapping, whatever its size.
constexpr size_t kShortMapping = 8;

// What becomes of the code points from kPairsFrom to kPairsTo: two octets of UTF-8 that leave what
// precedes as it is, the first in the high half, or 0 where it is anything else.
constexpr uint32_t kPairsFrom = 0x100;
constexpr uint32_t kPairsTo = 0x800;
extern const uint16_t kFoldedPairs[];

// Two characters (the first in the high half) that are joined to one, in ascending order; and the
// same pairs by the character that they are joined to. Hangul is computed.
constexpr size_t kPairCount = 917;
extern const uint32_t kPairs[];
extern const uint16_t kComposites[];
extern const uint16_t kByComposite[];

inline uint16_t EntryOf(uint32_t point) {
  if (point < kTableLimit) return kLeaves[size_t{kBlocks[point >> 6]} << 6 | (point & 0x3F)];
  // Tags are dropped; the rest is unassigned or private.
  return point == 0xE0001 || (point >= 0xE0020 && point < 0xE0080) ? kNothing : kUndefined;
}

// Whether what precedes stays as it is, whatever follows.
inline bool StandsAlone(uint16_t entry) {
  if (entry >= kFirstMapping) return (kMappings[entry - kFirstMapping] & kJoinsBefore) == 0;
  return entry < kFirstClass;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_PREPARATION_TABLES_H_
