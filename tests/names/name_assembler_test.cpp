// Whole names from text, SimpleRDN lists, RDNAttr lists and CERT_NAME_INFO: order, sets, refusals.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUtf8 = CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG;

// RDNs with the value "a".
const std::string kUnranked = " 31 0A 30 08 06 03 2A 03 04 13 01 61";
const std::string kC = " 31 0A 30 08 06 03 55 04 06 13 01 61";
const std::string kO = " 31 0A 30 08 06 03 55 04 0A 13 01 61";
const std::string kCn = " 31 0A 30 08 06 03 55 04 03 13 01 61";
const std::string kPseudonym = " 31 0A 30 08 06 03 55 04 41 13 01 61";

std::string EncodedText(const std::wstring& text, bool sorted) {
  X500NameEncoder encoder;
  return Encoded(kEmptied, [&](IdentObj& der) { return encoder.Encode(text, der, sorted); });
}

TEST(EncodeText, SortsByRank) {
  EXPECT_EQ(EncodedText(L"CN=a, O=a, C=a", false), "30 24" + kCn + kO + kC);
  EXPECT_EQ(EncodedText(L"CN=a, O=a, C=a", true), "30 24" + kC + kO + kCn);
  EXPECT_EQ(EncodedText(L"PSEUDONYM=a, CN=a, C=a, CN=a", true),
            "30 30" + kC + kPseudonym + kCn + kCn);
  const std::string all = EncodedText(
      L"CN=a,T=a,OU=a,O=a,E=a,DEPARTMENT=a,SERIALNUMBER=a,POSTALADDRESS=a,S=a,L=a,C=a,"
      L"1.2.840.113549.1.9.2=a",
      true);
  EXPECT_EQ(Rendered(Blob(all), 2),
            "1.2.840.113549.1.9.2=a,2.5.4.6=a,2.5.4.7=a,2.5.4.8=a,2.5.4.16=a,2.5.4.5=a,"
            "1.2.840.113556.1.2.141=a,1.2.840.113549.1.9.1=a,2.5.4.10=a,2.5.4.11=a,2.5.4.12=a,"
            "2.5.4.3=a");
}

TEST(EncodeText, Refuses) {
  const std::pair<const wchar_t*, std::string> rows[] = {
      {L"", "refused, 160"}, {L"   ", kRefused},          {L"CN=a, ,O=a", kRefused},
      {L"XYZ=a", kRefused},  {L"CN=a, O=", kRefused},     {L"CN=\"\", O=a", kRefused},
      {L"C=_", kRefused},    {L"C=_, ABCDE=a", kRefused}, {L"CN=a, ABCDE=a", kNoIdentifier}};
  for (const auto& [text, refusal] : rows) EXPECT_EQ(EncodedText(text, false), refusal);
  // Sorted, the unknown type comes first.
  EXPECT_EQ(EncodedText(L"C=_, ABCDE=a", true), kNoIdentifier);
}

TEST(EncodeSimpleRdns, WritesOrRefuses) {
  const std::pair<std::list<SimpleRDN>, std::string> rows[] = {
      {{}, "refused, 160"},
      {{{"2.5.4.3", "a"}, {"2.5.4.6", "a"}, {"1.2.3.4", "a"}, {"2.5.4.65", "a"}},
       "30 30" + kCn + kC + kUnranked + kPseudonym},
      // The identifier counts as it is written: this one is free text, and no country.
      {{{"2.5.4.06", "_"}}, "30 0D 31 0B 30 09 06 03 55 04 06 1E 02 00 5F"},
      {{{"2.5.4.16", "a"}}, "30 0E 31 0C 30 0A 06 03 55 04 10 30 03 13 01 61"},
      {{{"CN", "a"}}, kNoIdentifier},
      {{{"2.5.4.3 ", "a"}}, kNoIdentifier},
      {{{nullptr, nullptr}}, kNoIdentifier},
      {{{"2.5.4.3", nullptr}}, kRefused},
      {{{"2.5.4.6", "_"}, {"x", "a"}}, kRefused},
  };
  X500NameEncoder encoder;
  for (const auto& row : rows) {
    EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(row.first, der, false); }),
              row.second);
  }
  EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(rows[1].first, der, true); }),
            "30 30" + kUnranked + kC + kCn + kPseudonym);
}

struct AttrRow {
  const char* label;
  const char* oid;
  DWORD type;
  const char* value;
  std::string written;  // identifier and value, or the refusal
  DWORD options = 0;
  unsigned where = kNative | kWindows | kWine;
};

const std::string kAlone = "06 03 55 04 03 13 01 61";

const AttrRow kAttrRows[] = {
    {"PrintableString", "2.5.4.3", 4, "61", kAlone},
    {"IA5String", "2.5.4.3", 7, "61", kAlone},
    {"UTF8String", "2.5.4.3", 13, "61", kAlone},
    {"BMPString", "2.5.4.3", 12, "61 00", kAlone},
    {"type chosen anew", "2.5.4.3", 4, "5F", "06 03 55 04 03 1E 02 00 5F"},
    {"by the attribute", "1.2.840.113549.1.9.1", 12, "61 00",
     "06 09 2A 86 48 86 F7 0D 01 09 01 16 01 61"},
    {"by the options", "2.5.4.3", 4, "5F", "06 03 55 04 03 0C 01 5F", kUtf8},
    {"lines", "2.5.4.16", 4, "61 0A 62", "06 03 55 04 10 30 06 13 01 61 13 01 62"},
    {"8-bit text is the host's UTF-8", "2.5.4.3", 4, "D0 96", "06 03 55 04 03 1E 02 04 16", 0,
     kNative},
    {"broken UTF-8", "2.5.4.3", 13, "C3 28", "06 03 55 04 03 1E 04 FF FD 00 28"},

    {"8-bit, NULs at the end", "2.5.4.3", 4, "61 00 00 00", kAlone},
    {"8-bit, inner NUL", "2.5.4.3", 7, "61 00 62 00", "06 03 55 04 03 1E 06 00 61 00 00 00 62"},
    {"UTF-8, NUL at the end", "2.5.4.3", 13, "61 00", "06 03 55 04 03 1E 04 00 61 00 00"},
    {"UTF-16, two NULs", "2.5.4.3", 12, "61 00 00 00 00 00", kAlone},
    {"UTF-16, three NULs", "2.5.4.3", 12, "61 00 00 00 00 00 00 00",
     "06 03 55 04 03 1E 04 00 61 00 00"},
    {"UTF-16, odd length", "2.5.4.3", 12, "61 00 62", kAlone},

    {"empty", "2.5.4.3", 4, "", kRefused},
    {"8-bit NULs alone", "2.5.4.3", 4, "00 00", kRefused},
    {"UTF-16 padding alone", "2.5.4.3", 12, "00 00 00 00", kRefused},
    {"one octet of UTF-16", "2.5.4.3", 12, "61", kRefused},
    {"outside the alphabet", "2.5.4.6", 4, "5F", kRefused},
    {"any type", "2.5.4.3", 0, "61", kRefused},
    {"encoded blob", "2.5.4.3", 1, "13 01 61", kRefused},
    {"TeletexString", "2.5.4.3", 5, "61", kRefused},
    {"UniversalString", "2.5.4.3", 11, "61 00 00 00", kRefused},
    {"neither identifier nor value", "CN", 4, "", kNoIdentifier},
    {"the value's type counts first", "CN", 5, "61", kRefused},
};

// The same attribute by both structured ways.
TEST(EncodeAttributes, WritesOrRefuses) {
  for (const AttrRow& row : kAttrRows) {
    if ((row.where & ThisRealisation()) == 0) continue;
    SCOPED_TRACE(row.label);
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(row.options);
    const IdentObj value = Blob(row.value);
    const std::list<std::list<RDNAttr>> list = {{RDNAttr(row.oid, row.type, value)}};
    std::string oid = row.oid;
    CERT_RDN_ATTR attr = {oid.data(), row.type, {value.cbData, value.pbData}};
    CERT_RDN rdn = {1, &attr};
    const CERT_NAME_INFO info = {1, &rdn};
    const bool refused = row.written.front() == 'r';
    const std::string answer = refused ? row.written : Hex(NameOf(Octets(row.written)));
    EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(list, der); }), answer);
    EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(info, der); }), answer);
  }
}

RDNAttr Attr(const char* oid, const char* text) {
  return RDNAttr(oid, CERT_RDN_PRINTABLE_STRING, ExactCopy(text));
}

using Rdns = std::list<std::list<RDNAttr>>;

TEST(EncodeRdnLists, WritesOrRefuses) {
  const RDNAttr cn = Attr("2.5.4.3", "a");
  const std::pair<Rdns, std::string> rows[] = {
      {{}, kRefused},
      // Neither RDNs nor the attributes of one are sorted.
      {{{Attr("2.5.4.10", "a")}, {Attr("2.5.4.3", "b"), Attr("2.5.4.11", "a"), cn}},
       "30 2C" + kO +
           " 31 1E 30 08 06 03 55 04 03 13 01 62 30 08 06 03 55 04 0B 13 01 61 "
           "30 08 06 03 55 04 03 13 01 61"},
      {{{}}, "30 02 31 00"},
      {{{}, {cn}, {}, {}, {Attr("1.2.3.4", "a")}, {}},
       "30 20 31 00" + kCn + " 31 00 31 00" + kUnranked + " 31 00"},
      {{{cn, Attr("2.5.4.6", "_")}}, kRefused},
      {{{}, {cn}, {Attr("x", "a")}}, kNoIdentifier},
  };
  for (const auto& row : rows) {
    X500NameEncoder encoder;
    EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(row.first, der); }),
              row.second);
  }
}

TEST(EncodeNameInfo, WritesOrRefuses) {
  char cn[] = "2.5.4.3";
  char o[] = "2.5.4.10";
  BYTE a[] = {'a'};
  CERT_RDN_ATTR attrs[] = {{cn, 4, {1, a}}, {o, 4, {1, a}}};
  CERT_RDN_ATTR unnamed = {nullptr, 4, {1, a}};
  CERT_RDN two[] = {{2, attrs}, {1, attrs}};
  CERT_RDN empty[] = {{0, nullptr}, {1, attrs}, {0, attrs}};
  CERT_RDN lacking[] = {{1, attrs}, {2, nullptr}};
  CERT_RDN of_unnamed = {1, &unnamed};
  const std::pair<CERT_NAME_INFO, std::string> rows[] = {
      {{0, two}, kRefused},
      {{0, nullptr}, kRefused},
      {{1, nullptr}, kRefused},
      {{2, lacking}, kRefused},
      {{1, &of_unnamed}, kNoIdentifier},
      {{2, two}, "30 22 31 14 30 08 06 03 55 04 03 13 01 61 30 08 06 03 55 04 0A 13 01 61" + kCn},
      {{3, empty}, "30 10 31 00" + kCn + " 31 00"},
  };
  for (const auto& row : rows) {
    X500NameEncoder encoder;
    EXPECT_EQ(Encoded(kKept, [&](auto& der) { return encoder.Encode(row.first, der); }),
              row.second);
  }
}

// Many attributes and long identifiers: more than any scratch space on the stack holds.
TEST(EncodeRdnLists, TakesManyAttributes) {
  Rdns rdns;
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    rdns.push_back({Attr("1.3.6.1.4.1.99999.1", "a"), Attr("2.5.4.3", "b")});
    expected += Tlv(0x31, Octets("30 0E 06 09 2B 06 01 04 01 86 8D 1F 01 13 01 61 "
                                 "30 08 06 03 55 04 03 13 01 62"));
  }
  // The blob that is replaced may be one of those that are read.
  X500NameEncoder encoder;
  IdentObj& der = rdns.front().front().value;
  ASSERT_TRUE(encoder.Encode(rdns, der));
  EXPECT_EQ(Hex(der), Hex(Tlv(0x30, expected)));
}

}  // namespace
}  // namespace Ortholan::testing
