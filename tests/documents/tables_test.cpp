// Each table of a page, row by row, against the library.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <algorithm>
#include <cstddef>
#include <list>
#include <map>
#include <ortholan/strict.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/documents/page.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr UINT kUtf8 = 65001;
constexpr char kRefused[] = "refused";

std::wstring Wide(const std::string& utf8) { return DerHelper::ToWString(utf8, kUtf8); }
std::string Narrow(const std::wstring& text) { return DerHelper::ToString(text, kUtf8); }

std::string HexOf(const IdentObj& blob) {
  return Hex(std::string(reinterpret_cast<const char*>(blob.pbData), blob.cbData));
}

IdentObj Blob(const std::string& hex) {
  const std::string octets = Octets(hex);
  return IdentObj(octets.data(), static_cast<DWORD>(octets.size()));
}

bool Says(const Cell& cell, std::string_view word) {
  return cell.text.find(word) != std::string::npos;
}

// All options of the cell together.
DWORD Options(const Cell& cell) {
  static const std::map<std::string, DWORD> kOptions = {
      {"0", 0},
      {"kEncodeComma", kEncodeComma},
      {"kEncodeSemicolon", kEncodeSemicolon},
      {"kEncodeCrLf", kEncodeCrLf},
      {"kEncodeUtf8", kEncodeUtf8},
      {"kEncodeAlways", kEncodeAlways},
      {"kEncodeAlwaysUtf8", kEncodeAlwaysUtf8},
      {"kStyleValues", kStyleValues},
      {"kStyleOids", kStyleOids},
      {"kStyleKeys", kStyleKeys},
      {"kSeparateCrLf", kSeparateCrLf},
      {"kSeparateSemicolon", kSeparateSemicolon},
  };
  DWORD word = 0;
  for (const std::string& option : cell.code) word |= kOptions.at(option);
  return word;
}

std::string Encoded(const std::string& text, DWORD options, bool sort) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  IdentObj der;
  return encoder.Encode(Wide(text), der, sort) ? HexOf(der) : kRefused;
}

std::string Rendered(const IdentObj& name, DWORD options) {
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  std::wstring text;
  return decoder.Decode(name, text, options) ? Narrow(text) : kRefused;
}

// Hexadecimal digits in pairs, or a text to be encoded.
IdentObj Name(const std::string& source) {
  return Blob(source.compare(0, 3, "30 ") == 0 ? source : Encoded(source, 0, false));
}

std::string WithoutEllipsis(const std::string& hex) { return hex.substr(0, hex.find(" ...")); }

struct Table {
  const char* label;
  const char* page;
  const char* head;
  void (*check)(const std::vector<Cell>& cells);
};

void PrintTo(const Table& table, std::ostream* out) { *out << table.label; }

void CheckFirstExamples(const std::vector<Cell>& cells) {
  const DWORD options =
      Says(cells[0], "as UTF8String") ? CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG : 0;
  const std::string der = Encoded(cells[0].Value(), options, Says(cells[0], "sorted"));
  const std::string expected = WithoutEllipsis(cells[1].Value());
  EXPECT_EQ(der.substr(0, expected.size()), expected);
  EXPECT_EQ(Rendered(Blob(der), CERT_X500_NAME_STR), cells[2].Value());
}

void CheckEncoding(const std::vector<Cell>& cells) {
  EXPECT_EQ(Encoded(cells[1].Value(), Options(cells[0]), Says(cells[1], "sorted")),
            Says(cells[2], kRefused) ? kRefused : cells[2].Value());
}

void CheckText(const std::vector<Cell>& cells) {
  SetLastError(ERROR_SUCCESS);
  const std::string der = Encoded(cells[0].Value(), 0, false);
  if (Says(cells[1], kRefused)) {
    EXPECT_EQ(der, kRefused);
    EXPECT_EQ(GetLastError(), cells[1].code.empty() ? 0 : std::stoul(cells[1].Value()));
  } else {
    EXPECT_EQ(Rendered(Blob(der), CERT_X500_NAME_STR), cells[1].Value());
  }
}

void CheckRefusal(const std::vector<Cell>& cells) {
  const std::wstring text = Wide(cells[0].Value());
  const NameTextError error = DescribeNameTextError(text, 0);
  EXPECT_EQ(static_cast<DWORD>(error.fault), std::stoul(cells[1].text));
  EXPECT_EQ(Narrow(error.message), cells[2].Value());
  EXPECT_EQ(Encoded(cells[0].Value(), 0, false), kRefused);
}

void CheckRendering(const std::vector<Cell>& cells) {
  EXPECT_EQ(Rendered(Name(cells[1].Value()), Options(cells[0])), cells[2].Value());
}

void CheckName(const std::vector<Cell>& cells) {
  EXPECT_EQ(HexOf(Name(cells[0].Value())), cells[1].Value());
}

void CheckAttributeType(const std::vector<Cell>& cells) {
  const std::string& identifier = cells[1].text;
  EXPECT_EQ(GetAttrPriority(Wide(identifier)), std::stoi(cells[0].text));
  const bool printable = Says(cells[4], "PrintableString") || Says(cells[4], "IA5String");
  EXPECT_EQ(Encoded(identifier + "=\xD0\x90", 0, false) == kRefused, printable);
  const IdentObj name = Name(identifier + "=Value");
  std::string keywords = cells[2].text;
  while (!keywords.empty()) {
    const std::size_t end = std::min(keywords.find(", "), keywords.size());
    const std::string keyword = keywords.substr(0, end);
    EXPECT_EQ(Encoded(keyword + "=Value", 0, false), HexOf(name)) << keyword;
    keywords.erase(0, end + 2);
  }
  const std::string key = cells[3].code.empty() ? identifier : cells[3].Value();
  EXPECT_EQ(Rendered(name, CERT_X500_NAME_STR), key + "=Value");
}

void CheckStatus(const std::vector<Cell>& cells) {
  if (cells[0].text.find_first_not_of("0123456789") != std::string::npos) return;
  EXPECT_EQ(ASNTStatusToWinError(static_cast<DWORD>(std::stoul(cells[0].text))),
            std::stoul(cells[2].text, nullptr, 0));
}

void CheckExtension(const std::vector<Cell>& cells) {
  CertExtension extension;
  extension.oid = cells[0].Value().c_str();
  extension.critical = cells[1].text == "yes" ? TRUE : FALSE;
  extension.value = Blob(cells[2].Value());
  int error = -1;
  const IdentObj record = extension.WriteData(&error);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(HexOf(record), cells[3].Value());
  CertExtension read;
  EXPECT_EQ(read.ReadData(record.pbData, record.cbData, &error), record.cbData);
  EXPECT_TRUE(read == extension);
}

void CheckSequence(const std::vector<Cell>& cells) {
  std::list<IdentObj> records;
  for (const std::string& hex : cells[0].code) records.push_back(Blob(hex));
  EXPECT_EQ(HexOf(ASNTPutSequence(records, 16)), cells[1].Value());
}

void CheckGeneralName(const std::vector<Cell>& cells) {
  GeneralName name = GeneralName::DerDecode(Blob(cells[1].Value()));
  EXPECT_EQ(name.GetTag(), std::stoul(cells[0].text));
  EXPECT_EQ(Narrow(name.ToString(0, 0)), cells[2].Value());
}

GeneralName Made(const std::string& function, const std::string& argument) {
  if (function == "CreateRfc822Name") return GeneralName::CreateRfc822Name(Wide(argument));
  if (function == "CreateDnsName") return GeneralName::CreateDnsName(Wide(argument));
  if (function == "CreateUri") return GeneralName::CreateUri(Wide(argument));
  if (function == "CreateRegisteredId") return GeneralName::CreateRegisteredId(argument);
  if (function == "CreateDirectoryName") return GeneralName::CreateDirectoryName(Blob(argument));
  if (function == "CreateEdiPartyName") {
    return GeneralName::CreateEdiPartyName({L"", Wide(argument)});
  }
  ADD_FAILURE() << "no such function: " << function;
  return {};
}

void CheckMade(const std::vector<Cell>& cells) {
  EXPECT_EQ(HexOf(Made(cells[0].Value(), cells[1].Value()).DerEncode()), cells[2].Value());
}

std::string Rfc4514Text(const std::string& text, const ortholan::Rfc4514& options) {
  return ortholan::Name::FromText(text).value().ToText(options).value();
}

void CheckRfc4514(const std::vector<Cell>& cells) {
  ortholan::Rfc4514 exact;
  exact.exact = true;
  EXPECT_EQ(Rfc4514Text(cells[0].Value(), {}), cells[1].Value());
  EXPECT_EQ(Rfc4514Text(cells[0].Value(), exact), cells[2].Value());
}

void CheckRfc4514Refusal(const std::vector<Cell>& cells) {
  const auto name = ortholan::Name::FromText(cells[0].Value());
  EXPECT_EQ(name.refusal().reason, std::stoi(cells[1].text));
  EXPECT_EQ(ortholan::ExplainNameText(cells[0].Value(), name.refusal()).message, cells[2].Value());
}

std::string NamesOf(const ortholan::AttributeType& type) {
  std::string names(type.name());
  if (type.long_name() != type.name()) names.append(", ").append(type.long_name());
  if (!type.aliases().empty()) names += ", ";
  for (const char c : type.aliases()) names += c == ' ' ? ", " : std::string(1, c);
  return names;
}

// A row of the table of types, and the string type that a value of digits gets under each policy.
void CheckRfc4514Type(const std::vector<Cell>& cells) {
  const struct {
    const char* told;
    uint32_t chosen;
    uint32_t by_utf8;
  } kSyntaxes[] = {{"free text", 0x13, 0x0C},          {"PrintableString", 0x13, 0x13},
                   {"IA5String", 0x16, 0x16},          {"NumericString", 0x12, 0x12},
                   {"UTF8String", 0x0C, 0x0C},         {"IA5String or UTF8String", 0x16, 0x16},
                   {"lines of free text", 0x30, 0x30}, {"none, `#` alone", 0, 0}};
  const auto oid = ortholan::OidFromText(cells[0].text).value();
  const auto type = ortholan::AttributeTypeOf(oid);
  ASSERT_TRUE(type) << cells[0].text;
  EXPECT_EQ(NamesOf(*type), cells[1].text);
  EXPECT_EQ(type->bound() == 0 ? "" : std::to_string(type->bound()), cells[3].text);
  const auto& syntax = kSyntaxes[static_cast<size_t>(type->syntax())];
  EXPECT_EQ(syntax.told, cells[2].text);
  ortholan::Rfc4514 utf8;
  utf8.strings = ortholan::StringPolicy::kUtf8;
  for (std::string names = cells[1].text + ", "; !names.empty();
       names.erase(0, names.find(", ") + 2)) {
    const std::string name = names.substr(0, names.find(", "));
    EXPECT_EQ(ortholan::AttributeTypeNamed(name).value().oid(), ortholan::Octets(oid)) << name;
    const auto first = ortholan::Name::FromText(name + "=1");
    const auto second = ortholan::Name::FromText(name + "=1", utf8);
    ASSERT_EQ(first.has_value(), syntax.chosen != 0) << name;
    if (!first) continue;
    EXPECT_EQ(first->view().begin()->identifier(), syntax.chosen) << name;
    EXPECT_EQ(second->view().begin()->identifier(), syntax.by_utf8) << name;
    EXPECT_EQ(first->view().begin()->type(), ortholan::Octets(oid));
  }
}

const Table kTables[] = {
    {"first examples", "README.md", "Text | DER | Rendered", CheckFirstExamples},
    {"encoder options", "docs/name-text.md", "Options | Text | DER", CheckEncoding},
    {"decoder options", "docs/name-text.md", "Options | Name | Text", CheckRendering},
    {"texts", "docs/name-text.md", "Text | Read as", CheckText},
    {"refusals", "docs/name-text.md", "Refused text | Fault | Message", CheckRefusal},
    {"attribute types", "docs/name-text.md",
     "Rank | Identifier | Keywords, in any letter case | Rendered as a key | String type",
     [](const std::vector<Cell>& cells) {
       if (cells[1].text != "any other") CheckAttributeType(cells);
     }},
    {"RFC 4514 texts", "docs/rfc4514.md", "Text of RFC 4514 | Written back | Exactly",
     CheckRfc4514},
    {"RFC 4514 refusals", "docs/rfc4514.md", "Refused text of RFC 4514 | Reason | Sentence",
     CheckRfc4514Refusal},
    {"RFC 4514 types", "docs/rfc4514.md", "Identifier | Names | String type | Bound",
     CheckRfc4514Type},
    {"status codes", "docs/status-codes.md", "Status | Meaning | Last error", CheckStatus},
    {"names", "docs/der.md", "Name | DER", CheckName},
    {"extensions", "docs/der.md", "Identifier | Critical | Value | Record", CheckExtension},
    {"extension lists", "docs/der.md", "Records | List", CheckSequence},
    {"general names", "docs/der.md", "Tag | Encoding | Text", CheckGeneralName},
    {"general names made", "docs/der.md", "Made by | From | DER", CheckMade},
};

class Tables : public ::testing::TestWithParam<Table> {};

TEST_P(Tables, HoldForTheLibrary) {
  const std::vector<TableRow> rows = TableRows(GetParam().page, GetParam().head);
  ASSERT_FALSE(rows.empty()) << GetParam().page << " has no table of " << GetParam().head;
  for (const TableRow& row : rows) {
    SCOPED_TRACE(row.label + ": " + row.cells.front().text);
    GetParam().check(row.cells);
  }
}

INSTANTIATE_TEST_SUITE_P(Documents, Tables, ::testing::ValuesIn(kTables), [](const auto& row) {
  std::string name = row.param.label;
  for (char& c : name) c = c == ' ' ? '_' : c;
  return name;
});

}  // namespace
}  // namespace Ortholan::testing
