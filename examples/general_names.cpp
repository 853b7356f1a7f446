#include "examples/general_names.h"

#include <ortholan/general_name.h>
#include <ortholan/status.h>

#include <algorithm>
#include <iterator>
#include <ortholan/strict.hpp>

#include "examples/der.h"
#include "examples/name_text.h"
#include "examples/oid_names.h"
#include "examples/text.h"

namespace Example {
namespace {

bool isLibraryTextWanted = false;

// By the numbers of their tags.
constexpr const char* kNameKinds[] = {
    "otherName",
    "rfc822Name",
    "dNSName",
    "x400Address",
    "directoryName",
    "ediPartyName",
    "uniformResourceIdentifier",
    "iPAddress",
    "registeredID",
};

// What stands behind the kind in the library's text: "DNS:example.org".
std::string BehindKind(const ortholan::GeneralName& name) {
  const std::string text = name.Text();
  const std::string rest = text.substr(text.find(':') + 1);
  return rest.empty() || rest[0] != '#' ? rest : rest.substr(1);
}

std::string TextOf(const ortholan::GeneralName& name) {
  switch (name.kind()) {
    case ortholan::NameKind::kMail:
    case ortholan::NameKind::kDns:
    case ortholan::NameKind::kUri:
      return Repaired(std::string(name.AsText()));
    case ortholan::NameKind::kDirectory:
      return NameLine(Copy(View(name.content())));
    default:
      return BehindKind(name);
  }
}

void AddType(const ortholan::GeneralName& name, GeneralNameReading& reading) {
  const ortholan::Result<ortholan::OtherName> other = name.AsOther();
  if (!other) return;
  reading.type = ortholan::OidToText(other->type).value();
  reading.typeName = OidName(reading.type);
  const bool isText = other->kind != ortholan::OtherNameKind::kUnknown &&
                      other->kind != ortholan::OtherNameKind::kKerberos && !other->text.empty();
  if (isText) reading.text = other->text;
}

std::string LibraryText(std::string_view name) {
  try {
    return ToUtf8(Ortholan::GeneralName::DerDecode(Copy(name)).ToString(0, 0));
  } catch (const Ortholan::XZEPStatus&) {
    return {};
  }
}

}  // namespace

void SetLibraryText(bool isWanted) { isLibraryTextWanted = isWanted; }

GeneralNameReading ReadGeneralName(std::string_view octets) {
  GeneralNameReading reading;
  reading.octets = octets;
  const auto name = ortholan::GeneralName::Read(octets, ortholan::Reading::kLenient);
  if (!name) return reading;
  reading.kind = kNameKinds[static_cast<std::size_t>(name->kind())];
  reading.text = TextOf(*name);
  if (name->kind() == ortholan::NameKind::kOther) AddType(*name, reading);
  if (isLibraryTextWanted) reading.libraryText = LibraryText(octets);
  return reading;
}

std::vector<GeneralNameReading> ReadGeneralNames(std::string_view value) {
  std::vector<GeneralNameReading> names;
  std::string_view rest = OnlyElement(value).content;
  for (Der each; TakeElement(rest, each);) names.push_back(ReadGeneralName(each.whole));
  if (!rest.empty()) names.push_back(ReadGeneralName(rest));
  return names;
}

}  // namespace Example
