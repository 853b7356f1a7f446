// Keys: octets that are the same exactly for names that are the same under a rule, for maps, sets
// and databases. The key of a subtree is the beginning of the keys of all names within it, and of
// no others, unless the order of RDNs does not matter.
//
//   one octet for rule and order, then the RDNs (rdn_forms.h)
//
// What stands in a key does not change within a major version.
#ifndef ORTHOLAN_STRICT_MATCHING_MATCH_KEY_H_
#define ORTHOLAN_STRICT_MATCHING_MATCH_KEY_H_

#include "strict/matching/match_rule.h"
#include "strict/matching/preparation.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {

// Appends the key. Names of which it cannot be told whether they are the same have different keys.
void PutMatchKey(const NameView& name, MatchRule rule, RdnOrder order, PreparedText* out);

// A hash of octets, the same on every platform.
uint64_t HashOf(ByteView octets);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_MATCH_KEY_H_
