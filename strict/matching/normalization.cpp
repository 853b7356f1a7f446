#include "strict/matching/normalization.h"

#include <algorithm>

#include "strict/matching/preparation_tables.h"

namespace Ortholan::strict {
namespace {

using Point = Segment::Point;

// Syllables of Hangul and the letters that they consist of (Unicode 3.2, 3.11).
constexpr uint32_t kSyllables = 0xAC00;
constexpr uint32_t kLeads = 0x1100;
constexpr uint32_t kVowels = 0x1161;
constexpr uint32_t kTrails = 0x11A7;  // one before the first
constexpr uint32_t kLeadCount = 19;
constexpr uint32_t kVowelCount = 21;
constexpr uint32_t kTrailCount = 28;
constexpr uint32_t kSyllableCount = kLeadCount * kVowelCount * kTrailCount;

// The two characters that a precomposed one stands for; false where it stands for itself.
bool Split(uint32_t scalar, uint32_t* first, uint32_t* second) {
  if (scalar - kSyllables < kSyllableCount) {
    const uint32_t index = scalar - kSyllables;
    const uint32_t trail = index % kTrailCount;
    *first = trail != 0 ? scalar - trail : kLeads + index / (kVowelCount * kTrailCount);
    *second = trail != 0 ? kTrails + trail : kVowels + index / kTrailCount % kVowelCount;
    return true;
  }
  const uint16_t* const end = kByComposite + kPairCount;
  const uint16_t* const found =
      std::lower_bound(kByComposite, end, scalar,
                       [](uint16_t pair, uint32_t sought) { return kComposites[pair] < sought; });
  if (found == end || kComposites[*found] != scalar) return false;
  *first = kPairs[*found] >> 16;
  *second = kPairs[*found] & 0xFFFF;
  return true;
}

// The character that two are joined to, or 0.
uint32_t Join(uint32_t first, uint32_t second) {
  if (first - kLeads < kLeadCount && second - kVowels < kVowelCount) {
    return kSyllables + ((first - kLeads) * kVowelCount + (second - kVowels)) * kTrailCount;
  }
  if (first - kSyllables < kSyllableCount && (first - kSyllables) % kTrailCount == 0 &&
      second - kTrails - 1 < kTrailCount - 1) {
    return first + (second - kTrails);
  }
  if (first > 0xFFFF || second > 0xFFFF) return 0;
  const uint32_t sought = first << 16 | second;
  const uint32_t* const end = kPairs + kPairCount;
  const uint32_t* const found = std::lower_bound(kPairs, end, sought);
  return found != end && *found == sought ? kComposites[found - kPairs] : 0;
}

Point Classified(uint32_t scalar) {
  const uint16_t entry = EntryOf(scalar);
  if (entry < kFirstClass || entry >= kFirstMapping) return {scalar, 0, false};
  const uint16_t row = kClasses[entry - kFirstClass];
  return {scalar, static_cast<uint8_t>(row & 0xFF), row >> 8 != 0};
}

bool PrecedesByClass(const Point& a, const Point& b) {
  return a.combining_class < b.combining_class;
}

void SortRun(Point* first, Point* last) {
  // Few are sorted by insertion: std::stable_sort asks for memory first.
  if (static_cast<size_t>(last - first) > Segment::kShortRun) {
    std::stable_sort(first, last, PrecedesByClass);
    return;
  }
  for (Point* at = first; at != last; ++at) {
    std::rotate(std::upper_bound(first, at, *at, PrecedesByClass), at, at + 1);
  }
}

}  // namespace

void Segment::Add(uint32_t scalar) {
  // A precomposed character stands for one character and a few marks, taken off from behind.
  Point marks[4];
  size_t count = 0;
  for (uint32_t second; Split(scalar, &scalar, &second);) marks[count++] = Classified(second);
  points_.push_back(Classified(scalar));
  while (count != 0) points_.push_back(marks[--count]);
}

void Segment::Reorder() {
  Point* const end = points_.end();
  for (Point* at = points_.begin(); at != end;) {
    Point* const first = at;
    while (at != end && at->combining_class != 0) ++at;
    SortRun(first, at);
    if (at != end) ++at;
  }
}

void Segment::Compose() {
  Reorder();
  Point* starter = nullptr;
  Point* out = points_.begin();
  for (const Point& point : points_) {
    // A mark reaches its character over marks of lower classes, any other one only as a neighbour.
    const bool adjacent = starter != nullptr && out == starter + 1;
    const bool reaches =
        adjacent || (starter != nullptr && out[-1].combining_class < point.combining_class);
    const uint32_t joined = reaches ? Join(starter->scalar, point.scalar) : 0;
    if (joined != 0) {
      starter->scalar = joined;
      continue;
    }
    if (point.combining_class == 0) starter = out;
    *out++ = point;
  }
  points_.Truncate(static_cast<size_t>(out - points_.begin()));
}

}  // namespace Ortholan::strict
