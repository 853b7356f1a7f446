// Chains and names held against name constraints.
#include <ortholan/strict/constraints.h>

#include <new>

#include "strict/constraints/finding_text.h"
#include "strict/constraints/permits.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

// Runs `judge` with budget and findings.
template <class Judge>
ortholan_reason Ask(const ortholan_permit_options* options, ortholan_verdict* verdict,
                    ortholan_finding* out, size_t room, size_t* count, Judge judge) {
  const bool has_budget = options != nullptr && options->budget != 0;
  Budget budget(has_budget ? options->budget : ORTHOLAN_DEFAULT_BUDGET);
  Findings findings(out, room);
  try {
    judge(&budget, &findings);
  } catch (const std::bad_alloc&) {
    if (count != nullptr) *count = 0;
    return ORTHOLAN_REASON_MEMORY;
  }
  *verdict = static_cast<ortholan_verdict>(findings.verdict());
  if (count != nullptr) *count = findings.count();
  return ORTHOLAN_REASON_NONE;
}

bool ClearVerdict(ortholan_verdict* verdict, size_t* count) {
  if (count != nullptr) *count = 0;
  if (verdict == nullptr) return false;
  *verdict = ORTHOLAN_VERDICT_CANNOT_TELL;
  return true;
}

}  // namespace

ortholan_reason ortholan_permits(const ortholan_octets* chain, size_t chain_size,
                                 const ortholan_permit_options* options, ortholan_verdict* verdict,
                                 ortholan_finding* findings, size_t room, size_t* count) {
  if (!ClearVerdict(verdict, count) || chain == nullptr || chain_size == 0 ||
      (findings == nullptr && room != 0)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  for (size_t i = 0; i < chain_size; ++i) {
    if (!IsGiven(chain[i])) return ORTHOLAN_REASON_ARGUMENT;
  }
  return Ask(options, verdict, findings, room, count, [=](Budget* budget, Findings* found) {
    JudgeChain(chain, chain_size, budget, found);
  });
}

ortholan_reason ortholan_permits_names(ortholan_octets constraints, ortholan_octets subject,
                                       ortholan_octets alternative_names,
                                       const ortholan_permit_options* options,
                                       ortholan_verdict* verdict, ortholan_finding* findings,
                                       size_t room, size_t* count) {
  if (!ClearVerdict(verdict, count) || !IsGiven(constraints) || !IsGiven(subject) ||
      !IsGiven(alternative_names) || (findings == nullptr && room != 0)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  return Ask(options, verdict, findings, room, count, [=](Budget* budget, Findings* found) {
    JudgeNames(View(constraints), View(subject), View(alternative_names), budget, found);
  });
}

ortholan_reason ortholan_finding_sentence(const ortholan_finding* finding, char* out, size_t room,
                                          size_t* size) {
  if (finding == nullptr || (out == nullptr && room != 0)) return ORTHOLAN_REASON_ARGUMENT;
  Output text(out, room);
  try {
    PutFinding(*finding, &text);
  } catch (const std::bad_alloc&) {
    return ORTHOLAN_REASON_MEMORY;
  }
  return Finish(text, size);
}
