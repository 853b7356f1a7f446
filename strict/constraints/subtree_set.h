// One list of subtrees, permitted or excluded, taken apart once. A short list is walked; of a long
// one hosts and address ranges stand in sorted tables, so that many names against many subtrees
// cost n log n.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_SET_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_SET_H_

#include <memory>

#include "bytes/small_buffer.h"
#include "strict/constraints/budget.h"
#include "strict/constraints/constrained_name.h"
#include "strict/constraints/subtree.h"
#include "strict/constraints/within_subtree.h"

namespace Ortholan::strict {

class SubtreeIndex;

// What a list says of a name.
struct HoldingOfList {
  Holding holding = Holding::kOutside;
  const Subtree* subtree = nullptr;               // which one; null for kOutside
  ortholan_reason reason = ORTHOLAN_REASON_NONE;  // for kUnknown
};

class SubtreeSet {
 public:
  SubtreeSet();
  ~SubtreeSet();

  // Reads the content of one checked list. Refuses a subtree that is none.
  bool Read(ByteView list, Refusal* refusal);

  FormSet forms() const { return forms_; }
  // Subtrees of a form, and the first of them.
  size_t Count(NameForm form, const Subtree** first) const;

  // Looks a name without fault up: kInside by the first subtree that holds it, else kOverlap, else
  // kUnknown, else kOutside.
  HoldingOfList Find(const ConstrainedName& name, Budget* budget) const {
    return index_ != nullptr ? FindByIndex(name, budget) : FindByWalk(name, budget);
  }

 private:
  HoldingOfList FindByIndex(const ConstrainedName& name, Budget* budget) const;
  HoldingOfList FindByWalk(const ConstrainedName& name, Budget* budget) const {
    const bool is_host = name.form == NameForm::kDns || name.form == NameForm::kUri;
    return is_host ? FindHost(name, budget) : FindOther(name, budget);
  }
  HoldingOfList FindHost(const ConstrainedName& name, Budget* budget) const;
  HoldingOfList FindOther(const ConstrainedName& name, Budget* budget) const;

  // Longer lists get tables.
  static constexpr size_t kShort = 32;

  SmallBuffer<Subtree, 12> subtrees_;
  FormSet forms_;
  std::unique_ptr<SubtreeIndex> index_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_SET_H_
