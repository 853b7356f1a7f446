// Single attributes: quoting, formatting, from text to structure and back.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include "tests/names/name_answers.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

std::string Quoted(const char* text) {
  CZEPString out = "old";
  X509Name::QuoteString(text, out);
  CZEPString in_place = text;
  X509Name::QuoteString(in_place);
  EXPECT_STREQ(in_place.c_str(), out.c_str());
  return out.c_str();
}

std::string Unquoted(const char* text) {
  CZEPString out = "old";
  X509Name::UnquoteString(text, out);
  CZEPString in_place = text;
  X509Name::UnquoteString(in_place);
  EXPECT_STREQ(in_place.c_str(), out.c_str());
  return out.c_str();
}

TEST(Quoting, DoublesQuotesAlone) {
  const std::pair<const char*, const char*> rows[] = {
      {"", R"("")"},
      {nullptr, R"("")"},
      {R"(")", R"("""")"},
      {R"(x,")", R"("x,""")"},
      {R"( a+b=c\d; )", R"(" a+b=c\d; ")"},
      {"\r\n\t", "\"\r\n\t\""},
      {"\xD0\xFF", "\"\xD0\xFF\""},
  };
  for (const auto& [text, quoted] : rows) EXPECT_EQ(Quoted(text), quoted);
}

TEST(Quoting, IsTakenBackWhereverAQuoteStands) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {nullptr, ""},
      {"plain text", "plain text"},
      {R"("abc)", "abc"},
      {R"(a"b)", "ab"},
      {R"("a""b")", R"(a"b)"},
      {R"(""")", R"(")"},
      {R"("""")", R"("")"},
      {R"(abc")", "abc"},
      {R"(""a"b"""c)", R"("ab"c)"},
  };
  for (const auto& [text, unquoted] : rows) {
    EXPECT_EQ(Unquoted(text), unquoted) << (text != nullptr ? text : "null");
  }
}

// Every text of up to six characters out of a quote, a letter and a comma. One of quotes alone
// comes back with one quote more, because the outer ones are a pair like any other.
TEST(Quoting, ComesBack) {
  for (int length = 0, count = 1; length <= 6; ++length, count *= 3) {
    for (int i = 0; i < count; ++i) {
      std::string text;
      for (int rest = i, n = 0; n < length; ++n, rest /= 3) text += "\"a,"[rest % 3];
      const std::string quoted = Quoted(text.c_str());
      const bool quotes_alone = text.find_first_not_of('"') == std::string::npos;
      EXPECT_EQ(Unquoted(quoted.c_str()), quotes_alone ? text + '"' : text);
    }
  }
}

TEST(Quoting, TakesItsOwnTarget) {
  CZEPString text = "a\"b";
  X509Name::QuoteString(text.c_str() + 1, text);
  EXPECT_STREQ(text.c_str(), R"("""b")");
  X509Name::UnquoteString(text.c_str() + 1, text);
  EXPECT_STREQ(text.c_str(), "\"b");
  X509Name::FormatRDNAttr(text.c_str(), text.c_str(), text);
  EXPECT_STREQ(text.c_str(), R"("b="""b")");
}

TEST(Formatting, LeavesTheKeyAlone) {
  const char* const rows[][3] = {
      {"CN", "x,\"", R"(CN="x,""")"},
      {" cn ", "", R"( cn ="")"},
      {nullptr, nullptr, R"(="")"},
      {"a=\"", "b", R"(a="="b")"},
  };
  for (const auto& row : rows) {
    CZEPString out = "old";
    X509Name::FormatRDNAttr(row[0], row[1], out);
    EXPECT_STREQ(out.c_str(), row[2]);
  }
}

struct MakeRow {
  const char* label;
  const char* key;
  const char* value;
  const char* oid;   // null where it is refused
  const char* text;  // the value's
};

const MakeRow kMakeRows[] = {
    {"keyword", "CN", "Alpha", "2.5.4.3", "Alpha"},
    {"any letter case", "serialNumber", "12", "2.5.4.5", "12"},
    {"identifier", "1.2.840.113549.1.9.1", "a@b", "1.2.840.113549.1.9.1", "a@b"},
    {"separators stand in the value", "O", "a,b;c\r\nd=\"e\"", "2.5.4.10", "a,b;c\r\nd=\"e\""},
    {"of two attributes the first in order", "O=a,CN", "b", "2.5.4.10", "a"},
    {"unknown keyword", "XYZ", "a", nullptr, nullptr},
    {"known to the platform, not to the encoder", "2.5.4.9", "a", nullptr, nullptr},
    {"empty value", "CN", "", nullptr, nullptr},
    {"null value", "CN", nullptr, nullptr, nullptr},
    {"null key", nullptr, "a", nullptr, nullptr},
    {"value outside the alphabet", "C", "R_", nullptr, nullptr},
};

TEST(MadeAttribute, IsTheFirstOfTheText) {
  for (const MakeRow& row : kMakeRows) {
    SCOPED_TRACE(row.label);
    RDNAttr made("1.2.3", 99, Blob("01 02"));
    RDNAttr set = made;
    const char* const outcome = row.oid != nullptr ? "returned" : kUntyped;
    EXPECT_EQ(Failure([&] { X509Name::MakeRDNAttr(row.key, row.value, made); }), outcome);
    EXPECT_EQ(Failure([&] { set.SetBy(row.key, row.value); }), outcome);
    EXPECT_EQ(Failure([&] { RDNAttr(row.key, row.value); }), outcome);
    EXPECT_STREQ(made.oid.c_str(), row.oid != nullptr ? row.oid : "1.2.3");
    EXPECT_EQ(made.valueType, row.oid != nullptr ? DWORD{CERT_RDN_UNICODE_STRING} : DWORD{99});
    EXPECT_EQ(Hex(set.value), Hex(made.value));
    EXPECT_STREQ(set.oid.c_str(), made.oid.c_str());
    if (row.oid == nullptr) {
      EXPECT_EQ(Hex(made.value), "01 02");
      continue;
    }
    CZEPString text;
    made.GetValueString(text);
    EXPECT_STREQ(text.c_str(), row.text);
  }
}

struct ValueRow {
  const char* label;
  DWORD type;
  const char* value;   // hex
  const char* native;  // "old" where nothing is rendered
  const char* system;
};

const ValueRow kValueRows[] = {
    {"encoding", CERT_RDN_ENCODED_BLOB, "0C 01 AF", "#0C01AF", ""},
    {"octets", CERT_RDN_OCTET_STRING, "00 FF", "#00FF", ""},
    {"PrintableString", CERT_RDN_PRINTABLE_STRING, "41 42", "AB", "AB"},
    {"8-bit text ends at NUL", CERT_RDN_IA5_STRING, "41 00 42", "A", "A"},
    {"UTF-16", CERT_RDN_UNICODE_STRING, "41 00 22 00 42 00 00 00 00 00", "A\"B", "A\"B"},
    {"UTF-16 ends at NUL", CERT_RDN_UNICODE_STRING, "41 00 00 00 42 00", "A", "A"},
    {"no text", CERT_RDN_UTF8_STRING, "00 00", "", ""},
    {"type without a text", 14, "41 00", "old", ""},
    {"UniversalString", CERT_RDN_UNIVERSAL_STRING, "00 00 00 41", "old", ""},
};

TEST(ValueText, ReplacesTheOldOneWhereThereIsOne) {
  for (const ValueRow& row : kValueRows) {
    SCOPED_TRACE(row.label);
    const std::string expected = ThisRealisation() == kNative ? row.native : row.system;
    const RDNAttr attr("2.5.4.3", row.type, Blob(row.value));
    char oid[] = "2.5.4.3";
    const CERT_RDN_ATTR raw = {oid, row.type, attr.value};
    CZEPString text = "old";
    X509Name::GetRDNAttrValueString(attr, text);
    EXPECT_EQ(text.c_str(), expected);
    text = "old";
    attr.GetValueString(text);
    EXPECT_EQ(text.c_str(), expected);
    text = "old";
    X509Name::GetRDNAttrValueString(raw, text);
    EXPECT_EQ(text.c_str(), expected);
    std::wstring wide = L"old";
    X509Name::GetRDNAttrValueString(raw, wide);
    EXPECT_EQ(Shown(wide), expected);
  }
}

// A size without bytes is not read; a long text needs more than a small buffer.
TEST(ValueText, IsBoundedByItsBytes) {
  CERT_RDN_ATTR attr = {nullptr, CERT_RDN_UNICODE_STRING, {8, nullptr}};
  CZEPString text = "old";
  std::wstring wide = L"old";
  X509Name::GetRDNAttrValueString(attr, text);
  X509Name::GetRDNAttrValueString(attr, wide);
  EXPECT_STREQ(text.c_str(), "old");
  EXPECT_EQ(wide, L"old");

  const IdentObj units = ExactCopy(std::string(2000, 'a'));
  attr.Value = units;
  X509Name::GetRDNAttrValueString(attr, wide);
  EXPECT_EQ(wide, std::wstring(1000, L'\x6161'));
  attr.dwValueType = CERT_RDN_IA5_STRING;
  X509Name::GetRDNAttrValueString(attr, text);
  EXPECT_EQ(text.c_str(), std::string(2000, 'a'));
}

}  // namespace
}  // namespace Ortholan::testing
