#include "strict/constraints/subtree_set.h"

#include "strict/constraints/constrained_name.h"
#include "strict/constraints/name_constraints_view.h"
#include "strict/constraints/subtree_index.h"
#include "strict/general_names/host.h"

namespace Ortholan::strict {
namespace {

constexpr int kWeights[] = {0, 2, 3, 1};  // kOutside, kOverlap, kInside, kUnknown

// Which of two answers says more.
constexpr int Weight(Holding holding) { return kWeights[static_cast<size_t>(holding)]; }

constexpr HoldingOfList kOverBudget = {Holding::kUnknown, nullptr, ORTHOLAN_REASON_BUDGET};

}  // namespace

SubtreeSet::SubtreeSet() = default;
SubtreeSet::~SubtreeSet() = default;

bool SubtreeSet::Read(ByteView list, Refusal* refusal) {
  SubtreeReader reader(list);
  for (GeneralNameView base; reader.Next(&base);) {
    Subtree* const subtree = subtrees_.Extend(1);
    if (!Subtree::Read(base, subtree, refusal)) return false;
    forms_.Add(subtree->form);
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

HoldingOfList SubtreeSet::FindByIndex(const ConstrainedName& name, Budget* budget) const {
  HoldingOfList found;
  if (index_->Find(name, budget, &found.holding, &found.subtree)) return found;
  return FindByWalk(name, budget);
}

// Most names and subtrees are hosts, of which nothing is unknown.
HoldingOfList SubtreeSet::FindHost(const ConstrainedName& name, Budget* budget) const {
  const NameForm form = name.form;
  const std::string_view host = name.host;
  const Subtree* overlap = nullptr;
  for (const Subtree& subtree : subtrees_) {
    if (subtree.form != form) continue;
    if (!budget->Take()) return kOverBudget;
    if (!MayEndAlike(subtree.host, host)) continue;
    const Holding holding = HoldHost(subtree, name);
    if (holding == Holding::kInside) return {holding, &subtree};
    if (holding == Holding::kOverlap && overlap == nullptr) overlap = &subtree;
  }
  return {overlap != nullptr ? Holding::kOverlap : Holding::kOutside, overlap};
}

HoldingOfList SubtreeSet::FindOther(const ConstrainedName& name, Budget* budget) const {
  HoldingOfList found;
  for (const Subtree& subtree : subtrees_) {
    if (subtree.form != name.form) continue;
    if (!budget->Take()) return kOverBudget;
    ortholan_reason reason = ORTHOLAN_REASON_NONE;
    const Holding holding = Hold(subtree, name, &reason);
    if (holding == Holding::kOutside) continue;
    if (Weight(holding) > Weight(found.holding)) found = {holding, &subtree, reason};
    if (holding == Holding::kInside) break;
  }
  return found;
}

}  // namespace Ortholan::strict
