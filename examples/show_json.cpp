#include "examples/show_json.h"

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

std::string AttributeJson(const NameAttribute& attribute) {
  JsonObject object;
  if (!attribute.isAttribute) return object.AddText("octets", Hex(attribute.octets)).End();
  if (!attribute.oid.empty()) object.AddText("oid", attribute.oid);
  if (!attribute.key.empty()) object.AddText("key", attribute.key);
  object.AddText("stringType", attribute.stringType);
  if (attribute.isRead) {
    object.Add("values", ArrayOf(attribute.lines, LineJson));
  } else {
    object.AddText("octets", Hex(attribute.value));
  }
  return object.End();
}

std::string RdnJson(const NameRdn& rdn) { return ArrayOf(rdn.attributes, AttributeJson); }

std::string NameJson(const NameReading& name) {
  JsonObject object;
  if (name.text.accepted) {
    object.AddText("text", name.text.text);
  } else {
    object.AddText("refused", name.text.reason);
  }
  return object.Add("rdns", ArrayOf(name.tree.rdns, RdnJson)).End();
}

std::string GeneralNameJson(const GeneralNameReading& name) {
  JsonObject object;
  if (!name.isRead) return object.AddText("octets", Hex(name.octets)).End();
  object.AddText("kind", name.kind).AddText("text", name.text);
  if (!name.meaning.empty()) object.AddText("meaning", name.meaning);
  return object.End();
}

std::string ExtensionJson(const ExtensionReading& extension) {
  JsonObject object;
  if (!extension.isRead) return object.AddText("octets", Hex(extension.record)).End();
  object.AddText("oid", extension.oid);
  if (extension.name != nullptr) object.AddText("name", std::string(extension.name));
  object.AddBool("critical", extension.isCritical).AddText("value", Hex(extension.value));
  if (extension.generalNames) {
    object.Add("generalNames", ArrayOf(extension.generalNames->names, GeneralNameJson));
  }
  return object.End();
}

std::string OneFaultJson(const Failure& fault) {
  return JsonObject()
      .AddText("what", fault.what)
      .AddNumber("code", fault.code)
      .AddText("meaning", std::string(Meaning(fault.code)))
      .End();
}

JsonObject Place(const std::string& path, std::size_t number) {
  JsonObject object;
  object.AddText("file", path);
  if (number != 0) object.AddNumber("number", number);
  return object;
}

}  // namespace

std::string CertificateJson(const std::string& path, std::size_t number,
                            const CertificateReading& certificate) {
  return Place(path, number)
      .Add("subject", NameJson(certificate.subject))
      .Add("issuer", NameJson(certificate.issuer))
      .Add("extensions", ArrayOf(certificate.extensions, ExtensionJson))
      .Add("faults", ArrayOf(certificate.faults, OneFaultJson))
      .End();
}

std::string FaultJson(const std::string& path, std::size_t number, const Failure& fault) {
  return Place(path, number).Add("faults", JsonArray({OneFaultJson(fault)})).End();
}

}  // namespace Example
