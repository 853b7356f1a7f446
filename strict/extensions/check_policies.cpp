// Rules about policies and their mappings.
#include <algorithm>
#include <vector>

#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict::looks {

namespace {

// Calls `visit` for each qualifier of a policy: SEQUENCE { identifier, value }.
template <class Visit>
void ForEachQualifier(const Identified& policy, Visit visit) {
  ForEachElement(ContentOf(policy.rest, kSequence), visit);
}

// The explicit text of a user notice: its one part that is a string.
template <class Visit>
void ForEachText(const Identified& qualifier, Visit visit) {
  ForEachElement(ContentOf(qualifier.rest, kSequence), [&visit](const Element& part) {
    if (IsString(part.identifier)) visit(part);
  });
}

}  // namespace

void PolicyTwice(const CheckCase& at) {
  std::vector<ByteView> oids;
  ForEachElement(ListOf(at),
                 [&](const Element& policy) { oids.push_back(IdentifiedOf(policy).oid); });
  std::sort(oids.begin(), oids.end(), AreOctetsBefore);
  for (size_t i = 1; i < oids.size(); ++i) {
    const bool is_again = i > 1 && SameBytes(oids[i - 2], oids[i]);
    if (SameBytes(oids[i - 1], oids[i]) && !is_again) at.Fault(oids[i]);
  }
}

void AnyPolicyQualifiers(const CheckCase& at) {
  ForEachElement(ListOf(at), [&at](const Element& element) {
    const Identified policy = IdentifiedOf(element);
    if (!policy.Is(kAnyPolicyOid)) return;
    ForEachQualifier(policy, [&at](const Element& qualifier) {
      const Identified parts = IdentifiedOf(qualifier);
      if (!parts.Is(kCpsOid) && !parts.Is(kUserNoticeOid)) at.Fault(qualifier.bytes);
    });
  });
}

void NoticeSize(const CheckCase& at) {
  constexpr size_t kMaxCharacters = 200;
  ForEachElement(ListOf(at), [&at](const Element& policy) {
    ForEachQualifier(IdentifiedOf(policy), [&at](const Element& qualifier) {
      const Identified parts = IdentifiedOf(qualifier);
      if (!parts.Is(kUserNoticeOid)) return;
      ForEachText(parts, [&at](const Element& text) {
        const size_t count = CountCharacters(text);
        if (count == 0 || count > kMaxCharacters) at.Fault(text.bytes);
      });
    });
  });
}

void AnyPolicyMapped(const CheckCase& at) {
  ForEachElement(ListOf(at), [&at](const Element& mapping) {
    bool is_any = false;
    ForEachElement(mapping.content, [&](const Element& policy) {
      is_any |= SameBytes(policy.content, kAnyPolicyOid.view());
    });
    if (is_any) at.Fault(mapping.bytes);
  });
}

}  // namespace Ortholan::strict::looks
