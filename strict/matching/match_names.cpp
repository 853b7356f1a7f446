#include "strict/matching/match_names.h"

#include "strict/matching/match_rdns.h"
#include "strict/matching/name_forms.h"
#include "strict/matching/rdn_forms.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict {
namespace {

constexpr ortholan_match_place kNowhere = {kNoPlace, kNoPlace};

Verdict VerdictOf(const Comparison& found) {
  if (found.is_same()) return Verdict::kYes;
  return found.is_different() ? Verdict::kNo : Verdict::kCannotTell;
}

ortholan_octets TypeOf(const RdnView& rdn, size_t index) {
  const ByteView type = rdn.At(index).type;
  return {type.data, type.size};
}

Match MatchOf(const RdnView& a, const RdnView& b, const RdnComparison& result) {
  Match match = MakeMatch(VerdictOf(result.found), result.found.reason);
  match.side = result.found.side;
  match.first = {a.index, a.first_attribute + result.first};
  match.second = {b.index, b.first_attribute + result.second};
  match.type = match.side == 2 ? TypeOf(b, result.second) : TypeOf(a, result.first);
  if (match.reason == ORTHOLAN_REASON_VALUE_UNDEFINED) {
    match.refusal = {match.reason, result.found.undefined, 0, result.found.undefined_at};
  }
  return match;
}

// Whether two RDNs of one attribute each are plainly the same; false tells nothing.
bool AreSameAtAGlance(const RdnView& a, const RdnView& b, MatchRule rule) {
  return a.size == 1 && b.size == 1 && SameBytes(a.first.type, b.first.type) &&
         ArePlainlySame(a.first.type, a.first.value, b.first.value, rule);
}

// Compares as many RDNs, which both names have. What is different decides, wherever it stands.
Match MatchInOrder(const NameView& first, const NameView& second, size_t count, MatchRule rule) {
  Match doubt = MakeMatch(Verdict::kYes, ORTHOLAN_REASON_NONE);
  RdnWalk walk_a(first);
  RdnWalk walk_b(second);
  RdnView a;
  RdnView b;
  for (size_t i = 0; i < count && walk_a.Next(&a) && walk_b.Next(&b); ++i) {
    if (AreSameAtAGlance(a, b, rule)) continue;
    const RdnComparison result = CompareRdns(a, b, rule);
    if (result.found.is_same()) continue;
    if (result.found.is_different()) return MatchOf(a, b, result);
    if (doubt.reason == ORTHOLAN_REASON_NONE) doubt = MatchOf(a, b, result);
  }
  return doubt;
}

// What is left of two sorted lists once what is in both is taken out: the first entry that leaves
// room for doubt, or else the first at all.
struct Unmatched {
  const NameForms::Entry* entry = nullptr;
  int32_t side = 0;

  void Add(const NameForms::Entry* found, int32_t found_side) {
    const bool decides = entry == nullptr || (entry->doubt == ORTHOLAN_REASON_NONE &&
                                              found->doubt != ORTHOLAN_REASON_NONE);
    if (decides) *this = {found, found_side};
  }
};

Unmatched FindUnmatched(const NameForms& a, const NameForms& b) {
  Unmatched unmatched;
  const NameForms::Entry* x = a.begin();
  const NameForms::Entry* y = b.begin();
  while (x != a.end() || y != b.end()) {
    const int order = x == a.end() ? 1 : y == b.end() ? -1 : a.OctetsOf(*x).compare(b.OctetsOf(*y));
    if (order < 0) unmatched.Add(x, 1);
    if (order > 0) unmatched.Add(y, 2);
    if (order <= 0) ++x;
    if (order >= 0) ++y;
  }
  return unmatched;
}

Match MatchInAnyOrder(const NameView& first, const NameView& second, MatchRule rule) {
  const NameForms a(first, rule);
  const NameForms b(second, rule);
  const Unmatched unmatched = FindUnmatched(a, b);
  if (unmatched.entry == nullptr) return MakeMatch(Verdict::kYes, ORTHOLAN_REASON_NONE);
  const ortholan_reason doubt = unmatched.entry->doubt;
  Match match = doubt == ORTHOLAN_REASON_NONE ? MakeMatch(Verdict::kNo, ORTHOLAN_REASON_RDN)
                                              : MakeMatch(Verdict::kCannotTell, doubt);
  match.side = unmatched.side;
  (match.side == 1 ? match.first : match.second) = {unmatched.entry->rdn,
                                                    unmatched.entry->attribute};
  return match;
}

}  // namespace

Match MakeMatch(Verdict verdict, ortholan_reason reason) {
  return {static_cast<ortholan_verdict>(verdict), reason, 0, kNowhere, kNowhere, {}, {}};
}

Match MatchNames(const NameView& first, const NameView& second, MatchRule rule, RdnOrder order) {
  const bool is_one = first.der().data == second.der().data;  // names that were found equal before
  if ((is_one && first.der().size == second.der().size) || SameBytes(first.der(), second.der())) {
    return MakeMatch(Verdict::kYes, ORTHOLAN_REASON_NONE);
  }
  if (first.rdn_count() != second.rdn_count()) {
    return MakeMatch(Verdict::kNo, ORTHOLAN_REASON_RDN_COUNT);
  }
  if (order == RdnOrder::kAnyOrder) return MatchInAnyOrder(first, second, rule);
  return MatchInOrder(first, second, first.rdn_count(), rule);
}

Match MatchWithin(const NameView& subtree, const NameView& name, MatchRule rule) {
  if (subtree.rdn_count() > name.rdn_count()) {
    return MakeMatch(Verdict::kNo, ORTHOLAN_REASON_RDN_COUNT);
  }
  return MatchInOrder(subtree, name, subtree.rdn_count(), rule);
}

}  // namespace Ortholan::strict
