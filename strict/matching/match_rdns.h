// Whether two RDNs are the same: as many attributes, and each of one has its counterpart in the
// other, none of them twice (RFC 5280 7.1).
#ifndef ORTHOLAN_STRICT_MATCHING_MATCH_RDNS_H_
#define ORTHOLAN_STRICT_MATCHING_MATCH_RDNS_H_

#include "strict/matching/value_form.h"

namespace Ortholan::strict {

struct RdnView;

struct RdnComparison {
  Comparison found;
  // Which attributes it is about, counted in their RDNs.
  size_t first = 0;
  size_t second = 0;
};

RdnComparison CompareRdns(const RdnView& a, const RdnView& b, MatchRule rule);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_MATCH_RDNS_H_
