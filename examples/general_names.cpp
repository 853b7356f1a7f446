#include "examples/general_names.h"

#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>
#include <ortholan/status.h>

#include <cstddef>
#include <iterator>

#include "examples/name_text.h"
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

std::wstring AddressReading(const IdentObj& address) {
  if (address.cbData == 16) return FromUtf8(Ip6Text(address));
  if (address.cbData != 4) return FromUtf8(SpacedHex(address));
  return GeneralName(iPAddress, address).ToString(0, 0);
}

// [4] EXPLICIT Name
std::wstring DirectoryReading(const GeneralName& name) {
  const std::list<IdentObj> parts = Parts(name.GetContent());
  if (parts.size() != 1) return {};
  const NameText text = ReadNameText(parts.front());
  return text.accepted ? text.text : FromUtf8("(refused: " + text.reason + ")");
}

// [0] SEQUENCE { OBJECT IDENTIFIER, [0] EXPLICIT value }
std::wstring OtherReading(const GeneralName& name) {
  const std::list<IdentObj> parts = Parts(name.GetContent());
  if (parts.size() != 2) return {};
  return FromUtf8(DerHelper::DecodeOid(parts.front(), false) + " " +
                  SpacedHex(Content(parts.back())));
}

// What the octets of a name hold whose text is raw octets; empty for the other kinds.
std::wstring Reading(const GeneralName& name) {
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

std::wstring Text(GeneralName name) {
  std::wstring text = name.ToString(0, 0);
  // An other name's text has as many NULs behind it as it has octets, an EDI party's a line end.
  while (!text.empty() && (text.back() == L'\0' || text.back() == L'\n')) text.pop_back();
  return text;
}

GeneralNameReading ReadOne(const IdentObj& der) {
  GeneralNameReading reading;
  reading.octets = der;
  try {
    const GeneralName name = GeneralName::DerDecode(der);
    reading.kind = Kind(name.GetTag());
    reading.text = Text(name);
    reading.meaning = Reading(name);
    reading.isRead = true;
  } catch (const XZEPStatus&) {
    reading.isRead = false;
  }
  return reading;
}

}  // namespace

GeneralNamesReading ReadGeneralNames(const IdentObj& value) {
  GeneralNamesReading reading;
  std::list<IdentObj> names;
  DWORD status = 0;
  ASNTGetSequence(names, value.pbData, value.cbData, &status);
  reading.isWhole = status == 0;
  if (status != 0) reading.faulty = value;
  for (const IdentObj& der : names) {
    reading.names.push_back(ReadOne(der));
    reading.isWhole = reading.isWhole && reading.names.back().isRead;
  }
  return reading;
}

}  // namespace Example
