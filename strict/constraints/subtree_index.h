// Tables over a long list of subtrees. A host is looked up by each of its suffixes, an address
// among ranges of which none holds another.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_INDEX_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_INDEX_H_

#include <string_view>
#include <vector>

#include "bytes/byte_view.h"
#include "strict/constraints/budget.h"
#include "strict/constraints/name_form.h"
#include "strict/constraints/within_subtree.h"

namespace Ortholan::strict {

class SubtreeIndex {
 public:
  // The subtrees must outlive the index, where they stand.
  SubtreeIndex(const Subtree* begin, const Subtree* end);

  // Answers for names whose form has a table: false for others, and where only a walk can tell.
  bool Find(const ConstrainedName& name, Budget* budget, Holding* holding,
            const Subtree** subtree) const;

 private:
  // What a host is looked up as.
  enum class Role : uint8_t { kTree, kBelow, kHost, kParentOfTree, kMailHost };

  struct HostRow {
    uint64_t key;  // of host, form and role
    NameForm form;
    Role role;
    std::string_view host;
    const Subtree* subtree;
  };

  void AddHost(NameForm form, Role role, std::string_view host, const Subtree* subtree);
  void AddHosts(const Subtree& subtree);
  void SortHosts();
  void SortRanges();
  const Subtree* FindRow(NameForm form, Role role, std::string_view host, uint64_t hash,
                         Budget* budget) const;
  bool FindHost(const ConstrainedName& name, Budget* budget, Holding* holding,
                const Subtree** subtree) const;
  const Subtree* FindSuffix(const ConstrainedName& name, Budget* budget) const;
  const Subtree* FindRange(ByteView address, Budget* budget) const;

  std::vector<HostRow> hosts_;
  std::vector<const Subtree*> ranges_;  // by size and first address
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_SUBTREE_INDEX_H_
