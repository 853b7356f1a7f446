#include "strict/constraints/findings.h"

#include <algorithm>

namespace Ortholan::strict {

void Findings::Add(const ortholan_finding& finding) {
  const bool refuses = finding.verdict == ORTHOLAN_VERDICT_NO;
  verdict_ = refuses || verdict_ == Verdict::kNo ? Verdict::kNo : Verdict::kCannotTell;
  const size_t place = refuses ? refusals_ : count_;
  if (place >= room_) return;
  // The last of those that cannot be told gives way.
  count_ = std::min(count_ + 1, room_);
  std::move_backward(out_ + place, out_ + count_ - 1, out_ + count_);
  out_[place] = finding;
  refusals_ += refuses ? 1 : 0;
}

}  // namespace Ortholan::strict
