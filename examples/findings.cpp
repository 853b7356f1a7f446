#include "examples/findings.h"

#include <algorithm>
#include <list>
#include <ortholan/strict.hpp>

#include "examples/colour.h"
#include "examples/der.h"
#include "examples/document.h"
#include "examples/failure.h"
#include "examples/json.h"
#include "examples/pasted.h"
#include "examples/show_json.h"
#include "examples/show_text.h"
#include "examples/text.h"

namespace Example {
namespace {

// "DNS:a_b": empty for a part that is no general name.
std::string TextOf(std::string_view part) {
  constexpr unsigned kContextClass = 0x80;
  const bool isTagged =
      !part.empty() && (static_cast<unsigned char>(part[0]) & 0xC0) == kContextClass;
  return isTagged ? ortholan::GeneralNameText(part) : std::string();
}

// The serial number of the entry that a part lies in; empty where it lies in none.
std::string SerialOf(std::string_view part, const std::vector<Der>& entries) {
  const auto behind = std::upper_bound(
      entries.begin(), entries.end(), part.data(),
      [](const char* place, const Der& entry) { return place < entry.whole.data(); });
  if (part.empty() || behind == entries.begin()) return {};
  const std::string_view entry = (behind - 1)->whole;
  if (part.data() >= entry.data() + entry.size()) return {};
  const std::vector<Der> fields = Elements((behind - 1)->content);
  return fields.empty() ? std::string() : Hex(fields[0].content);
}

Finding FindingOf(const ortholan::Fault& fault, const std::vector<Der>& entries) {
  const std::string_view part = View(fault.part);
  Finding finding = {fault.rule, fault.section, fault.sentence,          {},
                     {},         part,          SerialOf(part, entries), TextOf(part)};
  if (fault.refusal.reason != ORTHOLAN_REASON_NONE) {
    finding.what += ": " + ortholan::Refusal(fault.refusal).Sentence();
  }
  if (fault.extension.size == 0) return finding;
  finding.oid = ortholan::OidToText(fault.extension).value();
  const auto type = ortholan::FindExtensionType(fault.extension);
  finding.title = type ? std::string(type->title) : finding.oid;
  return finding;
}

std::string FindingJson(const Finding& finding) {
  JsonObject object;
  object.AddText("rule", finding.rule).AddText("section", finding.section);
  if (!finding.oid.empty()) object.AddText("oid", finding.oid).AddText("name", finding.title);
  object.AddText("what", finding.what);
  if (!finding.serial.empty()) object.AddText("serialNumber", finding.serial);
  if (!finding.text.empty()) object.AddText("text", finding.text);
  if (!finding.part.empty()) object.AddText("octets", Hex(finding.part));
  return object.End();
}

// "RFC 5280 4.2.1.9"; a section of another RFC names it.
std::string SourceOf(const std::string& section) {
  return (section.compare(0, 3, "RFC") == 0 ? "" : "RFC 5280 ") + section;
}

}  // namespace

Findings ReadFindings(std::string_view der) {
  RequireOne(der);
  der = FirstElement(der);
  Findings findings;
  const Kind kind = KindOf(der);
  if (!IsDocument(kind)) RefuseOther(der, Kind::kCertificate);
  if (IsDocument(kind)) findings.kind = kind;
  const auto faults = ortholan::Check(der);
  if (!faults) {
    Refuse("the fields are not those of " + std::string(KindText(findings.kind)) + ": " +
           faults.refusal().Sentence());
  }
  const bool isList = findings.kind == Kind::kRevocationList;
  const std::vector<Der> entries = isList ? RevokedEntries(der) : std::vector<Der>();
  for (const ortholan::Fault& fault : *faults) findings.list.push_back(FindingOf(fault, entries));
  return findings;
}

std::string FindingsText(std::size_t number, const Findings& findings) {
  std::string text = Paint(Colour::kHeading, DocumentTitle(findings.kind, number));
  if (findings.list.empty()) return text + ": nothing found\n";
  text += "\n";
  for (const Finding& finding : findings.list) {
    text += "  " + SourceOf(finding.section) + ": ";
    if (!finding.serial.empty()) text += "serial number " + finding.serial + ": ";
    if (!finding.title.empty()) text += Paint(Colour::kKey, finding.title) + ": ";
    text += Visible(finding.what);
    text += finding.text.empty() ? "\n" : ": " + Paint(Colour::kNotable, finding.text) + "\n";
  }
  return text;
}

std::string FindingsJson(const std::string& path, std::size_t number, const Findings& findings) {
  std::list<std::string> list;
  for (const Finding& finding : findings.list) list.push_back(FindingJson(finding));
  return JsonPlace(path, number)
      .AddText("kind", std::string(KindWord(findings.kind)))
      .Add("findings", JsonArray(list))
      .End();
}

}  // namespace Example
