// May the authorities of a chain name what its certificates name? (RFC 5280 4.2.1.10, 6.1.3 b and
// c, 6.1.4 g)
//
//   Findings findings(out, room);
//   Budget budget(ORTHOLAN_DEFAULT_BUDGET);
//   JudgeChain(chain, chain_size, &budget, &findings);
//   if (findings.verdict() == Verdict::kYes) ...
//
// Each authority's lists are held against every certificate below it by themselves: being in the
// intersection of permitted sets is being in each of them.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_PERMITS_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_PERMITS_H_

#include "strict/constraints/budget.h"
#include "strict/constraints/findings.h"

namespace Ortholan::strict {

// Certificates in DER, from the leaf up to the authority whose constraints count first.
void JudgeChain(const ortholan_octets* chain, size_t chain_size, Budget* budget,
                Findings* findings);

// One certificate's names against one extension. `subject` is a Name, `alternatives` the value of a
// SubjectAltName extension; either may be without octets.
void JudgeNames(ByteView constraints, ByteView subject, ByteView alternatives, Budget* budget,
                Findings* findings);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_PERMITS_H_
