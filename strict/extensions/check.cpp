#include "strict/extensions/check.h"

#include "strict/certificates/revoked_entry.h"
#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict {
namespace {

// [0] EXPLICIT INTEGER of a certificate, a bare one of a CRL; what is not there is version 1.
uint32_t VersionOf(ByteView der, CertificateKind kind) {
  ByteView number;
  Reader body(ContentOf(der, kSequence), Leniency::kLenient, nullptr);
  ByteView fields;
  if (kind == CertificateKind::kRequest || !body.Read(kSequence, &fields)) return 1;
  Reader first(fields, Leniency::kLenient, nullptr);
  if (kind == CertificateKind::kRevocationList) {
    if (!first.Read(kInteger, &number)) return 1;
  } else {
    ByteView wrapped;
    if (!first.Read(ContextConstructed(0), &wrapped)) return 1;
    number = ContentOf(wrapped, kInteger);
  }
  return number.size == 1 ? number[0] + 1u : 0;
}

// Identifiers by their octets, the same ones as they stand.
std::vector<ByteView> SortedOids(const ExtensionsView& extensions) {
  std::vector<ByteView> oids;
  for (const ExtensionView& extension : extensions) oids.push_back(extension.oid);
  std::stable_sort(oids.begin(), oids.end(), AreOctetsBefore);
  return oids;
}

uint8_t KindBit(CertificateKind kind) {
  switch (kind) {
    case CertificateKind::kRequest:
      return kRequests;
    case CertificateKind::kRevocationList:
      return kLists;
    default:
      return kCertificates;
  }
}

bool IsAbout(const CheckRule& rule, const ExtensionView& extension) {
  return rule.scope == Scope::kEachExtension ||
         (rule.scope == Scope::kExtension && SameBytes(rule.oid.view(), extension.oid));
}

// Holds a rule that is about no extension that is there against what it is about.
void LookOutside(const CheckRule& rule, CheckCase at) {
  if (rule.scope == Scope::kEncoding || rule.scope == Scope::kDocument) rule.look(at);
  if (rule.scope != Scope::kName) return;
  for (const ByteView name : {at.document.view.subject(), at.document.view.issuer()}) {
    at.name = name;
    if (!name.empty()) rule.look(at);
  }
}

// The rules that are asked of a document, or of the entries of a CRL, in their order.
std::vector<const CheckRule*> RulesFor(uint8_t kind) {
  const CheckRules rules = AllRules();
  std::vector<const CheckRule*> asked;
  for (size_t i = 0; i < rules.count; ++i) {
    if ((rules.first[i].kinds & kind) != 0) asked.push_back(&rules.first[i]);
  }
  return asked;
}

// A list of extensions, and what it is held against.
struct CheckedList {
  const CheckedDocument& document;
  const std::vector<const CheckRule*>& rules;
  uint8_t kind;
};

void LookInside(const CheckedList& list, const ExtensionsView& extensions,
                const std::vector<ByteView>& oids, Faults* faults) {
  for (const ExtensionView& extension : extensions) {
    for (const CheckRule* rule : list.rules) {
      if (!IsAbout(*rule, extension)) continue;
      rule->look({list.document, *rule, faults, list.kind, {}, extension, &oids});
    }
  }
}

// The extensions of each entry of a CRL that can be read.
void LookAtEntries(const CheckedDocument& document, Faults* faults) {
  const std::vector<const CheckRule*> rules = RulesFor(kEntries);
  ForEachElement(ContentOf(document.view.revoked(), kSequence), [&](const Element& element) {
    Reader list(element.bytes, Leniency::kLenient, nullptr);
    RevokedEntry entry;
    if (!RevokedEntry::Take(&list, &entry) || entry.extensions.size() == 0) return;
    LookInside({document, rules, kEntries}, entry.extensions, SortedOids(entry.extensions), faults);
  });
}

}  // namespace

CheckedDocument::CheckedDocument(ByteView der) {
  is_readable = CertificateView::Read(der, Leniency::kDer, &view, &refusal) ||
                CertificateView::Read(der, Leniency::kLenient, &view, nullptr);
  if (!is_readable) return;
  kind = KindBit(view.kind());
  version = VersionOf(der, view.kind());
  const ExtensionView usage = Find(oids::kKeyUsage.view());
  has_key_usage = !usage.bytes.empty();
  key_usage = BitsOf(ContentOf(usage.value, kBitString));
  Reader constraints(ContentOf(Find(oids::kBasicConstraints.view()).value, kSequence),
                     Leniency::kLenient, nullptr);
  ByteView flag;
  is_authority = constraints.Read(kBoolean, &flag) && flag.size == 1 && flag[0] != 0;
  ReadIssuingPoint();
  sorted_oids = SortedOids(view.extensions());
}

void CheckedDocument::ReadIssuingPoint() {
  constexpr uint8_t kSomeReasons = Context(3);
  constexpr uint8_t kIndirect = Context(4);
  const ByteView parts = ContentOf(Find(oids::kIssuingPoint.view()).value, kSequence);
  has_some_reasons = HasPart(parts, kSomeReasons);
  some_reasons = BitsOf(PartOf(parts, kSomeReasons));
  const ByteView flag = PartOf(parts, kIndirect);
  is_indirect = flag.size == 1 && flag[0] != 0;
}

ExtensionView CheckedDocument::Find(ByteView oid) const {
  for (const ExtensionView& extension : view.extensions()) {
    if (SameBytes(extension.oid, oid)) return extension;
  }
  return {};
}

bool CheckedDocument::Has(ByteView oid) const {
  return std::binary_search(sorted_oids.begin(), sorted_oids.end(), oid, AreOctetsBefore);
}

void CheckCase::Fault(ByteView part, const Refusal& refusal) const {
  const ByteView oid = extension.oid.empty() ? rule.oid.view() : extension.oid;
  const char* const own = rule.section;
  faults->Add({rule.name,
               own[0] != '\0' ? own : SectionOf(oid, kind),
               rule.sentence,
               {oid.data, oid.size},
               {part.data, part.size},
               refusal ? refusal.From(part.data) : ortholan_refusal{}});
}

bool Check(ByteView der, Faults* faults, Refusal* refusal) {
  const CheckedDocument document(der);
  const std::vector<const CheckRule*> rules = RulesFor(document.kind);
  for (const CheckRule* rule : rules) {
    const bool is_asked = document.is_readable || rule->scope == Scope::kEncoding;
    if (is_asked) LookOutside(*rule, {document, *rule, faults, document.kind});
  }
  LookAtEntries(document, faults);
  LookInside({document, rules, document.kind}, document.view.extensions(), document.sorted_oids,
             faults);
  if (document.is_readable || faults->count() != 0) return true;
  *refusal = document.refusal;
  return false;
}

}  // namespace Ortholan::strict
