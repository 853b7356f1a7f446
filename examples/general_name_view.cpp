#include "examples/general_name_view.h"

#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>
#include <ortholan/status.h>

#include <cstddef>
#include <iterator>
#include <list>

#include "examples/failure.h"
#include "examples/input.h"
#include "examples/name_view.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr const char* kKinds[] = {
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

std::string Kind(GeneralNameTag tag) {
  return tag < std::size(kKinds) ? kKinds[tag] : "[" + std::to_string(tag) + "]";
}

IdentObj Content(const IdentObj& element) {
  ASNT_ASN_STRUCT_INFO info;
  if (ASNTGetStructInfo(info, element.pbData, element.cbData) != 0) return {};
  const auto header = static_cast<DWORD>(info.content - element.pbData);
  if (info.length > element.cbData - header) return {};
  return {info.content, info.length};
}

// The children of an element without a fault; none otherwise.
std::list<IdentObj> Parts(const IdentObj& element) {
  std::list<IdentObj> parts;
  DWORD status = 0;
  ASNTGetSequence(parts, element.pbData, element.cbData, &status);
  if (status != 0) parts.clear();
  return parts;
}

// RFC 4291 2.2, groups in full.
std::string Ip6Text(const IdentObj& address) {
  std::string text;
  for (DWORD i = 0; i < address.cbData; i += 2) {
    text += (i == 0 ? "" : ":") + Hex(IdentObj(address.pbData + i, 2));
  }
  return text;
}

std::string AddressReading(const IdentObj& address) {
  if (address.cbData == 16) return Ip6Text(address);
  if (address.cbData != 4) return SpacedHex(address);
  return Visible(GeneralName(iPAddress, address).ToString(0, 0));
}

// [4] EXPLICIT Name
std::string DirectoryReading(const GeneralName& name) {
  const std::list<IdentObj> parts = Parts(name.GetContent());
  if (parts.size() != 1) return {};
  const NameText text = ReadNameText(parts.front());
  return text.accepted ? Visible(text.text) : "(refused: " + text.reason + ")";
}

// [0] SEQUENCE { OBJECT IDENTIFIER, [0] EXPLICIT value }
std::string OtherReading(const GeneralName& name) {
  const std::list<IdentObj> parts = Parts(name.GetContent());
  if (parts.size() != 2) return {};
  return DerHelper::DecodeOid(parts.front(), false) + " " + SpacedHex(Content(parts.back()));
}

// What the octets of a name hold whose text is raw octets; empty for the other kinds.
std::string Reading(const GeneralName& name) {
  switch (name.GetTag()) {
    case otherName:
      return OtherReading(name);
    case directoryName:
      return DirectoryReading(name);
    case iPAddress:
      return AddressReading(Content(name.GetContent()));
    default:
      return {};
  }
}

std::string Text(GeneralName name) {
  std::wstring text = name.ToString(0, 0);
  // An other name's text has as many NULs behind it as it has octets, an EDI party's a line end.
  while (!text.empty() && (text.back() == L'\0' || text.back() == L'\n')) text.pop_back();
  return Visible(text);
}

void PrintGeneralName(const IdentObj& der, const std::string& indent) {
  const GeneralName name = GeneralName::DerDecode(der);
  std::string lines = indent + Kind(name.GetTag()) + ": " + Text(name) + "\n";
  const std::string reading = Reading(name);
  if (!reading.empty()) lines += indent + "  = " + reading + "\n";
  Print(lines);
}

}  // namespace

bool PrintGeneralNames(const IdentObj& value, const std::string& indent) {
  std::list<IdentObj> names;
  DWORD status = 0;
  ASNTGetSequence(names, value.pbData, value.cbData, &status);
  bool isWhole = status == 0;
  for (const IdentObj& der : names) {
    try {
      PrintGeneralName(der, indent);
    } catch (const XZEPStatus&) {
      Print(indent + "(unreadable) " + SpacedHex(der) + "\n");
      isWhole = false;
    }
  }
  if (status != 0) Print(indent + "(cannot be read further) " + SpacedHex(value) + "\n");
  return isWhole;
}

}  // namespace Example
