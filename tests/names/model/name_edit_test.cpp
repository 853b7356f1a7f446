// Names as pairs: one value read, replaced, all listed, lists merged.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include "tests/names/model/rdn_bytes.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

using PairList = std::list<SimpleRDN>;

template <class SomePairs>
std::string Text(const SomePairs& pairs) {
  std::string shown;
  for (const SimpleRDN& pair : pairs) {
    shown += pair.key.c_str() + ('=' + std::string(pair.value.c_str())) + ';';
  }
  return shown;
}

const std::string kTwoValues = TwoValuedRdn();

// Two units, two common names, one value kept as its encoding, one empty, one with a NUL in it.
const std::string kCountry = RdnOf("55 04 06", Tlv(0x13, "RU"));
const std::string kUnits = RdnOf("55 04 0B", Tlv(0x0C, "u,1")) + RdnOf("55 04 0B", Tlv(0x13, "u2"));
const std::string kPlain = kCountry + kUnits + RdnOf("55 04 03", Tlv(0x0C, std::string("a\0b", 3)));
const std::string kOdd =
    RdnOf("55 04 03", Octets("93 01 61")) + RdnOf("55 04 05", Tlv(0x13, "")) + kCountry;

constexpr char kNone[] = "none";

struct GetRow {
  const char* label;
  std::string name;
  const char* oid;
  const char* value;  // kNone, or null where reading fails
};

TEST(SimpleRdns, AreReadByIdentifier) {
  const char* const blob = ThisRealisation() == kNative ? "#930161" : "";
  const GetRow rows[] = {
      {"found", Tlv(0x30, kPlain), "2.5.4.6", "RU"},
      {"the first of two", Tlv(0x30, kPlain), "2.5.4.11", "u,1"},
      {"both texts end at NUL", Tlv(0x30, kPlain), "2.5.4.3", "a"},
      {"kept as its encoding", Tlv(0x30, kOdd), "2.5.4.3", blob},
      {"empty value", Tlv(0x30, kOdd), "2.5.4.5", ""},
      {"absent", Tlv(0x30, kPlain), "2.5.4.10", kNone},
      {"keyword", Tlv(0x30, kPlain), "C", kNone},
      {"longer", Tlv(0x30, kPlain), "2.5.4.66", kNone},
      {"shorter", Tlv(0x30, kPlain), "2.5.4.", kNone},
      {"null", Tlv(0x30, kPlain), nullptr, kNone},
      {"no RDN", Octets("30 00"), "2.5.4.3", kNone},
      {"empty object", "", "2.5.4.3", nullptr},
      {"several attributes", Tlv(0x30, kPlain + kTwoValues), "2.5.4.6", nullptr},
      {"no name", Octets("01 02"), "2.5.4.3", nullptr},
  };
  for (const GetRow& row : rows) {
    SCOPED_TRACE(row.label);
    const X509Name name = ExactCopy(row.name);
    const char* const outcome = row.value != nullptr ? "returned" : kUntyped;
    const bool expected = row.value != nullptr && row.value != kNone;
    bool found = false;
    CZEPString text = "old";
    EXPECT_EQ(Failure([&] { found = name.GetSimpleRDN(row.oid, text); }), outcome);
    EXPECT_EQ(found, expected);
    EXPECT_STREQ(text.c_str(), expected ? row.value : "");
    found = false;
    std::wstring wide = L"old";
    EXPECT_EQ(Failure([&] { found = name.GetSimpleRDN(row.oid, wide); }), outcome);
    EXPECT_EQ(found, expected);
    EXPECT_EQ(Shown(wide), expected ? row.value : "");
  }
}

TEST(SimpleRdns, AreReadIntoTheirOwnIdentifier) {
  const X509Name name = ExactCopy(Tlv(0x30, kPlain));
  CZEPString text = "2.5.4.6";
  EXPECT_TRUE(name.GetSimpleRDN(text.c_str(), text));
  EXPECT_STREQ(text.c_str(), "RU");
}

TEST(SimpleRdns, AreListed) {
  const std::pair<std::string, const char*> rows[] = {
      {Tlv(0x30, kPlain), "2.5.4.6=RU;2.5.4.11=u,1;2.5.4.11=u2;2.5.4.3=a;"},
      {Octets("30 00"), ""},
      {"", ""},
      {Tlv(0x30, kCountry + kTwoValues), nullptr},
      {Octets("30 80"), nullptr},
  };
  for (const auto& [der, shown] : rows) {
    SCOPED_TRACE(Hex(der));
    const X509Name name = ExactCopy(der);
    const char* const outcome = shown != nullptr ? "returned" : kUntyped;
    PairList tried = {{"old", "old"}};
    EXPECT_EQ(name.TryGetSimpleRDNList(tried), shown != nullptr);
    EXPECT_EQ(Text(tried), shown != nullptr ? shown : "old=old;");
    for (const bool flag : {false, true}) {
      PairList list = {{"old", "old"}};
      EXPECT_EQ(Failure([&] { name.GetSimpleRDNList(list, flag); }), outcome);
      EXPECT_EQ(Text(list), shown != nullptr ? shown : "");
    }
    std::vector<SimpleRDN> vector = {{"old", "old"}};
    EXPECT_EQ(Failure([&] { name.GetSimpleRDNVector(vector); }), outcome);
    EXPECT_EQ(Text(vector), shown != nullptr ? shown : "");
  }
}

struct SetRow {
  const char* label;
  std::string name;
  const char* oid;
  const char* value;
  const char* outcome;  // the text afterwards, or how it is refused
};

const SetRow kSetRows[] = {
    {"the first of two", Tlv(0x30, kCountry + kUnits), "2.5.4.11", "x;\"y\"",
     R"(2.5.4.6=RU,2.5.4.11="x;""y""",2.5.4.11=u2)"},
    {"the order stays", Tlv(0x30, kUnits + kCountry), "2.5.4.6", "US",
     R"(2.5.4.11="u,1",2.5.4.11=u2,2.5.4.6=US)"},
    {"what is told of the others stays whole", Tlv(0x30, kPlain), "2.5.4.6", "US",
     R"(2.5.4.6=US,2.5.4.11="u,1",2.5.4.11=u2,2.5.4.3=a<0000>b)"},
    {"absent", Tlv(0x30, kPlain), "2.5.4.10", "x", "false"},
    {"keyword", Tlv(0x30, kPlain), "C", "x", "false"},
    {"null identifier", Tlv(0x30, kPlain), nullptr, "x", "false"},
    {"empty object", "", "2.5.4.6", "x", "false"},
    {"several attributes", Tlv(0x30, kCountry + kTwoValues), "2.5.4.6", "US", "false, 1358"},
    {"no name", Octets("01 02"), "2.5.4.6", "US", "false, 1358"},
    {"value outside the alphabet", Tlv(0x30, kPlain), "2.5.4.6", "R_", kUntyped},
    {"empty value", Tlv(0x30, kPlain), "2.5.4.6", "", kUntyped},
    {"null value", Tlv(0x30, kPlain), "2.5.4.6", nullptr, kUntyped},
    {"an identifier that text may not name", Tlv(0x30, RdnOf("55 04 09", Tlv(0x0C, "s"))),
     "2.5.4.9", "x", kUntyped},
    {"another value cannot be encoded anew", Tlv(0x30, kOdd), "2.5.4.6", "US", kUntyped},
};

TEST(SimpleRdns, AreReplaced) {
  for (const SetRow& row : kSetRows) {
    SCOPED_TRACE(row.label);
    X509Name name = ExactCopy(row.name);
    bool set = false;
    std::string outcome = Failure([&] {
      SetLastError(kUntouched);
      set = name.SetSimpleRDN(row.oid, row.value);
    });
    if (outcome == "returned")
      outcome = set ? Rendered(name, 2) : "false" + Refusal().substr(kRefused.size());
    EXPECT_EQ(outcome, row.outcome);
    EXPECT_TRUE(set || Hex(name) == Hex(row.name)) << Hex(name);

    X509Name again = ExactCopy(row.name);
    const SimpleRDN pair(row.oid, row.value);
    EXPECT_EQ(Failure([&] { EXPECT_EQ(again.SetSimpleRDN(pair), set); }),
              outcome == kUntyped ? kUntyped : "returned");
    EXPECT_EQ(Hex(again), Hex(name));
  }
}

struct MergeRow {
  const char* label;
  PairList target;
  PairList source;
  const char* key;
  const char* merged;
};

const MergeRow kMergeRows[] = {
    {"in neither", {{"a", "1"}}, {{"b", "2"}}, "c", "a=1;"},
    {"in the source alone", {{"a", "1"}}, {{"B", "2"}, {"b", "3"}}, "b", "a=1;B=2;"},
    {"in the target alone", {{"a", "1"}, {"B", "2"}, {"b", "3"}}, {{"c", "4"}}, "b", "a=1;b=3;"},
    {"in both",
     {{"a", "1"}, {"Cn", "2"}, {"cn", "3"}},
     {{"cN", "4"}, {"CN", "5"}},
     "CN",
     "a=1;Cn=4;cn=3;"},
    {"letters outside ASCII do not fold",
     {{"\xC4", "1"}},
     {{"\xE4", "2"}},
     "\xE4",
     "\xC4=1;\xE4=2;"},
    {"empty key", {{"", "1"}}, {{"", "2"}}, nullptr, "=2;"},
    {"a prefix is another key", {{"ab", "1"}}, {{"a", "2"}}, "a", "ab=1;a=2;"},
};

TEST(SimpleRdns, AreMergedByKey) {
  for (const MergeRow& row : kMergeRows) {
    SCOPED_TRACE(row.label);
    PairList target = row.target;
    PairList source = row.source;
    X509Name::MergeRDNAtributes(target, source, row.key);
    EXPECT_EQ(Text(target), row.merged);
    EXPECT_EQ(Text(source), Text(row.source));
  }
  PairList list = {{"a", "1"}, {"b", "2"}};
  X509Name::MergeRDNAtributes(list, list, "B");
  EXPECT_EQ(Text(list), "a=1;b=2;");
  PairList empty;
  X509Name::MergeRDNAtributes(list, empty, list.front().key.c_str());
  EXPECT_EQ(Text(list), "b=2;");
}

}  // namespace
}  // namespace Ortholan::testing
