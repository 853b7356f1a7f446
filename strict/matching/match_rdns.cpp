#include "strict/matching/match_rdns.h"

#include "strict/matching/rdn_forms.h"

namespace Ortholan::strict {
namespace {

Comparison CompareAttributes(const Attribute& a, const Attribute& b, MatchRule rule) {
  if (!SameBytes(a.type, b.type)) return {ORTHOLAN_REASON_ATTRIBUTE_TYPE, 0};
  return CompareValues(a.type, a.value, b.value, rule);
}

// Pairs of attributes as they stand, up to the first that are not the same.
RdnComparison CompareInTurn(const RdnView& a, const RdnView& b, MatchRule rule) {
  const Comparison first = CompareAttributes(a.first, b.first, rule);
  if (a.size == 1 || !first.is_same()) return {first};
  AttributeWalk walk_a(a.content);
  AttributeWalk walk_b(b.content);
  Attribute x;
  Attribute y;
  for (size_t index = 0; walk_a.Next(&x) && walk_b.Next(&y); ++index) {
    const Comparison found = CompareAttributes(x, y, rule);
    if (!found.is_same()) return {found, index, index};
  }
  return {};
}

// Attributes that have no counterpart, of both RDNs in the same order.
class Leftovers {
 public:
  using Entry = RdnForms::Entry;

  Leftovers(const RdnForms& a, const RdnForms& b);
  RdnComparison Compare() const;

 private:
  // How many from `start` on have the type of the one there.
  size_t CountOfType(const SmallBuffer<const Entry*, 8>& entries, const RdnForms& forms,
                     size_t start) const;
  RdnComparison CompareGroup(size_t start, size_t count) const;

  const RdnForms& forms_a_;
  const RdnForms& forms_b_;
  SmallBuffer<const Entry*, 8> a_;
  SmallBuffer<const Entry*, 8> b_;
};

Leftovers::Leftovers(const RdnForms& a, const RdnForms& b) : forms_a_(a), forms_b_(b) {
  const Entry* x = a.begin();
  const Entry* y = b.begin();
  while (x != a.end() || y != b.end()) {
    const int order = x == a.end() ? 1 : y == b.end() ? -1 : a.OctetsOf(*x).compare(b.OctetsOf(*y));
    if (order < 0) a_.push_back(x);
    if (order > 0) b_.push_back(y);
    if (order <= 0) ++x;
    if (order >= 0) ++y;
  }
}

size_t Leftovers::CountOfType(const SmallBuffer<const Entry*, 8>& entries, const RdnForms& forms,
                              size_t start) const {
  size_t end = start + 1;
  while (end < entries.size() && forms.TypeOf(*entries[end]) == forms.TypeOf(*entries[start]))
    ++end;
  return end - start;
}

// Values of one type, as many on both sides. Those that can be told from each other, all of one
// kind, find no counterparts if there are too many of them; otherwise the values may be the same.
RdnComparison Leftovers::CompareGroup(size_t start, size_t count) const {
  size_t told[ValueForm::kOpaque + 1] = {};
  Comparison doubt = {ORTHOLAN_REASON_VALUE_TELETEX, 0};
  size_t doubtful = start;
  for (size_t at = start; at < start + count; ++at) {
    for (const Entry* entry : {a_[at], b_[at]}) {
      const ValueForm& form = entry->form;
      if (form.doubt == ORTHOLAN_REASON_NONE) {
        ++told[form.kind];
      } else if (doubt.side == 0) {
        doubt = {form.doubt, entry == a_[at] ? 1 : 2, form.undefined_at, form.undefined};
        doubtful = at;
      }
    }
  }
  if (told[ValueForm::kText] > count || told[ValueForm::kTeletex] > count) {
    return {{ORTHOLAN_REASON_VALUE, 0}, a_[start]->index, b_[start]->index};
  }
  return {doubt, a_[doubtful]->index, b_[doubtful]->index};
}

RdnComparison Leftovers::Compare() const {
  RdnComparison doubt;
  for (size_t at = 0; at < a_.size();) {
    const size_t count = CountOfType(a_, forms_a_, at);
    if (forms_a_.TypeOf(*a_[at]) != forms_b_.TypeOf(*b_[at]) ||
        CountOfType(b_, forms_b_, at) != count) {
      return {{ORTHOLAN_REASON_ATTRIBUTE_TYPE, 0}, a_[at]->index, b_[at]->index};
    }
    const RdnComparison group = CompareGroup(at, count);
    if (group.found.is_different()) return group;
    if (doubt.found.is_same()) doubt = group;
    at += count;
  }
  return doubt;
}

}  // namespace

RdnComparison CompareRdns(const RdnView& a, const RdnView& b, MatchRule rule) {
  if (a.size != b.size) return {{ORTHOLAN_REASON_RDN_SIZE, 0}};
  const RdnComparison in_turn = CompareInTurn(a, b, rule);
  if (a.size == 1 || rule == MatchRule::kOctets || in_turn.found.is_same()) return in_turn;
  return Leftovers(RdnForms(a, rule), RdnForms(b, rule)).Compare();
}

}  // namespace Ortholan::strict
