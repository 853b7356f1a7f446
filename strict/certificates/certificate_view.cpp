#include "strict/certificates/certificate_view.h"

#include "strict/der/known_oids.h"
#include "strict/der/reader.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kVersion = ContextConstructed(0);
constexpr uint8_t kIssuerUniqueId = Context(1);
constexpr uint8_t kSubjectUniqueId = Context(2);
constexpr uint8_t kCertificateExtensions = ContextConstructed(3);
constexpr uint8_t kListExtensions = ContextConstructed(0);
constexpr uint8_t kRequestAttributes = ContextConstructed(0);

bool Skip(Reader* fields, uint8_t identifier) {
  ByteView content;
  return fields->Read(identifier, &content);
}

bool SkipOptional(Reader* fields, uint8_t identifier) {
  return !fields->Sees(identifier) || Skip(fields, identifier);
}

// A SEQUENCE as it stands, header included.
bool TakeSequence(Reader* fields, ByteView* bytes) {
  Element element;
  if (!fields->Read(kSequence, &element)) return false;
  *bytes = element.bytes;
  return true;
}

bool SeesTime(const Reader& fields) {
  return fields.Sees(kUtcTime) || fields.Sees(kGeneralizedTime);
}

bool TakeTime(Reader* fields, ByteView* bytes) {
  if (!SeesTime(*fields)) return fields->RefuseHere(ORTHOLAN_REASON_IDENTIFIER, kUtcTime);
  Element element;
  if (!fields->Read(&element)) return false;
  *bytes = element.bytes;
  return true;
}

// The extensions inside an explicit tag, where it stands.
bool TakeExtensions(Reader* fields, uint8_t identifier, ExtensionsView* extensions) {
  if (!fields->Sees(identifier)) return true;
  ByteView content;
  return fields->Read(identifier, &content) &&
         ExtensionsView::Read(content, fields->leniency(), extensions, fields->refusal());
}

// One of the elements at the front tells which of the three it is: a certificate's version has a
// tag of its own, a CRL without version begins with its algorithm, and behind an INTEGER the fourth
// element is the validity of a certificate, the first time of a CRL or the attributes of a request.
CertificateKind KindOf(Reader fields) {
  if (fields.Sees(kVersion)) return CertificateKind::kCertificate;
  if (fields.Sees(kSequence)) return CertificateKind::kRevocationList;
  Reader ahead(fields.rest(), fields.leniency(), nullptr);
  Element element;
  for (int i = 0; i < 3; ++i) {
    if (!ahead.Read(&element)) return CertificateKind::kCertificate;
  }
  if (ahead.Sees(kSequence)) return CertificateKind::kCertificate;
  return SeesTime(ahead) ? CertificateKind::kRevocationList : CertificateKind::kRequest;
}

}  // namespace

bool CertificateView::Read(ByteView der, Leniency leniency, CertificateView* certificate,
                           Refusal* refusal) {
  ByteView signed_data;
  if (!ReadWhole(der, kSequence, leniency, &signed_data, refusal)) return false;
  Reader parts(signed_data, leniency, refusal);
  ByteView body;
  if (!parts.Read(kSequence, &body) || !Skip(&parts, kSequence) || !Skip(&parts, kBitString) ||
      !parts.End()) {
    return false;
  }
  CertificateView read;
  read.der_ = der;
  if (!read.ReadBody(body, leniency, refusal)) return false;
  *certificate = read;
  return true;
}

bool CertificateView::ReadBody(ByteView body, Leniency leniency, Refusal* refusal) {
  Reader fields(body, leniency, refusal);
  kind_ = KindOf(fields);
  switch (kind_) {
    case CertificateKind::kRequest:
      return ReadRequest(&fields) && fields.End();
    case CertificateKind::kRevocationList:
      return ReadRevocationList(&fields) && fields.End();
    default:
      return ReadCertificate(&fields) && fields.End();
  }
}

bool CertificateView::ReadCertificate(Reader* fields) {
  ByteView validity;
  if (!SkipOptional(fields, kVersion) || !fields->Read(kInteger, &serial_) ||
      !Skip(fields, kSequence) || !TakeSequence(fields, &issuer_) ||
      !fields->Read(kSequence, &validity)) {
    return false;
  }
  Reader times(validity, fields->leniency(), fields->refusal());
  return TakeTime(&times, &not_before_) && TakeTime(&times, &not_after_) && times.End() &&
         TakeSequence(fields, &subject_) && Skip(fields, kSequence) &&
         SkipOptional(fields, kIssuerUniqueId) && SkipOptional(fields, kSubjectUniqueId) &&
         TakeExtensions(fields, kCertificateExtensions, &extensions_);
}

bool CertificateView::ReadRequest(Reader* fields) {
  if (!Skip(fields, kInteger) || !TakeSequence(fields, &subject_) || !Skip(fields, kSequence)) {
    return false;
  }
  // RFC 2986 has the attributes always, if empty; some requests leave them out.
  if (fields->AtEnd()) return true;
  ByteView attributes;
  if (!fields->Read(kRequestAttributes, &attributes)) return false;
  Reader list(attributes, fields->leniency(), fields->refusal());
  while (!list.AtEnd()) {
    ByteView attribute, type, values;
    if (!list.Read(kSequence, &attribute)) return false;
    Reader parts(attribute, fields->leniency(), fields->refusal());
    if (!parts.Read(kOid, &type) || !parts.Read(kSet, &values) || !parts.End()) return false;
    if (!SameBytes(type, oids::kExtensionRequest.view())) continue;
    if (extensions_.size() != 0) {
      return list.RefuseAt(ORTHOLAN_REASON_DUPLICATE_EXTENSION, attribute.data);
    }
    if (!ExtensionsView::Read(values, fields->leniency(), &extensions_, fields->refusal())) {
      return false;
    }
  }
  return true;
}

bool CertificateView::ReadRevocationList(Reader* fields) {
  return SkipOptional(fields, kInteger) && Skip(fields, kSequence) &&
         TakeSequence(fields, &issuer_) && TakeTime(fields, &not_before_) &&
         (!SeesTime(*fields) || TakeTime(fields, &not_after_)) &&
         (!fields->Sees(kSequence) || TakeSequence(fields, &revoked_)) &&
         TakeExtensions(fields, kListExtensions, &extensions_);
}

}  // namespace Ortholan::strict
