// Whole names as text and as pairs: styles, separators, quoting, and what is refused.

#include <cstring>
#include <set>

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kSemicolon = CERT_NAME_STR_SEMICOLON_FLAG;
constexpr DWORD kCrLf = CERT_NAME_STR_CRLF_FLAG;

// C as PrintableString, O and CN as UTF8String.
const char kName[] =
    "30 2B 31 0B 30 09 06 03 55 04 06 13 02 52 55 31 0C 30 0A 06 03 55 04 0A 0C 03 4F 72 67 "
    "31 0E 30 0C 06 03 55 04 03 0C 05 49 76 61 6E 31";

TEST(Render, FollowsTheOptions) {
  const std::pair<DWORD, const char*> rows[] = {
      {3, "C=RU,O=Org,CN=Ivan1"},
      {2, "2.5.4.6=RU,2.5.4.10=Org,2.5.4.3=Ivan1"},
      {0xFFFF, "2.5.4.6=RU,2.5.4.10=Org,2.5.4.3=Ivan1"},
      {1, "RU,Org,Ivan1"},
      {kSemicolon | 3, "C=RU;O=Org;CN=Ivan1"},
      {kSemicolon | kCrLf | 3, "C=RU<000D><000A>O=Org<000D><000A>CN=Ivan1"},
      {kSemicolon | kCrLf | 1, "RU,Org,Ivan1"},
      {~(kSemicolon | kCrLf | 0xFFFF) | 3, "C=RU,O=Org,CN=Ivan1"},
  };
  for (const auto& [options, text] : rows) {
    EXPECT_EQ(Rendered(Blob(kName), options), text) << options;
  }
}

TEST(Render, UsesKeysWithoutTheSystem) {
  if (!EmptyAttributeRegistry::kPossible) GTEST_SKIP() << "the system's registry stays";
  [[maybe_unused]] const EmptyAttributeRegistry empty;
  EXPECT_EQ(Rendered(Blob(kName), 3), "c=RU,o=Org,cn=Ivan1");
}

// The separator comes from the decoder's own options, the style from the call.
TEST(Render, TakesTheSeparatorFromTheDecoder) {
  X500NameDecoder decoder;
  EXPECT_EQ(decoder.GetDecoderOptions(), 0u);
  std::wstring text;
  ASSERT_TRUE(decoder.Decode(Blob(kName), text, kSemicolon | 3));
  EXPECT_EQ(Shown(text), "C=RU,O=Org,CN=Ivan1");
  decoder.SetDecoderOptions(0x4000FFFF);
  EXPECT_EQ(decoder.GetDecoderOptions(), 0x40000000u);
  X500NameDecoder copy(decoder);
  ASSERT_TRUE(copy.Decode(Blob(kName), text, 3));
  EXPECT_EQ(Shown(text), "C=RU;O=Org;CN=Ivan1");
}

// Pairs are neither quoted nor separated, and their style has 32 bits.
TEST(List, FollowsTheStyle) {
  EXPECT_EQ(Listed(Blob(kName), 3), "C=RU;O=Org;CN=Ivan1;");
  EXPECT_EQ(Listed(Blob(kName), 1), "2.5.4.6=RU;2.5.4.10=Org;2.5.4.3=Ivan1;");
  EXPECT_EQ(Listed(Blob(kName), 0x10003), "2.5.4.6=RU;2.5.4.10=Org;2.5.4.3=Ivan1;");
  EXPECT_EQ(Listed(CommonName(Tlv(0x0C, " \",'")), 2), "2.5.4.3= \",';");
}

// Alone, and behind an RDN that is not ASCII.
TEST(Quoting, FollowsTheValue) {
  const std::pair<const char*, std::string> rows[] = {
      {"a.b-c:d/e(f)*@_&!%|~", "a.b-c:d/e(f)*@_&!%|~"},
      {"", "\"\""},
      {"a b", "a b"},
      {"Org, Ltd", "\"Org, Ltd\""},
      {"a\"b", "\"a\"\"b\""},
      {"\"\"", "\"\"\"\"\"\""},
      {"a\\b", "\"a\\b\""},
      {"O'Neil", "\"O'Neil\""},
      {" a", "\" a\""},
      {"a\t", "\"a<0009>\""},
      {" ", "\" \""},
      {"a\tb", "a<0009>b"},
      {"a\r\nb", "\"a<000D><000A>b\""}};
  const std::string other = Octets("31 09 30 07 06 01 55 1E 02 04 16");
  for (const auto& [value, shown] : rows) {
    const std::string name = NameOf(Octets("06 01 55") + Tlv(0x13, value));
    const std::string rdn = name.substr(2);
    EXPECT_EQ(Rendered(ExactCopy(name), 2), "2.5=" + shown);
    EXPECT_EQ(Rendered(ExactCopy(Tlv(0x30, rdn + other + rdn)), 1), shown + ",<0416>," + shown);
  }
  EXPECT_EQ(Rendered(CommonName(Octets("12 01 31")), 1), "12 01 31") << "hex needs no quotes";
  EXPECT_EQ(Rendered(CommonName(Octets("30 06 13 01 61 13 01 62")), 1), "\"a<000A>b\"") << "lines";
  EXPECT_EQ(Shown(X500NameDecoder::AuxSymbols), "#;,+\"\\=<><000A><000D>");
}

bool IsQuoted(unsigned tag, const std::string& octets) {
  X500NameDecoder decoder;
  std::wstring text;
  EXPECT_TRUE(decoder.Decode(CommonName(Tlv(tag, octets)), text, 1));
  return text.front() == L'"';
}

// Every unit in front, at the end and inside: white space counts at the ends, symbols anywhere.
TEST(Quoting, GoesByCharacter) {
  std::set<unsigned> space = {0x20, 0xA0, 0x1680, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000};
  for (unsigned unit = 0x09; unit <= 0x0D; ++unit) space.insert(unit);
  for (unsigned unit = 0x2000; unit <= 0x200A; ++unit) space.insert(unit);
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const bool symbol = unit != 0 && unit < 0x80 &&
                        std::strchr("#;,+\"\\=<>\n\r'", static_cast<int>(unit)) != nullptr;
    const bool any = symbol || space.count(unit) != 0;
    const std::string c = {static_cast<char>(unit >> 8), static_cast<char>(unit)};
    const std::string a("\0a", 2);
    ASSERT_EQ(IsQuoted(0x1E, c + a), any) << unit;
    ASSERT_EQ(IsQuoted(0x1E, a + c), any) << unit;
    ASSERT_EQ(IsQuoted(0x1E, a + c + a), symbol) << unit;
    if (unit >= 0x80) continue;
    ASSERT_EQ(IsQuoted(0x13, c.substr(1) + 'a'), any) << unit;
    ASSERT_EQ(IsQuoted(0x13, 'a' + c.substr(1)), any) << unit;
    ASSERT_EQ(IsQuoted(0x13, 'a' + c.substr(1) + 'a'), symbol) << unit;
  }
}

TEST(Decode, TakesOtherShapes) {
  const std::pair<const char*, const char*> rows[] = {
      {"30 00", ""},
      {"30 00 FF", ""},  // octets behind the name
      {"30 0A 31 08 30 06 13 01 61 06 01 55", "2.5=a;"},
      {"A0 0A 24 08 71 06 06 01 55 13 01 61", "2.5=a;"},
      {"30 80 31 80 30 80 06 01 55 13 01 61 00 00 00 00 00 00", "2.5=a;"},
      {"30 88 00 00 00 00 00 00 00 0A 31 08 30 06 06 01 55 13 01 61", "2.5=a;"},
  };
  for (const auto& [name, listed] : rows) {
    EXPECT_EQ(Listed(Blob(name), 2), listed);
    EXPECT_EQ(Rendered(Blob(name), 2) + (*listed != '\0' ? ";" : ""), listed);
  }
}

const std::string kTaken = "";

// Refusals of the text, the pairs and the tree: the text does not tell the faults of an RDN's own
// octets, the tree not those of the name's, and it takes values that cannot be decoded.
struct Row {
  const char* name;
  std::string text;
  std::string pairs;
  std::string tree;
  const char* left = "";  // what was decoded before
};

const Row kRows[] = {
    // Two attributes in an RDN, none; two types in an attribute, none, one alone.
    {"30 10 31 08 30 06 06 01 55 13 01 61 31 04 30 00 30 00", kRefused, kRefused, kRefused,
     "2.5=a"},
    {"30 0C 31 08 30 06 06 01 55 13 01 61 31 00", kRefused, kRefused, kRefused, "2.5=a"},
    {"30 0A 31 08 30 06 06 01 55 06 01 55", kRefused, kRefused, kRefused},
    {"30 0A 31 08 30 06 13 01 61 13 01 62", kRefused, kRefused, kRefused},
    {"30 07 31 05 30 03 06 01 55", kRefused, kRefused, kRefused},
    // The name is primitive, cut short, without end-of-contents octets.
    {"10 00", kBadTag, kBadTag, kRefused},
    {"30 0A 31 08 30 06 06 01 55 13 01", kCorrupt, kCorrupt, kRefused},
    {"30 80 31 08 30 06 06 01 55 13 01 61", kCorrupt, kCorrupt, kRefused},
    // The RDN is primitive, has a child that passes its end; so has the attribute.
    {"30 02 11 00", kRefused, kBadTag, kBadTag},
    {"30 04 31 02 30 05", kRefused, kCorrupt, kCorrupt},
    {"30 07 31 05 30 03 06 05 55", kRefused, kCorrupt, kCorrupt},
    // The type has its end-of-contents octets outside: they make a value.
    {"30 09 31 07 30 05 06 80 55 00 00", kRefused, kCorrupt, kCorrupt},
    // The value is of another class; of two faults the first in order is told.
    {"30 0A 31 08 30 06 06 01 55 93 01 61", kBadTag, kBadTag, kTaken},
    {"30 09 31 07 30 05 06 00 93 01 61", kCorrupt, kCorrupt, kCorrupt},
    {"30 0A 31 08 30 06 06 02 55 84 13 00", kCorrupt, kCorrupt, kCorrupt},
    {"30 09 31 07 30 05 93 01 61 06 00", kBadTag, kBadTag, kCorrupt},
};

TEST(Decode, Refuses) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const std::string left = std::string(" after ") + row.left;
    // Whatever the style shows of it.
    EXPECT_EQ(Rendered(Blob(row.name), 3).substr(0, row.text.size()), row.text);
    EXPECT_EQ(Rendered(Blob(row.name), 1).substr(0, row.text.size()), row.text);
    EXPECT_EQ(Rendered(Blob(row.name), 2), row.text + left);
    EXPECT_EQ(Listed(Blob(row.name), 2), row.pairs + left + (*row.left != '\0' ? ";" : ""));
    X500NameDecoder decoder;
    CertNameInfoWrapper tree;
    SetLastError(kUntouched);
    EXPECT_EQ(decoder.Decode(Blob(row.name), tree) ? kTaken : Refusal(), row.tree);
  }
  EXPECT_EQ(Rendered(IdentObj(), 3), kRefused + " after old");
  EXPECT_EQ(Listed(IdentObj(), 3), kRefused + " after old=;");
}

}  // namespace
}  // namespace Ortholan::testing
