// Rules about a document as a whole, and about extensions that are missing.
#include "strict/der/any_value.h"
#include "strict/der/known_oids.h"
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"
#include "strict/general_names/general_name_view.h"
#include "strict/names/name_view.h"

namespace Ortholan::strict::looks {
namespace {

constexpr size_t kMaxSerialOctets = 20;

bool IsEmpty(ByteView name) { return !name.empty() && ContentOf(name, kSequence).empty(); }

ByteView EmailOf(ByteView subject) {
  NameView name;
  if (!NameView::Read(subject, Leniency::kLenient, &name, nullptr)) return {};
  for (const AttributeView& attribute : name) {
    if (SameBytes(attribute.type, oids::kEmailAddress.view())) return attribute.bytes;
  }
  return {};
}

bool HasMailbox(ByteView names) {
  bool has = false;
  ForEachElement(ContentOf(names, kSequence), [&has](const Element& name) {
    has = has || name.identifier == Context(static_cast<uint8_t>(GeneralNameKind::kMail));
  });
  return has;
}

// An INTEGER as X.690 8.3.2 has it.
bool TakeNumber(Reader* fields, Element* number) {
  return fields->Read(kInteger, number) &&
         CheckValue(*number, fields->leniency(), fields->refusal());
}

// The version and the serial number, which stand first and which reading takes as they are.
bool AreNumbersInOrder(ByteView der, Refusal* refusal) {
  Reader whole(ContentOf(der, kSequence), Leniency::kDer, refusal);
  ByteView body, wrapped;
  Element number;
  if (!whole.Read(kSequence, &body)) return false;
  Reader fields(body, Leniency::kDer, refusal);
  if (fields.Sees(ContextConstructed(0))) {
    if (!fields.Read(ContextConstructed(0), &wrapped)) return false;
    Reader version(wrapped, Leniency::kDer, refusal);
    if (!TakeNumber(&version, &number) || !version.End()) return false;
    const bool is_default = number.content.size == 1 && number.content[0] == 0;
    if (is_default) return version.RefuseAt(ORTHOLAN_REASON_DEFAULT, wrapped.data);
  }
  return !fields.Sees(kInteger) || TakeNumber(&fields, &number);
}

}  // namespace

void Encoding(const CheckCase& at) {
  if (!at.document.is_readable) return;
  Refusal refusal = at.document.refusal;
  const ByteView der = at.document.view.der();
  if (refusal || !AreNumbersInOrder(der, &refusal)) at.Fault(der, refusal);
}

// Where there is an empty list, nothing else can be told.
void EmptyExtensions(const CheckCase& at) {
  const Refusal& refusal = at.document.refusal;
  if (refusal.reason != ORTHOLAN_REASON_EMPTY || at.document.is_readable) return;
  at.Fault({static_cast<const uint8_t*>(refusal.at), 0});
}

void Version(const CheckCase& at) {
  if (at.document.view.extensions().size() != 0 && at.document.version != 3) at.Fault();
}

void ListVersion(const CheckCase& at) {
  if (at.document.version == 2) return;
  bool has_extensions = at.document.view.extensions().size() != 0;
  ForEachElement(ContentOf(at.document.view.revoked(), kSequence), [&](const Element& entry) {
    has_extensions = has_extensions || HasPart(entry.content, kSequence);
  });
  if (has_extensions) at.Fault();
}

void SerialSign(const CheckCase& at) {
  const ByteView serial = at.document.view.serial();
  const bool is_zero = serial.size == 1 && serial[0] == 0;
  if (serial.empty() || is_zero || (serial[0] & 0x80) != 0) at.Fault(serial);
}

void SerialSize(const CheckCase& at) {
  const ByteView serial = at.document.view.serial();
  if (serial.size > kMaxSerialOctets) at.Fault(serial);
}

void EmptyIssuer(const CheckCase& at) {
  const ByteView issuer = at.document.view.issuer();
  if (IsEmpty(issuer)) at.Fault(issuer);
}

void EmptySubjectOfAuthority(const CheckCase& at) {
  const ByteView subject = at.document.view.subject();
  if (at.document.is_authority && IsEmpty(subject)) at.Fault(subject);
}

void EmptySubjectOfListIssuer(const CheckCase& at) {
  const ByteView subject = at.document.view.subject();
  if (at.document.HasUsage(kCrlSign) && IsEmpty(subject)) at.Fault(subject);
}

void EmptySubjectWithoutNames(const CheckCase& at) {
  const ByteView subject = at.document.view.subject();
  if (IsEmpty(subject) && !at.document.Has(oids::kAlternativeNames.view())) at.Fault(subject);
}

void EmailOutsideNames(const CheckCase& at) {
  const ByteView email = EmailOf(at.document.view.subject());
  if (email.empty() || HasMailbox(at.document.Find(oids::kAlternativeNames.view()).value)) return;
  at.Fault(email);
}

// Whether a certificate is self-signed takes a key; one that is self-issued may be.
void MissingAuthorityKeyId(const CheckCase& at) {
  if (!at.document.IsSelfIssued()) Missing(at);
}

void MissingInAuthority(const CheckCase& at) {
  if (at.document.is_authority) Missing(at);
}

void Missing(const CheckCase& at) {
  if (!at.document.Has(at.rule.oid.view())) at.Fault();
}

}  // namespace Ortholan::strict::looks
