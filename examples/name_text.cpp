#include "examples/name_text.h"

#include <ortholan/asn1.h>
#include <ortholan/name_options.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstddef>
#include <list>

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/name_tree.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

// What in the tree of `name` the decoders refuse without a code; empty where it is not the tree.
std::string ShapeFault(const IdentObj& name) {
  std::list<IdentObj> rdns;
  if (!Split(name, rdns)) return {};
  for (const IdentObj& rdn : rdns) {
    std::list<IdentObj> attributes;
    if (!Split(rdn, attributes)) return "an RDN that is corrupt";
    if (attributes.empty()) return "an RDN without attributes";
    if (attributes.size() > 1) return "several attributes in one RDN";
    std::list<IdentObj> parts;
    if (!Split(attributes.front(), parts) || parts.size() != 2 ||
        std::count_if(parts.begin(), parts.end(), IsTypeElement) != 1) {
      return "an attribute that is not one type and one value";
    }
  }
  return {};
}

// Whether every RDN can be read and one has several attributes.
bool IsMultiValued(const IdentObj& name) {
  std::list<IdentObj> rdns;
  std::size_t most = 0;
  if (!Split(name, rdns)) return false;
  for (const IdentObj& rdn : rdns) {
    std::list<IdentObj> attributes;
    if (!Split(rdn, attributes)) return false;
    for (const IdentObj& attribute : attributes) {
      std::list<IdentObj> parts;
      if (!Split(attribute, parts) || parts.size() != 2) return false;
    }
    if (attributes.empty()) return false;
    most = std::max(most, attributes.size());
  }
  return most > 1;
}

}  // namespace

NameText ReadNameText(const IdentObj& name) {
  NameText result;
  SetLastError(ERROR_SUCCESS);
  result.accepted = name.cbData != 0 && X509Name(name).TryGetX500String(result.text, kStyleKeys);
  if (result.accepted) return result;
  result.code = GetLastError();
  result.reason = Meaning(result.code);
  if (result.code == ERROR_SUCCESS) {
    result.reason = name.cbData != 0 ? ShapeFault(name) : "no octets";
    result.isMultiValued = IsMultiValued(name);
  }
  return result;
}

namespace {

std::string AttributeLine(const NameAttribute& attribute) {
  std::string text = attribute.key.empty() ? attribute.oid : ToUtf8(attribute.key);
  text += "=";
  if (!attribute.isRead) return text + "#" + Hex(attribute.value);
  for (const std::wstring& line : attribute.lines) {
    text += (&line == &attribute.lines.front() ? "" : " | ") + ToUtf8(line);
  }
  return text;
}

}  // namespace

std::string NameLine(const IdentObj& name) {
  const NameText text = ReadNameText(name);
  if (text.accepted) return ToUtf8(text.text);
  std::string line;
  for (const NameRdn& rdn : ReadNameTree(name).rdns) {
    const char* mark = line.empty() ? "" : ",";
    for (const NameAttribute& attribute : rdn.attributes) {
      line += mark + AttributeLine(attribute);
      mark = "+";
    }
  }
  return line;
}

std::string RdnLine(std::string_view attributes) {
  std::list<IdentObj> parts;
  for (const Der& each : Elements(attributes)) parts.push_back(Copy(each.whole));
  return NameLine(ASNTPutSequence({ASNTPutSequence(parts, 17)}, 16));
}

void FailToDecode(DWORD code, const IdentObj& name, const char* role) {
  const std::string what = std::string(role) + " cannot be decoded";
  // The text decoder sets a code where the others do not.
  const NameText text = ReadNameText(name);
  if (code == ERROR_SUCCESS) code = text.code;
  if (code != ERROR_SUCCESS) Fail(code, what);
  const char* const advice = text.isMultiValued ? "; `x509name decode --rfc4514` takes it" : "";
  Refuse(text.reason.empty() ? what : what + ": " + text.reason + advice);
}

}  // namespace Example
