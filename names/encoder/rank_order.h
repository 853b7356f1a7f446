// The order of sorted RDNs: by falling rank of their types (attribute_table.h), those of one rank
// in the order given.
#ifndef ORTHOLAN_NAMES_ENCODER_RANK_ORDER_H_
#define ORTHOLAN_NAMES_ENCODER_RANK_ORDER_H_

#include <ortholan/rdn.h>

#include <algorithm>
#include <cstdint>
#include <list>
#include <numeric>
#include <vector>

#include "names/attribute_table.h"

namespace Ortholan {

// Where RDNs go that keep their order: behind one another.
class OnePlace {
 public:
  static constexpr bool kSorted = false;

  void Add(const AttributeRow&, uint64_t octets) { octets_ += octets; }
  uint64_t Total() const { return octets_; }
  void Lay(BYTE* out) { next_ = out; }
  BYTE*& Next(const AttributeRow&) { return next_; }

 private:
  uint64_t octets_ = 0;
  BYTE* next_ = nullptr;
};

constexpr int HighestRank() {
  int highest = 0;
  for (const AttributeRow& row : kAttributes) highest = std::max(highest, row.rank);
  return highest;
}

// Where sorted RDNs go. Ranks are few, and knowing the octets of each makes every RDN's place known
// without moving an element.
class RankPlaces {
 public:
  static constexpr bool kSorted = true;

  // Adds an RDN of so many octets.
  void Add(const AttributeRow& row, uint64_t octets) { octets_[PlaceOf(row)] += octets; }
  uint64_t Total() const { return std::accumulate(octets_, octets_ + kCount, uint64_t{0}); }
  // Sets every place to its first position, the first one at `out`.
  void Lay(BYTE* out) {
    for (size_t place = 0; place < kCount; out += octets_[place++]) next_[place] = out;
  }
  // The position behind the RDNs of the row's rank that were written.
  BYTE*& Next(const AttributeRow& row) { return next_[PlaceOf(row)]; }

 private:
  static constexpr size_t kCount = static_cast<size_t>(HighestRank()) + 1;

  static size_t PlaceOf(const AttributeRow& row) {
    return kCount - 1 - static_cast<size_t>(row.rank);
  }

  uint64_t octets_[kCount] = {};
  BYTE* next_[kCount];
};

// Structured RDNs, of any type, by the same rule.
inline std::vector<const SimpleRDN*> ByFallingRank(const std::list<SimpleRDN>& rdns) {
  std::vector<const SimpleRDN*> order;
  order.reserve(rdns.size());
  for (const SimpleRDN& rdn : rdns) order.push_back(&rdn);
  std::stable_sort(order.begin(), order.end(),
                   [](const SimpleRDN* a, const SimpleRDN* b) { return *a > *b; });
  return order;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_RANK_ORDER_H_
