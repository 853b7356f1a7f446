// CheckRules about extensions that are there.
#include <algorithm>
#include <vector>

#include "strict/der/string_value.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"
#include "strict/extensions/known_extensions.h"
#include "strict/extensions/shape_reader.h"

namespace Ortholan::strict {
namespace {

// What RFC 5280 says of an extension's critical flag.
enum class Critical : uint8_t { kEither, kAlways, kNever };

// Its extensions, by the kinds of documents that have them.
struct Profiled {
  OidOctets oid;
  const char* section;
  uint8_t kinds;
  Critical critical;
};
constexpr Profiled kProfile[] = {
    {"2.5.29.35", "4.2.1.1", kForSubjects, Critical::kNever},
    {"2.5.29.14", "4.2.1.2", kForSubjects, Critical::kNever},
    {"2.5.29.15", "4.2.1.3", kForSubjects, Critical::kEither},
    {"2.5.29.32", "4.2.1.4", kForSubjects, Critical::kEither},
    {"2.5.29.33", "4.2.1.5", kForSubjects, Critical::kEither},
    {"2.5.29.17", "4.2.1.6", kForSubjects, Critical::kEither},
    {"2.5.29.18", "4.2.1.7", kForSubjects, Critical::kEither},
    {"2.5.29.9", "4.2.1.8", kForSubjects, Critical::kNever},
    {"2.5.29.19", "4.2.1.9", kForSubjects, Critical::kEither},
    {"2.5.29.30", "4.2.1.10", kForSubjects, Critical::kAlways},
    {"2.5.29.36", "4.2.1.11", kForSubjects, Critical::kAlways},
    {"2.5.29.37", "4.2.1.12", kForSubjects, Critical::kEither},
    {"2.5.29.31", "4.2.1.13", kForSubjects, Critical::kEither},
    {"2.5.29.54", "4.2.1.14", kForSubjects, Critical::kAlways},
    {"2.5.29.46", "4.2.1.15", kForSubjects, Critical::kNever},
    {"1.3.6.1.5.5.7.1.1", "4.2.2.1", kForSubjects, Critical::kNever},
    {"1.3.6.1.5.5.7.1.11", "4.2.2.2", kForSubjects, Critical::kNever},
    {"2.5.29.35", "5.2.1", kLists, Critical::kNever},
    {"2.5.29.18", "5.2.2", kLists, Critical::kEither},
    {"2.5.29.20", "5.2.3", kLists, Critical::kNever},
    {"2.5.29.27", "5.2.4", kLists, Critical::kAlways},
    {"2.5.29.28", "5.2.5", kLists, Critical::kAlways},
    {"2.5.29.46", "5.2.6", kLists, Critical::kNever},
    {"1.3.6.1.5.5.7.1.1", "5.2.7", kLists, Critical::kNever},
};

const Profiled* FindProfiled(ByteView oid, uint8_t kind) {
  for (const Profiled& row : kProfile) {
    if ((row.kinds & kind) != 0 && SameBytes(row.oid.view(), oid)) return &row;
  }
  return nullptr;
}

Critical CriticalOf(const CheckCase& at) {
  const Profiled* const row = FindProfiled(at.extension.oid, at.document.kind);
  return row != nullptr ? row->critical : Critical::kEither;
}

}  // namespace

const char* SectionOf(ByteView oid, uint8_t kind) {
  const Profiled* const row = FindProfiled(oid, kind);
  if (row != nullptr) return row->section;
  return kind == kLists ? "5.2" : "4.2";
}

namespace looks {

// A binary search among all, as a list may be of any length.
void Twice(const CheckCase& at) {
  const std::vector<ByteView>& oids = at.document.sorted_oids;
  const auto same = std::equal_range(oids.begin(), oids.end(), at.extension.oid, AreOctetsBefore);
  const bool is_first = same.first->data == at.extension.oid.data;
  if (same.second - same.first > 1 && !is_first) at.Fault(at.extension.bytes);
}

namespace {

struct Nobody final : ShapeVisitor {};

// Lists without elements.
class EmptyListFinder final : public ShapeVisitor {
 public:
  explicit EmptyListFinder(const CheckCase& at) : at_(at) {}
  void EndList(const Shape&, ByteView content, size_t count) override {
    if (count == 0) at_.Fault({content.data, 0});
  }

 private:
  const CheckCase& at_;
};

bool ReadValue(const CheckCase& at, Leniency leniency, ShapeVisitor* visitor, Refusal* refusal) {
  const KnownExtension* const known = FindExtension(at.extension.oid);
  return known == nullptr ||
         ReadByShape(*known->shape, at.extension.value, leniency, visitor, refusal);
}

}  // namespace

void ValueEncoding(const CheckCase& at) {
  Nobody nobody;
  Refusal refusal;
  if (!ReadValue(at, Leniency::kDer, &nobody, &refusal)) at.Fault(at.extension.value, refusal);
}

void EmptyLists(const CheckCase& at) {
  Nobody nobody;
  EmptyListFinder finder(at);
  if (ReadValue(at, Leniency::kLenient, &nobody, nullptr)) {
    ReadValue(at, Leniency::kLenient, &finder, nullptr);
  }
}

void IsCritical(const CheckCase& at) {
  if (at.extension.critical && CriticalOf(at) == Critical::kNever) at.Fault(at.extension.bytes);
}

void IsNotCritical(const CheckCase& at) {
  if (!at.extension.critical && CriticalOf(at) == Critical::kAlways) at.Fault(at.extension.bytes);
}

void EmptySubjectNotCritical(const CheckCase& at) {
  const ByteView subject = at.document.view.subject();
  if (!at.extension.critical && ContentOf(subject, kSequence).empty()) {
    at.Fault(at.extension.bytes);
  }
}

void NoUsage(const CheckCase& at) {
  if (at.document.key_usage == 0) at.Fault(at.extension.bytes);
}

void CertSignWithoutAuthority(const CheckCase& at) {
  if (at.document.HasUsage(kKeyCertSign) && !at.document.is_authority) {
    at.Fault(at.extension.bytes);
  }
}

// The key is for certificates unless a key usage says otherwise.
void AuthorityNotCritical(const CheckCase& at) {
  const CheckedDocument& document = at.document;
  const bool signs = !document.has_key_usage || document.HasUsage(kKeyCertSign);
  if (document.is_authority && signs && !at.extension.critical) at.Fault(at.extension.bytes);
}

namespace {

// The value's element itself, or those of a SEQUENCE, with the identifier.
template <class Visit>
void ForEachPart(const CheckCase& at, uint8_t identifier, Visit visit) {
  const auto see = [&](const Element& element) {
    if (element.identifier == identifier) visit(element);
  };
  ForEachElement(at.extension.value, [&](const Element& whole) {
    see(whole);
    if (whole.identifier == kSequence) ForEachElement(whole.content, see);
  });
}

bool HasPart(ByteView content, uint8_t identifier) {
  bool has = false;
  ForEachElement(content, [&](const Element& part) { has |= part.identifier == identifier; });
  return has;
}

ByteView ListOf(const CheckCase& at) { return ContentOf(at.extension.value, kSequence); }

bool HasPathLength(const CheckCase& at) { return HasPart(ListOf(at), kInteger); }

}  // namespace

void PathLengthWithoutAuthority(const CheckCase& at) {
  if (HasPathLength(at) && !at.document.is_authority) at.Fault(at.extension.bytes);
}

void PathLengthWithoutCertSign(const CheckCase& at) {
  if (HasPathLength(at) && !at.document.HasUsage(kKeyCertSign)) at.Fault(at.extension.bytes);
}

void NegativeNumbers(const CheckCase& at) {
  for (const uint8_t identifier : {uint8_t{kInteger}, Context(0), Context(1)}) {
    ForEachPart(at, identifier, [&at](const Element& number) {
      if (!number.content.empty() && (number.content[0] & 0x80) != 0) at.Fault(number.bytes);
    });
  }
}

void NumberSize(const CheckCase& at) {
  constexpr size_t kMaxOctets = 20;
  const ByteView number = ContentOf(at.extension.value, kInteger);
  if (number.size > kMaxOctets) at.Fault(at.extension.value);
}

void OutsideAuthority(const CheckCase& at) {
  if (!at.document.is_authority) at.Fault(at.extension.bytes);
}

void EmptyStructure(const CheckCase& at) {
  const ByteView value = at.extension.value;
  if (value.size == 2 && value[0] == kSequence && value[1] == 0) at.Fault(value);
}

void NoKeyId(const CheckCase& at) {
  if (!HasPart(ListOf(at), Context(0))) at.Fault(at.extension.value);
}

void KeyIdHalves(const CheckCase& at) {
  const ByteView parts = ListOf(at);
  if (HasPart(parts, ContextConstructed(1)) != HasPart(parts, Context(2))) {
    at.Fault(at.extension.value);
  }
}

namespace {

constexpr OidOctets kAnyPolicy("2.5.29.32.0");
constexpr OidOctets kCps("1.3.6.1.5.5.7.2.1");
constexpr OidOctets kUserNotice("1.3.6.1.5.5.7.2.2");

bool Is(ByteView oid, const OidOctets& known) { return SameBytes(oid, known.view()); }

// The identifier that a structure begins with, and what stands behind it.
struct Identified {
  ByteView oid;
  ByteView rest;
};
Identified IdentifiedOf(const Element& structure) {
  Identified parts;
  Reader fields(structure.content, Leniency::kLenient, nullptr);
  if (fields.Read(kOid, &parts.oid)) parts.rest = fields.rest();
  return parts;
}

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
    if (!Is(policy.oid, kAnyPolicy)) return;
    ForEachQualifier(policy, [&at](const Element& qualifier) {
      const ByteView oid = IdentifiedOf(qualifier).oid;
      if (!Is(oid, kCps) && !Is(oid, kUserNotice)) at.Fault(qualifier.bytes);
    });
  });
}

void NoticeSize(const CheckCase& at) {
  constexpr size_t kMaxCharacters = 200;
  ForEachElement(ListOf(at), [&at](const Element& policy) {
    ForEachQualifier(IdentifiedOf(policy), [&at](const Element& qualifier) {
      const Identified parts = IdentifiedOf(qualifier);
      if (!Is(parts.oid, kUserNotice)) return;
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
    ForEachElement(mapping.content,
                   [&](const Element& policy) { is_any |= Is(policy.content, kAnyPolicy); });
    if (is_any) at.Fault(mapping.bytes);
  });
}

namespace {

// Parts of a DistributionPoint (RFC 5280 4.2.1.13).
constexpr uint8_t kPointName = ContextConstructed(0);
constexpr uint8_t kReasons = Context(1);
constexpr uint8_t kListIssuer = ContextConstructed(2);
// An alternative of its name.
constexpr uint8_t kRelativeName = ContextConstructed(1);

// A part's content; no octets where it is not there.
ByteView PartOf(ByteView content, uint8_t identifier) {
  ByteView found;
  ForEachElement(content, [&](const Element& part) {
    if (part.identifier == identifier) found = part.content;
  });
  return found;
}

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
  constexpr OidOctets kDeltaIndicator("2.5.29.27");
  if (at.document.Has(kDeltaIndicator.view())) at.Fault(at.extension.bytes);
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
  constexpr OidOctets kCaIssuers("1.3.6.1.5.5.7.48.2");
  ForEachElement(ListOf(at), [&](const Element& description) {
    if (!Is(IdentifiedOf(description).oid, kCaIssuers)) at.Fault(description.bytes);
  });
}

}  // namespace looks
}  // namespace Ortholan::strict
