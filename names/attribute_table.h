// The attribute types that names are written with: one row each, shared by both directions.
#ifndef ORTHOLAN_NAMES_ATTRIBUTE_TABLE_H_
#define ORTHOLAN_NAMES_ATTRIBUTE_TABLE_H_

#include <ortholan/platform.h>

#include <array>
#include <cstddef>
#include <string_view>

#include "bytes/base128.h"
#include "bytes/byte_view.h"

namespace Ortholan {

// Which string type an attribute's value is written in: the alphabet that is prescribed.
enum class ValueRule : unsigned char {
  kFreeText = 0,   // chosen by the value's characters and the encoder's options
  kPrintable = 1,  // PrintableString always
  kIA5 = 2,        // IA5String always
};

// The identifier in DER, made from its dotted text by the compiler.
struct OidDer {
  BYTE bytes[16] = {};
  size_t size = 0;

  explicit constexpr OidDer(std::string_view dotted);
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

constexpr OidDer::OidDer(std::string_view dotted) {
  size_t position = 0;
  unsigned arcs[16] = {};
  size_t count = 1;
  for (; position < dotted.size(); ++position) {
    if (dotted[position] == '.') {
      ++count;
    } else {
      arcs[count - 1] = arcs[count - 1] * 10 + static_cast<unsigned>(dotted[position] - '0');
    }
  }
  size = 2;
  bytes[size++] = static_cast<BYTE>(arcs[0] * 40 + arcs[1]);
  for (size_t i = 2; i < count; ++i) {
    size = static_cast<size_t>(WriteBase128(bytes + size, arcs[i]) - bytes);
  }
  bytes[0] = 6;
  bytes[1] = static_cast<BYTE>(size - 2);
}

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
