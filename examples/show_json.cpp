#include "examples/show_json.h"

#include <algorithm>
#include <string>

#include "examples/json.h"
#include "examples/text.h"

namespace Example {
namespace {

// An array of what `convert` makes of each item.
template <typename Items, typename Convert>
std::string ArrayOf(const Items& items, Convert convert) {
  std::list<std::string> values;
  for (const auto& item : items) values.push_back(convert(item));
  return JsonArray(values);
}

std::string LineJson(const std::wstring& line) { return JsonString(line); }

// Whether U+FFFD stands for something that has no UTF-8.
bool IsLossy(const NameAttribute& attribute) {
  return std::any_of(attribute.lines.begin(), attribute.lines.end(), [](const std::wstring& line) {
    return ToUtf8(line).find("\uFFFD") != std::string::npos;
  });
}

std::string AttributeJson(const NameAttribute& attribute) {
  JsonObject object;
  if (!attribute.isAttribute) return object.AddText("octets", Hex(attribute.octets)).End();
  if (!attribute.oid.empty()) object.AddText("oid", attribute.oid);
  if (!attribute.key.empty()) object.AddText("key", attribute.key);
  object.AddText("stringType", attribute.stringType);
  if (attribute.isRead) {
    object.Add("values", ArrayOf(attribute.lines, LineJson));
  }
  if (!attribute.isRead || IsLossy(attribute)) object.AddText("octets", Hex(attribute.value));
  return object.End();
}

std::string RdnJson(const NameRdn& rdn) { return ArrayOf(rdn.attributes, AttributeJson); }

void AddGeneralName(const GeneralNameReading& name, JsonObject& object) {
  if (name.kind.empty()) {
    object.AddText("octets", Hex(name.octets));
    return;
  }
  object.AddText("kind", name.kind).AddText("text", name.text);
  if (!name.type.empty()) object.AddText("type", name.type).AddText("typeName", name.typeName);
}

std::string NameOfListJson(const GeneralNameReading& name) {
  JsonObject object;
  AddGeneralName(name, object);
  if (!name.libraryText.empty()) object.AddText("libraryText", name.libraryText);
  return object.End();
}

std::string FaultJson(const std::string& what) { return JsonObject().AddText("what", what).End(); }

}  // namespace

JsonObject JsonPlace(const std::string& path, std::size_t number) {
  JsonObject object;
  if (!path.empty()) object.AddText("file", path);
  if (number != 0) object.AddNumber("number", number);
  return object;
}

const char* KindWord(Kind kind) {
  switch (kind) {
    case Kind::kRequest:
      return "certificateRequest";
    case Kind::kRevocationList:
      return "revocationList";
    default:
      return "certificate";
  }
}

std::string NameJson(const NameReading& name) {
  JsonObject object;
  if (name.text.accepted) {
    object.AddText("text", name.text.text);
  } else {
    object.AddText("refused", name.text.reason);
    if (!name.strict.text.empty()) object.AddText("rfc4514", name.strict.text);
  }
  if (!name.strict.refusal.empty()) object.AddText("notDer", name.strict.refusal);
  return object.Add("rdns", ArrayOf(name.tree.rdns, RdnJson)).End();
}

std::string GeneralNameJson(const GeneralNameReading& name, unsigned tag,
                            const std::string& libraryText) {
  JsonObject object;
  object.AddNumber("tag", tag);
  AddGeneralName(name, object);
  return object.AddText("libraryText", libraryText).End();
}

std::string ExtensionJson(const ExtensionReading& extension) {
  JsonObject object;
  if (!extension.isRead) return object.AddText("octets", Hex(extension.record)).End();
  object.AddText("oid", extension.oid);
  if (!extension.title.empty()) object.AddText("name", extension.title);
  object.AddBool("critical", extension.isCritical).AddText("value", Hex(extension.value));
  if (!extension.json.empty()) object.Add("content", extension.json);
  if (!extension.refusal.empty()) object.AddText("notDer", extension.refusal);
  if (!extension.names.empty()) {
    object.Add("generalNames", ArrayOf(extension.names, NameOfListJson));
  }
  return object.End();
}

std::string DocumentJson(const std::string& path, std::size_t number, const Document& document) {
  JsonObject object = JsonPlace(path, number);
  object.AddText("kind", std::string(KindWord(document.kind)));
  for (const Fact& fact : document.facts) {
    object.Add(fact.member, fact.isNumber ? fact.text : JsonString(fact.text));
  }
  if (!document.refusal.empty()) object.AddText("notDer", document.refusal);
  for (const NameReading& name : document.names) object.Add(name.role, NameJson(name));
  return object.Add("extensions", ArrayOf(document.extensions, ExtensionJson))
      .Add("faults", ArrayOf(document.faults, FaultJson))
      .End();
}

std::string RefusedJson(const std::string& path, std::size_t number, const std::string& what) {
  return JsonPlace(path, number).Add("faults", JsonArray({FaultJson(what)})).End();
}

}  // namespace Example
