#include "strict/extensions/check.h"

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

// Bits of the first two octets, the first bit lowest.
uint32_t UsageBitsOf(ByteView bit_string) {
  uint32_t bits = 0;
  for (size_t i = 1; i < bit_string.size && i <= 2; ++i) {
    for (size_t bit = 0; bit < 8; ++bit) {
      if ((bit_string[i] >> (7 - bit) & 1) != 0) bits |= 1u << ((i - 1) * 8 + bit);
    }
  }
  return bits;
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

// Calls `look` for each rule that the document may break.
template <class Look>
void ForEachRule(const CheckedDocument& document, Look look) {
  const CheckRules rules = AllRules();
  for (size_t i = 0; i < rules.count; ++i) {
    const CheckRule& rule = rules.first[i];
    const bool is_asked = document.is_readable || rule.scope == Scope::kEncoding;
    if (is_asked && (rule.kinds & document.kind) != 0) look(rule);
  }
}

}  // namespace

CheckedDocument::CheckedDocument(ByteView der) {
  is_readable = CertificateView::Read(der, Leniency::kDer, &view, &refusal) ||
                CertificateView::Read(der, Leniency::kLenient, &view, nullptr);
  if (!is_readable) return;
  kind = KindBit(view.kind());
  version = VersionOf(der, view.kind());
  const ExtensionView usage = Find(kKeyUsageOid.view());
  has_key_usage = !usage.bytes.empty();
  key_usage = UsageBitsOf(ContentOf(usage.value, kBitString));
  Reader constraints(ContentOf(Find(kBasicConstraintsOid.view()).value, kSequence),
                     Leniency::kLenient, nullptr);
  ByteView flag;
  is_authority = constraints.Read(kBoolean, &flag) && flag.size == 1 && flag[0] != 0;
  for (const ExtensionView& extension : view.extensions()) sorted_oids.push_back(extension.oid);
  std::stable_sort(sorted_oids.begin(), sorted_oids.end(), AreOctetsBefore);
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
               own[0] != '\0' ? own : SectionOf(oid, document.kind),
               rule.sentence,
               {oid.data, oid.size},
               {part.data, part.size},
               refusal ? refusal.From(part.data) : ortholan_refusal{}});
}

bool Check(ByteView der, Faults* faults, Refusal* refusal) {
  const CheckedDocument document(der);
  ForEachRule(document, [&](const CheckRule& rule) {
    LookOutside(rule, {document, rule, {}, {}, faults});
  });
  for (const ExtensionView& extension : document.view.extensions()) {
    ForEachRule(document, [&](const CheckRule& rule) {
      if (IsAbout(rule, extension)) rule.look({document, rule, {}, extension, faults});
    });
  }
  if (document.is_readable || faults->count() != 0) return true;
  *refusal = document.refusal;
  return false;
}

}  // namespace Ortholan::strict
