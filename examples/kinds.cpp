#include "examples/kinds.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

#include "examples/der.h"
#include "examples/failure.h"

namespace Example {
namespace {

struct KindRow {
  Kind kind;
  const char* text;
  const char* advice;  // which command to take
};
constexpr KindRow kKinds[] = {
    {Kind::kUnknown, "nothing known", ""},
    {Kind::kCertificate, "a certificate", "`x509name show` shows it"},
    {Kind::kRequest, "a certificate request", "`x509name show` shows it"},
    {Kind::kRevocationList, "a certificate revocation list", "`x509name show` shows it"},
    {Kind::kPkcs7, "a PKCS #7 bundle", "`x509name show` shows its certificates"},
    {Kind::kName, "a name", "`x509name decode` tells its text"},
    {Kind::kExtension, "an extension", "`x509name extension` reads it"},
    {Kind::kExtensions, "a list of extensions", "`x509name extension` reads one of them"},
    {Kind::kGeneralName, "a general name", "`x509name general-name` reads it"},
    {Kind::kGeneralNames, "a list of general names", "`x509name general-name` reads one of them"},
};

const KindRow& Row(Kind kind) {
  return *std::find_if(std::begin(kKinds), std::end(kKinds),
                       [kind](const KindRow& row) { return row.kind == kind; });
}

using Tags = std::vector<unsigned>;

Tags TagsOf(std::string_view content) {
  Tags tags;
  for (const Der& each : Elements(content)) tags.push_back(each.tag);
  return tags;
}

bool StartWith(const Tags& tags, const Tags& first) {
  return tags.size() >= first.size() && std::equal(first.begin(), first.end(), tags.begin());
}

// SEQUENCE { what is signed, algorithm, BIT STRING }, told by the fields of the first.
Kind SignedKind(std::string_view content) {
  Tags fields = TagsOf(content);
  if (!fields.empty() && fields[0] == kContextConstructed) return Kind::kCertificate;
  if (StartWith(fields, {kInteger, kSequence, kSequence, kContextConstructed})) {
    return Kind::kRequest;
  }
  if (StartWith(fields, {kInteger, kSequence, kSequence, kSequence})) return Kind::kCertificate;
  if (!fields.empty() && fields[0] == kInteger) fields.erase(fields.begin());
  const bool isList = StartWith(fields, {kSequence, kSequence, kUtcTime}) ||
                      StartWith(fields, {kSequence, kSequence, kGeneralizedTime});
  return isList ? Kind::kRevocationList : Kind::kUnknown;
}

bool IsExtension(const Der& element) {
  const Tags tags = TagsOf(element.content);
  return element.tag == kSequence &&
         (tags == Tags{kOid, kOctetString} || tags == Tags{kOid, kBoolean, kOctetString});
}

// Context-specific, of the nine that RFC 5280 4.2.1.6 lists.
bool IsGeneralName(const Der& element) {
  return (element.tag & 0xC0) == 0x80 && (element.tag & 0x1F) <= 8;
}

bool IsRdn(const Der& element) {
  if (element.tag != kSet) return false;
  const std::vector<Der> attributes = Elements(element.content);
  return !attributes.empty() && attributes[0].tag == kSequence &&
         StartWith(TagsOf(attributes[0].content), {kOid});
}

Kind SequenceKind(std::string_view content) {
  const std::vector<Der> parts = Elements(content);
  const Tags tags = TagsOf(content);
  if (tags == Tags{kSequence, kSequence, kBitString}) {
    const Kind kind = SignedKind(parts[0].content);
    if (kind != Kind::kUnknown) return kind;
  }
  if (tags == Tags{kOid, kContextConstructed}) return Kind::kPkcs7;
  if (tags == Tags{kOid, kOctetString} || tags == Tags{kOid, kBoolean, kOctetString}) {
    return Kind::kExtension;
  }
  if (parts.empty() || std::all_of(parts.begin(), parts.end(), IsRdn)) return Kind::kName;
  if (std::all_of(parts.begin(), parts.end(), IsExtension)) return Kind::kExtensions;
  if (std::all_of(parts.begin(), parts.end(), IsGeneralName)) return Kind::kGeneralNames;
  return Kind::kUnknown;
}

}  // namespace

Kind KindOf(std::string_view octets) {
  const Der element = OnlyElement(octets);
  if (element.tag == kSequence) return SequenceKind(element.content);
  return IsGeneralName(element) ? Kind::kGeneralName : Kind::kUnknown;
}

bool IsDocument(Kind kind) {
  return kind == Kind::kCertificate || kind == Kind::kRequest || kind == Kind::kRevocationList ||
         kind == Kind::kPkcs7;
}

const char* KindText(Kind kind) { return Row(kind).text; }

void RefuseOther(std::string_view octets, Kind wanted) {
  const Kind kind = KindOf(octets);
  if (kind == wanted || kind == Kind::kUnknown) return;
  Refuse(std::string("this is ") + Row(kind).text + ", not " + Row(wanted).text + ": " +
         Row(kind).advice);
}

}  // namespace Example
