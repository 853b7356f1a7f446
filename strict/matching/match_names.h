// Whether names are the same and whether one is within the subtree of another (RFC 5280 7.1).
//
//   const Match match = MatchNames(issuer, subject, MatchRule::kRfc5280);
//   if (match.verdict != Verdict::kYes) ...  // match.reason says why
#ifndef ORTHOLAN_STRICT_MATCHING_MATCH_NAMES_H_
#define ORTHOLAN_STRICT_MATCHING_MATCH_NAMES_H_

#include "strict/der/verdict.h"
#include "strict/matching/match_rule.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {

inline constexpr size_t kNoPlace = ORTHOLAN_NO_PLACE;

// A verdict with its reason: in the public form, but for names that could not be read.
using Match = ortholan_match;

// A match without places.
Match MakeMatch(Verdict verdict, ortholan_reason reason);

Match MatchNames(const NameView& first, const NameView& second, MatchRule rule,
                 RdnOrder order = RdnOrder::kAsWritten);

// Whether the name begins with the RDNs of the subtree.
Match MatchWithin(const NameView& subtree, const NameView& name, MatchRule rule);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_MATCH_NAMES_H_
