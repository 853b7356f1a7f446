#include "examples/name_tree.h"

#include <ortholan/asn1.h>
#include <ortholan/der_helper.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_options.h>
#include <ortholan/platform.h>
#include <ortholan/status.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Example {

using namespace Ortholan;

namespace {

constexpr DWORD kObjectIdentifier = 6;
constexpr DWORD kSequence = 16;
constexpr DWORD kSet = 17;

// The tag number of a well-formed element; `class` 0x00 to 0xC0.
bool ReadTag(const IdentObj& element, ASNT_ASN_STRUCT_INFO& info) {
  return ASNTGetStructInfo(info, element.pbData, element.cbData) == 0;
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
  if (!decoder.Decode(name, pairs, kStyleKeys) || pairs.size() != 1) return false;
  pair = std::move(pairs.front());
  return true;
}

std::string DottedOid(const IdentObj& type) {
  try {
    return DerHelper::DecodeOid(type, false);
  } catch (const XZEPStatus&) {
    return {};
  }
}

NameAttribute ReadNameAttribute(const IdentObj& octets) {
  NameAttribute attribute;
  attribute.octets = octets;
  std::list<IdentObj> parts;
  const bool isWhole = Split(octets, parts);
  const auto type = std::find_if(parts.begin(), parts.end(), IsTypeElement);
  if (!isWhole || type == parts.end() || parts.size() != 2) return attribute;

  attribute.isAttribute = true;
  attribute.type = *type;
  attribute.oid = DottedOid(*type);
  attribute.value = type == parts.begin() ? parts.back() : parts.front();
  attribute.stringType = StringType(attribute.value);
  Pair pair;
  attribute.isRead = ReadAttribute(octets, pair);
  attribute.lines = std::move(pair.second);
  const std::wstring dotted(attribute.oid.begin(), attribute.oid.end());
  if (pair.first != dotted) attribute.key = std::move(pair.first);
  return attribute;
}

NameRdn ReadRdn(const IdentObj& octets) {
  NameRdn rdn;
  std::list<IdentObj> attributes;
  if (!Split(octets, attributes)) rdn.faulty = octets;
  for (const IdentObj& attribute : attributes) {
    rdn.attributes.push_back(ReadNameAttribute(attribute));
  }
  return rdn;
}

}  // namespace

bool Split(const IdentObj& element, std::list<IdentObj>& children) {
  DWORD status = 0;
  ASNTGetSequence(children, element.pbData, element.cbData, &status);
  return status == 0;
}

bool IsTypeElement(const IdentObj& element) {
  ASNT_ASN_STRUCT_INFO info;
  return ReadTag(element, info) && info.tag == kObjectIdentifier;
}

NameTree ReadNameTree(const IdentObj& name) {
  NameTree tree;
  std::list<IdentObj> rdns;
  if (!Split(name, rdns)) tree.faulty = name;
  for (const IdentObj& rdn : rdns) tree.rdns.push_back(ReadRdn(rdn));
  return tree;
}

}  // namespace Example
