#include "examples/general_names.h"

#include <ortholan/general_name.h>
#include <ortholan/status.h>

#include <algorithm>
#include <optional>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "examples/name_text.h"
#include "examples/oid_names.h"
#include "examples/text.h"

namespace Example {
namespace {

bool isLibraryTextWanted = false;

// Each reader takes the content of an alternative and gives its text; nothing for what is no such.
using Reading = std::optional<std::string>;

Reading Characters(std::string_view content) { return StringText(kIa5String, content); }

// With its mask behind it where it is a range (RFC 5280 4.2.1.10).
Reading Address(std::string_view content) {
  const ortholan::Result<std::string> text = ortholan::AddressToText(content);
  if (!text) return std::nullopt;
  return *text;
}

Reading Identifier(std::string_view content) {
  std::string text = OidText(content);
  if (text.empty()) return std::nullopt;
  return text;
}

// [4] EXPLICIT Name
Reading Directory(std::string_view content) {
  const Der name = OnlyElement(content);
  if (name.tag != kSequence) return std::nullopt;
  return NameLine(Copy(name.whole));
}

// [0] nameAssigner and [1] partyName, each around a DirectoryString.
Reading EdiParty(std::string_view content) {
  std::string text;
  for (const Der& part : Elements(content)) {
    const Der string = OnlyElement(part.content);
    if (string.whole.empty()) return std::nullopt;
    text += (text.empty() ? "" : ", ") + StringText(string.tag, string.content);
  }
  return text;
}

Reading Digits(std::string_view content) { return Hex(content); }

struct Alternative {
  unsigned tag;
  const char* kind;
  Reading (*read)(std::string_view content);
};
constexpr Alternative kAlternatives[] = {
    {kContext + 1, "rfc822Name", Characters},
    {kContext + 2, "dNSName", Characters},
    {kContextConstructed + 3, "x400Address", Digits},
    {kContextConstructed + 4, "directoryName", Directory},
    {kContextConstructed + 5, "ediPartyName", EdiParty},
    {kContext + 6, "uniformResourceIdentifier", Characters},
    {kContext + 7, "iPAddress", Address},
    {kContext + 8, "registeredID", Identifier},
};

bool IsString(unsigned tag) {
  constexpr unsigned kStrings[] = {kUtf8String, kPrintableString, kTeletexString,
                                   kIa5String,  kVisibleString,   kBmpString};
  return std::find(std::begin(kStrings), std::end(kStrings), tag) != std::end(kStrings);
}

constexpr unsigned kGeneralString = 0x1B;

// RFC 4556 3.2.2: [0] realm, [1] SEQUENCE { [0] kind, [1] SEQUENCE OF component }; strings are
// GeneralString.
Reading KerberosName(std::string_view content) {
  const std::vector<Der> parts = Elements(content);
  if (parts.size() != 2) return std::nullopt;
  const std::vector<Der> principal = Elements(OnlyElement(parts[1].content).content);
  const Der realm = OnlyElement(parts[0].content);
  if (principal.size() != 2 || realm.tag != kGeneralString) return std::nullopt;
  std::string text;
  for (const Der& component : Elements(OnlyElement(principal[1].content).content)) {
    text += (text.empty() ? "" : "/") + StringText(kIa5String, component.content);
  }
  return text + "@" + StringText(kIa5String, realm.content);
}

// [0] { OBJECT IDENTIFIER, [0] EXPLICIT value }
std::optional<Value> OtherName(std::string_view content) {
  const std::vector<Der> parts = Elements(content);
  if (parts.size() != 2 || parts[0].tag != kOid) return std::nullopt;
  const Der value = OnlyElement(parts[1].content);
  const std::string oid = OidText(parts[0].content);
  const std::string type = OidName(oid);
  std::string text = Hex(value.whole);
  if (IsString(value.tag)) text = StringText(value.tag, value.content);
  if (type == "krb5PrincipalName") text = KerberosName(value.content).value_or(text);
  Value line = Value::Line("kind", "otherName", text);
  return line.Add("type", Value::Text(oid)).Add("typeName", Value::Text(type));
}

std::optional<Value> Read(const Der& name) {
  if (name.tag == kContextConstructed) return OtherName(name.content);
  const auto* const row =
      std::find_if(std::begin(kAlternatives), std::end(kAlternatives),
                   [&name](const Alternative& each) { return each.tag == name.tag; });
  if (row == std::end(kAlternatives)) return std::nullopt;
  const Reading text = row->read(name.content);
  if (!text) return std::nullopt;
  return Value::Line("kind", row->kind, *text);
}

std::string LibraryText(const Der& name) {
  try {
    return ToUtf8(Ortholan::GeneralName::DerDecode(Copy(name.whole)).ToString(0, 0));
  } catch (const Ortholan::XZEPStatus&) {
    return {};
  }
}

}  // namespace

void SetLibraryText(bool isWanted) { isLibraryTextWanted = isWanted; }

Value GeneralNameValue(const Der& name) {
  Value value = Read(name).value_or(Value::Unread(name.whole));
  if (isLibraryTextWanted && value.form == Value::Form::kLine) {
    value.Add("libraryText", Value::Text(LibraryText(name)));
  }
  return value;
}

Value GeneralNamesValue(std::string_view content) {
  Value names = Value::List();
  for (Der each; TakeElement(content, each);) names.Add(GeneralNameValue(each));
  if (!content.empty()) names.Add(Value::Unread(content));
  return names;
}

}  // namespace Example
