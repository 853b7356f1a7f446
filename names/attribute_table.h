// The attribute types that names are written with: one row each, shared by both directions.
#ifndef ORTHOLAN_NAMES_ATTRIBUTE_TABLE_H_
#define ORTHOLAN_NAMES_ATTRIBUTE_TABLE_H_

#include <ortholan/platform.h>

#include <array>
#include <cstddef>
#include <string_view>

#include "bytes/byte_view.h"
#include "bytes/der_tag.h"
#include "bytes/oid_constant.h"

namespace Ortholan {

// Which string type an attribute's value is written in: the alphabet that is prescribed.
enum class ValueRule : unsigned char {
  kFreeText = 0,   // chosen by the value's characters and the encoder's options
  kPrintable = 1,  // PrintableString always
  kIA5 = 2,        // IA5String always
};

// An identifier in DER.
struct OidDer {
  BYTE bytes[16] = {kTagOid};
  size_t size = 2;

  explicit constexpr OidDer(const OidConstant& oid) {
    bytes[1] = oid.size;
    for (const uint8_t octet : oid.view()) bytes[size++] = octet;
  }
};

// Aligned so that a row's place in the table is a shift away.
struct alignas(128) AttributeRow {
  std::string_view oid;
  std::wstring_view wide_oid;
  OidDer der;
  // Place in the canonical order: the encoder's sort writes high ranks first.
  int rank;
  // What the decoder calls the type where the platform has no name; empty: it has none.
  std::wstring_view key;
  // How the type is written in a name text, in upper case; "" for none. All are listed: g++ 12
  // takes an array that it has to complete for no constant.
  std::array<std::string_view, 2> keywords;
  ValueRule rule = ValueRule::kFreeText;
  // Values are written as a SEQUENCE of one string a line.
  bool lines = false;

  constexpr ByteView oid_der() const { return {der.bytes, der.size}; }
  constexpr ByteView oid_content() const { return oid_der().From(2); }
};

constexpr int kUnrankedAttribute = 99;

#define ORTHOLAN_OID(dotted) dotted, L##dotted, OidDer(dotted)
inline constexpr AttributeRow kAttributes[] = {
    {ORTHOLAN_OID("2.5.4.3"), 0, L"cn", {{"CN", ""}}},
    {ORTHOLAN_OID("2.5.4.65"), 0, L"pseudonym", {{"PSEUDONYM", ""}}},
    {ORTHOLAN_OID("2.5.4.12"), 1, L"t", {{"T", "TITLE"}}},
    {ORTHOLAN_OID("2.5.4.11"), 2, L"ou", {{"OU", ""}}},
    {ORTHOLAN_OID("2.5.4.10"), 3, L"o", {{"O", ""}}},
    {ORTHOLAN_OID("1.2.840.113549.1.9.1"), 4, L"e", {{"E", "EMAIL"}}, ValueRule::kIA5},
    {ORTHOLAN_OID("1.2.840.113556.1.2.141"), 5, L"department", {{"DEPARTMENT", ""}}},
    {ORTHOLAN_OID("2.5.4.5"), 6, L"serialNumber", {{"SERIALNUMBER", ""}}, ValueRule::kPrintable},
    {ORTHOLAN_OID("2.5.4.16"),
     7,
     L"postalAddress",
     {{"POSTALADDRESS", ""}},
     ValueRule::kFreeText,
     true},
    {ORTHOLAN_OID("2.5.4.8"), 8, L"st", {{"S", ""}}},
    {ORTHOLAN_OID("2.5.4.7"), 9, L"l", {{"L", ""}}},
    {ORTHOLAN_OID("2.5.4.6"), 10, L"c", {{"C", ""}}, ValueRule::kPrintable},
    {ORTHOLAN_OID("1.2.840.113549.1.9.2"), 11, L"", {{"", ""}}},
};
#undef ORTHOLAN_OID

// The row of an identifier in dotted text, null where there is none. Exact and case-sensitive.
const AttributeRow* FindAttribute(std::string_view oid);
// The same by the content octets of the identifier.
const AttributeRow* FindAttributeByDer(ByteView content);

// What GetAttrPriority answers: the row's rank, kUnrankedAttribute where there is none. Of wide
// text with a NUL, what stands in front of it counts.
int AttributePriority(std::string_view oid);
int AttributePriority(std::wstring_view oid);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ATTRIBUTE_TABLE_H_
