#include "strict/constraints/subtree_set.h"

#include "strict/constraints/name_constraints_view.h"
#include "strict/constraints/subtree_index.h"

namespace Ortholan::strict {
namespace {

// Which of two answers says more.
constexpr int Weight(Holding holding) {
  constexpr int kWeights[] = {0, 2, 3, 1};  // kOutside, kOverlap, kInside, kUnknown
  return kWeights[static_cast<size_t>(holding)];
}

}  // namespace

SubtreeSet::SubtreeSet() = default;
SubtreeSet::~SubtreeSet() = default;

bool SubtreeSet::Read(ByteView list, Refusal* refusal) {
  SubtreeReader reader(list);
  Subtree subtree;
  for (GeneralNameView base; reader.Next(&base);) {
    if (!Subtree::Read(base, &subtree, refusal)) return false;
    forms_.Add(subtree.form);
    subtrees_.push_back(subtree);
  }
  if (subtrees_.size() > kShort) {
    index_ = std::make_unique<SubtreeIndex>(subtrees_.begin(), subtrees_.end());
  }
  return true;
}

size_t SubtreeSet::Count(NameForm form, const Subtree** first) const {
  size_t count = 0;
  for (const Subtree& subtree : subtrees_) {
    if (subtree.form == form && count++ == 0) *first = &subtree;
  }
  return count;
}

HoldingOfList SubtreeSet::Find(const ConstrainedName& name, Budget* budget) const {
  HoldingOfList found;
  if (index_ != nullptr && index_->Find(name, budget, &found.holding, &found.subtree)) return found;
  found = {};
  for (const Subtree& subtree : subtrees_) {
    if (subtree.form != name.form) continue;
    if (!budget->Take()) return {Holding::kUnknown, nullptr, ORTHOLAN_REASON_BUDGET};
    ortholan_reason reason = ORTHOLAN_REASON_NONE;
    const Holding holding = Hold(subtree, name, &reason);
    if (holding == Holding::kOutside) continue;
    if (Weight(holding) > Weight(found.holding)) found = {holding, &subtree, reason};
    if (holding == Holding::kInside) break;
  }
  return found;
}

}  // namespace Ortholan::strict
