#include "strict/matching/name_forms.h"

#include <algorithm>

#include "strict/matching/rdn_forms.h"

namespace Ortholan::strict {

NameForms::NameForms(const NameView& name, MatchRule rule) {
  RdnWalk walk(name);
  for (RdnView rdn; walk.Next(&rdn);) {
    const size_t offset = octets_.size();
    const ortholan_reason doubt = PutRdn(rdn, rule, &octets_);
    entries_.push_back({offset, octets_.size() - offset, doubt, rdn.index, rdn.first_attribute});
  }
  std::sort(entries_.begin(), entries_.end(),
            [this](const Entry& a, const Entry& b) { return OctetsOf(a) < OctetsOf(b); });
}

}  // namespace Ortholan::strict
