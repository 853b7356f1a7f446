#include "examples/document.h"

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/fields.h"
#include "examples/sha256.h"
#include "examples/text.h"

namespace Example {
namespace {

// The fields of what is signed, the part that has the names.
struct Signed {
  std::string_view serialNumber;
  std::string_view issuer;
  std::string_view validity;
  std::string_view subject;
  std::string_view extensions;  // the SEQUENCE OF; null where there are none
  std::string_view attributes;  // of a request
  Der thisUpdate, nextUpdate;
  std::string_view revoked;
};

std::string_view SignedContent(std::string_view der) {
  return ContentOf(Fields(ContentOf(der, kSequence)).Need(kSequence).whole, kSequence);
}

// RFC 5280 4.1
Signed ReadCertificate(std::string_view content) {
  Signed parts;
  Fields fields(content);
  fields.Take(kContextConstructed);
  parts.serialNumber = fields.Need(kInteger).content;
  fields.Need(kSequence);
  parts.issuer = fields.Need(kSequence).whole;
  parts.validity = fields.Need(kSequence).content;
  parts.subject = fields.Need(kSequence).whole;
  fields.Need(kSequence);
  while (!fields.AtEnd()) {
    const Der& field = fields.Any();
    if (field.tag == kContextConstructed + 3) parts.extensions = field.content;
  }
  return parts;
}

// RFC 2986 4.1
Signed ReadRequest(std::string_view content) {
  Signed parts;
  Fields fields(content);
  fields.Need(kInteger);
  parts.subject = fields.Need(kSequence).whole;
  fields.Need(kSequence);
  parts.attributes = fields.Need(kContextConstructed).content;
  return parts;
}

// RFC 5280 5.1
Signed ReadRevocationList(std::string_view content) {
  Signed parts;
  Fields fields(content);
  fields.Take(kInteger);
  fields.Need(kSequence);
  parts.issuer = fields.Need(kSequence).whole;
  parts.thisUpdate = fields.Any();
  for (const unsigned tag : {kUtcTime, kGeneralizedTime}) {
    if (const Der* const time = fields.Take(tag)) parts.nextUpdate = *time;
  }
  if (const Der* const list = fields.Take(kSequence)) parts.revoked = list->content;
  if (const Der* const wrapped = fields.Take(kContextConstructed))
    parts.extensions = wrapped->content;
  return parts;
}

void AddName(Document& document, const char* role, std::string_view name) {
  if (name.empty()) return;
  const Ortholan::IdentObj octets = Copy(name);
  document.names.push_back(
      {role, ReadNameText(octets), ReadNameTree(octets), ReadStrictName(name)});
  const NameText& text = document.names.back().text;
  if (text.accepted || text.isMultiValued) return;
  document.faults.push_back(std::string(role) + " cannot be decoded: " + text.reason);
}

void AddExtensions(Document& document, std::string_view wrapped) {
  if (wrapped.empty()) return;
  const Der list = OnlyElement(wrapped);
  bool isWhole = false;
  const std::vector<Der> records = Elements(list.content, &isWhole);
  if (list.tag != kSequence || !isWhole)
    document.faults.emplace_back("the extensions cannot be read");
  if (list.tag != kSequence) return;
  for (const Der& record : records) {
    const ExtensionReading& reading = document.extensions.emplace_back(ReadExtension(record));
    if (!reading.isRead) {
      document.faults.emplace_back("an extension cannot be read");
    } else if (reading.isFaulty) {
      document.faults.push_back(reading.hasNames ? "a general name cannot be read"
                                                 : std::string(reading.name) + " cannot be read");
    }
  }
}

// RFC 2985 5.4.2: the attribute extensionRequest.
void AddRequestedExtensions(Document& document, std::string_view attributes) {
  for (const Der& attribute : Elements(attributes)) {
    const std::vector<Der> parts = Elements(attribute.content);
    const bool isRequest = parts.size() == 2 && parts[0].tag == kOid &&
                           OidText(parts[0].content) == "1.2.840.113549.1.9.14";
    if (isRequest) AddExtensions(document, parts[1].content);
  }
}

void AddTime(Document& document, const char* label, const char* member, const Der& time) {
  if (time.tag == 0) return;
  document.facts.push_back({label, member, Value::Text(TimeText(time.tag, time.content))});
}

void AddFacts(Document& document, const Signed& parts, std::string_view der) {
  if (!parts.serialNumber.empty()) {
    document.facts.push_back(
        {"serial number", "serialNumber", Value::Text(Hex(parts.serialNumber))});
  }
  const std::vector<Der> times = Elements(parts.validity);
  if (times.size() == 2) {
    AddTime(document, "not before", "notBefore", times[0]);
    AddTime(document, "not after", "notAfter", times[1]);
  }
  AddTime(document, "this update", "thisUpdate", parts.thisUpdate);
  AddTime(document, "next update", "nextUpdate", parts.nextUpdate);
  if (document.kind == Kind::kRevocationList) {
    const std::size_t count = Elements(parts.revoked).size();
    document.facts.push_back({"revoked certificates", "revoked", Value::Number(count)});
  }
  document.facts.push_back({"SHA-256", "sha256", Value::Text(Hex(Sha256(der)))});
}

Signed ReadSigned(Kind kind, std::string_view content) {
  if (kind == Kind::kRequest) return ReadRequest(content);
  return kind == Kind::kRevocationList ? ReadRevocationList(content) : ReadCertificate(content);
}

// The document itself, without what may stand behind it in a TRUSTED CERTIFICATE.
std::string_view FirstElement(std::string_view octets) {
  Der element;
  if (!TakeElement(octets, element)) Refuse("the octets are cut short, or no DER");
  return element.whole;
}

}  // namespace

Document ReadDocument(std::string_view der) {
  der = FirstElement(der);
  Document document;
  const Kind kind = KindOf(der);
  if (!IsDocument(kind)) RefuseOther(der, Kind::kCertificate);
  if (IsDocument(kind)) document.kind = kind;
  try {
    const Signed parts = ReadSigned(document.kind, SignedContent(der));
    AddFacts(document, parts, der);
    AddName(document, "subject", parts.subject);
    AddName(document, "issuer", parts.issuer);
    AddExtensions(document, parts.extensions);
    AddRequestedExtensions(document, parts.attributes);
  } catch (const Malformed&) {
    Refuse("the fields are not those of " + std::string(KindText(document.kind)));
  }
  return document;
}

std::vector<std::string_view> ReadCertificateNames(std::string_view der) {
  try {
    const Signed parts = ReadCertificate(SignedContent(FirstElement(der)));
    return {parts.subject, parts.issuer};
  } catch (const Malformed&) {
    Refuse("no certificate");
  }
}

}  // namespace Example
