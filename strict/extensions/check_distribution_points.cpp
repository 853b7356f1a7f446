// Rules about where CRLs are and what they are for, and about access to authorities.
#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict::looks {

namespace {

// Parts of a DistributionPoint (RFC 5280 4.2.1.13).
constexpr uint8_t kPointName = ContextConstructed(0);
constexpr uint8_t kReasons = Context(1);
constexpr uint8_t kListIssuer = ContextConstructed(2);
// An alternative of its name.
constexpr uint8_t kRelativeName = ContextConstructed(1);

}  // namespace

void ReasonsAlone(const CheckCase& at) {
  ForEachElement(ListOf(at), [&at](const Element& point) {
    const bool is_named = HasPart(point.content, kPointName) || HasPart(point.content, kListIssuer);
    if (!is_named) at.Fault(point.bytes);
  });
}

void SomeReasonsOnly(const CheckCase& at) {
  bool is_for_all = false;
  const ByteView points = ListOf(at);
  ForEachElement(points,
                 [&](const Element& point) { is_for_all |= !HasPart(point.content, kReasons); });
  if (!points.empty() && !is_for_all) at.Fault(at.extension.value);
}

void RelativeToSeveral(const CheckCase& at) {
  ForEachElement(ListOf(at), [&at](const Element& point) {
    size_t issuers = 0;
    ForEachElement(PartOf(point.content, kListIssuer), [&issuers](const Element&) { ++issuers; });
    if (issuers > 1 && HasPart(PartOf(point.content, kPointName), kRelativeName)) {
      at.Fault(point.bytes);
    }
  });
}

void ListIssuerForms(const CheckCase& at) {
  constexpr uint8_t kDirectoryName = ContextConstructed(4);
  ForEachElement(ListOf(at), [&at](const Element& point) {
    ForEachElement(PartOf(point.content, kListIssuer), [&at](const Element& name) {
      if (name.identifier != kDirectoryName) at.Fault(name.bytes);
    });
  });
}

void PointsOfFreshest(const CheckCase& at) {
  ForEachElement(ListOf(at), [&at](const Element& point) {
    if (HasPart(point.content, kReasons) || HasPart(point.content, kListIssuer)) {
      at.Fault(point.bytes);
    }
  });
}

void FreshestInDelta(const CheckCase& at) {
  if (at.document.Has(kDeltaIndicatorOid.view())) at.Fault(at.extension.bytes);
}

namespace {

constexpr uint8_t kOnlyUsers = Context(1);
constexpr uint8_t kOnlyAuthorities = Context(2);
constexpr uint8_t kOnlyAttributes = Context(5);

bool IsSet(const CheckCase& at, uint8_t flag) {
  const ByteView octets = PartOf(ListOf(at), flag);
  return octets.size == 1 && octets[0] != 0;
}

}  // namespace

void ScopesOfList(const CheckCase& at) {
  int count = 0;
  for (const uint8_t flag : {kOnlyUsers, kOnlyAuthorities, kOnlyAttributes}) {
    count += IsSet(at, flag) ? 1 : 0;
  }
  if (count > 1) at.Fault(at.extension.value);
}

void AttributeCertificates(const CheckCase& at) {
  if (IsSet(at, kOnlyAttributes)) at.Fault(at.extension.value);
}

void AccessMethodsOfList(const CheckCase& at) {
  ForEachElement(ListOf(at), [&](const Element& description) {
    if (!IdentifiedOf(description).Is(kCaIssuersOid)) at.Fault(description.bytes);
  });
}

}  // namespace Ortholan::strict::looks
