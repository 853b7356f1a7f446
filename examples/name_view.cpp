#include "examples/name_view.h"

#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/name_decoder.h>
#include <ortholan/status.h>
#include <ortholan/x509_name.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <utility>

#include "examples/failure.h"
#include "examples/input.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr DWORD kShortKeys = CERT_X500_NAME_STR;
constexpr DWORD kObjectIdentifier = 6;
constexpr DWORD kSequence = 16;
constexpr DWORD kSet = 17;

// The children before the first fault; false where there is one.
bool Split(const IdentObj& element, std::list<IdentObj>& children) {
  DWORD status = 0;
  ASNTGetSequence(children, element.pbData, element.cbData, &status);
  return status == 0;
}

// The tag number of a well-formed element; `class` 0x00 to 0xC0.
bool ReadTag(const IdentObj& element, ASNT_ASN_STRUCT_INFO& info) {
  return ASNTGetStructInfo(info, element.pbData, element.cbData) == 0;
}

bool IsTypeElement(const IdentObj& element) {
  ASNT_ASN_STRUCT_INFO info;
  return ReadTag(element, info) && info.tag == kObjectIdentifier;
}

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

struct TagName {
  DWORD tag;
  const char* name;
};
constexpr TagName kUniversalTags[] = {
    {1, "BOOLEAN"},
    {2, "INTEGER"},
    {3, "BIT STRING"},
    {4, "OCTET STRING"},
    {5, "NULL"},
    {6, "OBJECT IDENTIFIER"},
    {10, "ENUMERATED"},
    {12, "UTF8String"},
    {16, "SEQUENCE"},
    {17, "SET"},
    {18, "NumericString"},
    {19, "PrintableString"},
    {20, "TeletexString"},
    {21, "VideotexString"},
    {22, "IA5String"},
    {23, "UTCTime"},
    {24, "GeneralizedTime"},
    {25, "GraphicString"},
    {26, "VisibleString"},
    {27, "GeneralString"},
    {28, "UniversalString"},
    {30, "BMPString"},
};

std::string StringType(const IdentObj& value) {
  ASNT_ASN_STRUCT_INFO info;
  if (!ReadTag(value, info)) return "unreadable";
  const std::string number = std::to_string(info.tag);
  switch (info.cls) {
    case 0x40:
      return "[APPLICATION " + number + "]";
    case 0x80:
      return "[" + number + "]";
    case 0xC0:
      return "[PRIVATE " + number + "]";
    default:
      break;
  }
  const auto* const row =
      std::find_if(std::begin(kUniversalTags), std::end(kUniversalTags),
                   [&info](const TagName& entry) { return entry.tag == info.tag; });
  return row != std::end(kUniversalTags) ? row->name : "[UNIVERSAL " + number + "]";
}

using Pair = std::pair<std::wstring, std::list<std::wstring>>;

// Decodes one attribute as the only one of a name.
bool ReadAttribute(const IdentObj& attribute, Pair& pair) {
  const IdentObj rdn = ASNTPutSequence({attribute}, kSet);
  const IdentObj name = ASNTPutSequence({rdn}, kSequence);
  X500NameDecoder decoder;
  std::list<Pair> pairs;
  if (!decoder.Decode(name, pairs, kShortKeys) || pairs.size() != 1) return false;
  pair = std::move(pairs.front());
  return true;
}

// "C (2.5.4.6)", or the identifier alone where it has no key.
std::string TypeText(const IdentObj& type, const std::wstring& key) {
  std::string dotted;
  try {
    dotted = DerHelper::DecodeOid(type, false);
  } catch (const XZEPStatus&) {
    return "(unreadable type " + SpacedHex(type) + ")";
  }
  const std::string shown = Visible(key);
  return shown.empty() || shown == dotted ? dotted : shown + " (" + dotted + ")";
}

void PrintAttribute(const IdentObj& attribute, const std::string& indent) {
  std::list<IdentObj> parts;
  const bool isWhole = Split(attribute, parts);
  const auto type = std::find_if(parts.begin(), parts.end(), IsTypeElement);
  if (!isWhole || type == parts.end() || parts.size() != 2) {
    Print(indent + "(no attribute) " + SpacedHex(attribute) + "\n");
    return;
  }
  const IdentObj& value = type == parts.begin() ? parts.back() : parts.front();

  Pair pair;
  std::string text;
  if (ReadAttribute(attribute, pair)) {
    for (const std::wstring& line : pair.second) {
      text += (text.empty() ? "" : " | ") + Visible(line);
    }
  } else {
    text = SpacedHex(value);
  }
  Print(indent + TypeText(*type, pair.first) + " " + StringType(value) + ": " + text + "\n");
}

}  // namespace

NameText ReadNameText(const IdentObj& name) {
  NameText result;
  SetLastError(ERROR_SUCCESS);
  result.accepted = name.cbData != 0 && X509Name(name).TryGetX500String(result.text, kShortKeys);
  if (result.accepted) return result;
  result.code = GetLastError();
  result.reason = Meaning(result.code);
  if (result.code == ERROR_SUCCESS) {
    result.reason = name.cbData != 0 ? ShapeFault(name) : "no octets";
    result.isMultiValued = IsMultiValued(name);
  }
  return result;
}

void PrintNameTree(const IdentObj& name, const std::string& indent) {
  std::list<IdentObj> rdns;
  const bool isWhole = Split(name, rdns);
  std::size_t number = 0;
  for (const IdentObj& rdn : rdns) {
    Print(indent + "RDN " + std::to_string(++number) + "\n");
    std::list<IdentObj> attributes;
    const bool isRdnWhole = Split(rdn, attributes);
    for (const IdentObj& attribute : attributes) PrintAttribute(attribute, indent + "  ");
    if (!isRdnWhole) Print(indent + "  (cannot be read further) " + SpacedHex(rdn) + "\n");
  }
  if (!isWhole) Print(indent + "(cannot be read further) " + SpacedHex(name) + "\n");
}

}  // namespace Example
