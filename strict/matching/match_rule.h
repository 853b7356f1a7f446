// By which rule names are compared. Each is told by its words in <ortholan/strict/matching.h>.
#ifndef ORTHOLAN_STRICT_MATCHING_MATCH_RULE_H_
#define ORTHOLAN_STRICT_MATCHING_MATCH_RULE_H_

#include <ortholan/strict/matching.h>

namespace Ortholan::strict {

enum class MatchRule : int32_t {
  kRfc5280 = ORTHOLAN_MATCH_RFC5280,
  kAsciiCase = ORTHOLAN_MATCH_ASCII_CASE,
  kOctets = ORTHOLAN_MATCH_OCTETS,
};

enum class RdnOrder : bool {
  kAsWritten,
  kAnyOrder,  // for lists that people write by hand
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_MATCH_RULE_H_
