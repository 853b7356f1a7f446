#include "examples/document.h"

#include <ortholan/strict/certificates.h>

#include <algorithm>
#include <ortholan/strict.hpp>

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/pasted.h"
#include "examples/sha256.h"
#include "examples/text.h"

namespace Example {
namespace {

using ortholan::Refusal;

// The parts that are shown, empty where there are none.
struct Parts {
  std::string_view serialNumber;  // content
  std::string_view subject;       // the others are whole elements
  std::string_view issuer;
  std::string_view notBefore;
  std::string_view notAfter;
  std::vector<std::string_view> extensions;
};

std::string_view SignedContent(std::string_view der) {
  const std::vector<Der> parts = Elements(OnlyElement(der).content);
  return parts.empty() ? std::string_view() : parts[0].content;
}

Parts PartsOf(const ortholan_certificate_view& view) {
  Parts parts = {View(view.serial),     View(view.subject),   View(view.issuer),
                 View(view.not_before), View(view.not_after), {}};
  ortholan_extension_view found;
  for (size_t offset = 0; ortholan_certificate_view_next_extension(&view, &offset, &found) == 0;) {
    parts.extensions.push_back(View(found.bytes));
  }
  return parts;
}

// RFC 5280 4.1 by nothing but the order of the fields, for a certificate that is out of form
// somewhere; false where the names are not where they should be.
bool Salvage(std::string_view der, Parts& parts) {
  std::vector<Der> fields = Elements(SignedContent(der));
  if (!fields.empty() && fields[0].tag == kContextConstructed) fields.erase(fields.begin());
  constexpr unsigned kFirst[] = {kInteger, kSequence, kSequence, kSequence, kSequence};
  if (fields.size() < std::size(kFirst) ||
      !std::equal(std::begin(kFirst), std::end(kFirst), fields.begin(),
                  [](unsigned tag, const Der& field) { return field.tag == tag; })) {
    return false;
  }
  parts = {fields[0].content, fields[4].whole, fields[2].whole, {}, {}, {}};
  for (const Der& field : fields) {
    if (field.tag != kContextConstructed + 3) continue;
    for (const Der& each : Elements(OnlyElement(field.content).content)) {
      parts.extensions.push_back(each.whole);
    }
  }
  return true;
}

// Reads the parts, those of what is no DER as well; `refusal` tells why it is none. Throws Failure.
Parts ReadParts(std::string_view der, Kind kind, std::string* refusal) {
  ortholan_certificate_view view;
  Refusal refused;
  const ortholan_octets octets = ortholan::Octets(der);
  if (ortholan_certificate_view_read(octets, ORTHOLAN_READ_DER, &view, &refused) == 0) {
    return PartsOf(view);
  }
  *refusal = refused.Sentence();
  Parts parts;
  if (ortholan_certificate_view_read(octets, ORTHOLAN_READ_LENIENT, &view, &refused) == 0) {
    return PartsOf(view);
  }
  if (kind != Kind::kCertificate || !Salvage(der, parts)) {
    Refuse("the fields are not those of " + std::string(KindText(kind)) + ": " +
           refused.Sentence());
  }
  return parts;
}

void AddName(Document& document, const char* role, std::string_view name) {
  if (name.empty()) return;
  const Ortholan::IdentObj octets = Copy(name);
  document.names.push_back(
      {role, name, ReadNameText(octets), ReadNameTree(octets), ReadStrictName(name)});
  const NameText& text = document.names.back().text;
  if (text.accepted || text.isMultiValued) return;
  document.faults.push_back(std::string(role) + " cannot be decoded: " + text.reason);
}

void AddExtension(Document& document, std::string_view record) {
  const ExtensionReading& reading = document.extensions.emplace_back(ReadExtension(record));
  if (!reading.isRead) {
    document.faults.emplace_back("an extension cannot be read");
  } else if (reading.IsFaulty()) {
    document.faults.push_back(ExtensionTitle(reading) + " cannot be read: " + reading.refusal);
  }
}

void AddTime(Document& document, const char* label, const char* member, std::string_view time) {
  if (time.empty()) return;
  std::string text;
  const auto put = [time](char* out, size_t room, size_t* size) {
    return ortholan_time_to_text(ortholan::Octets(time), out, room, size);
  };
  // What names no moment is shown as it stands.
  if (ortholan::WithRoom(&text, put) != ORTHOLAN_REASON_NONE) {
    text = Repaired(std::string(OnlyElement(time).content));
  }
  document.facts.push_back({label, member, text});
}

void AddFacts(Document& document, const Parts& parts, std::string_view der) {
  const bool isList = document.kind == Kind::kRevocationList;
  if (!parts.serialNumber.empty()) {
    document.facts.push_back({"serial number", "serialNumber", Hex(parts.serialNumber)});
  }
  AddTime(document, isList ? "this update" : "not before", isList ? "thisUpdate" : "notBefore",
          parts.notBefore);
  AddTime(document, isList ? "next update" : "not after", isList ? "nextUpdate" : "notAfter",
          parts.notAfter);
  if (isList) {
    document.facts.push_back(
        {"revoked certificates", "revoked", std::to_string(RevokedEntries(der).size()), true});
  }
  document.facts.push_back({"SHA-256", "sha256", Hex(Sha256(der))});
}

}  // namespace

// RFC 5280 5.1: they stand behind the times, where there are any.
std::vector<Der> RevokedEntries(std::string_view der) {
  bool isBehindTime = false;
  for (const Der& field : Elements(SignedContent(der))) {
    if (isBehindTime && field.tag == kSequence) return Elements(field.content);
    isBehindTime = field.tag == kUtcTime || field.tag == kGeneralizedTime;
  }
  return {};
}

std::string_view FirstElement(std::string_view octets) {
  Der element;
  if (!TakeElement(octets, element)) Refuse("the octets are cut short, or no DER");
  return element.whole;
}

Document ReadDocument(std::string_view der) {
  const std::size_t size = der.size();
  der = FirstElement(der);
  Document document;
  if (size != der.size()) document.faults.push_back(LeftOver(size - der.size(), der.size()));
  const Kind kind = KindOf(der);
  if (!IsDocument(kind)) RefuseOther(der, Kind::kCertificate);
  if (IsDocument(kind)) document.kind = kind;
  const Parts parts = ReadParts(der, document.kind, &document.refusal);
  AddFacts(document, parts, der);
  AddName(document, "subject", parts.subject);
  AddName(document, "issuer", parts.issuer);
  for (const std::string_view record : parts.extensions) AddExtension(document, record);
  return document;
}

std::vector<std::string_view> ReadCertificateNames(std::string_view der) {
  std::string refusal;
  const Parts parts = ReadParts(FirstElement(der), Kind::kCertificate, &refusal);
  return {parts.subject, parts.issuer};
}

}  // namespace Example
