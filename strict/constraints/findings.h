// Findings, and the verdict that follows from them.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_FINDINGS_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_FINDINGS_H_

#include <ortholan/strict/constraints.h>

#include "bytes/byte_view.h"
#include "strict/der/verdict.h"

namespace Ortholan::strict {

// Findings on their way into the caller's room: a refusal outweighs what cannot be told, so that
// the order in which they are found does not matter.
class Findings {
 public:
  Findings(ortholan_finding* out, size_t room) : out_(out), room_(room) {}

  void Add(const ortholan_finding& finding);
  // Nothing that is still to come changes the verdict or is asked for.
  bool IsSettled() const { return verdict_ == Verdict::kNo && room_ <= 1; }
  Verdict verdict() const { return verdict_; }
  size_t count() const { return count_; }

 private:
  ortholan_finding* out_;
  size_t room_;
  size_t count_ = 0;     // stored
  size_t refusals_ = 0;  // of them, which stand in front
  Verdict verdict_ = Verdict::kYes;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_FINDINGS_H_
