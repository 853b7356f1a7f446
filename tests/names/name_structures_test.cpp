// Names from SimpleRDN lists, RDNAttr lists and CERT_NAME_INFO: order, sets, refusals.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

// RDNs with the value "a".
const std::string kUnranked = " 31 0A 30 08 06 03 2A 03 04 13 01 61";
const std::string kC = " 31 0A 30 08 06 03 55 04 06 13 01 61";
const std::string kO = " 31 0A 30 08 06 03 55 04 0A 13 01 61";
const std::string kCn = " 31 0A 30 08 06 03 55 04 03 13 01 61";
const std::string kPseudonym = " 31 0A 30 08 06 03 55 04 41 13 01 61";

template <class Form, class... Sort>
std::string Written(const Form& form, Sort... sort) {
  return Encoded(kKept,
                 [&](IdentObj& der) { return X500NameEncoder().Encode(form, der, sort...); });
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
  for (const auto& [pairs, der] : rows) EXPECT_EQ(Written(pairs, false), der);
  EXPECT_EQ(Written(rows[1].first, true), "30 30" + kUnranked + kC + kCn + kPseudonym);
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
  for (const auto& [form, der] : rows) EXPECT_EQ(Written(form), der);
}

// Their copies fill blocks of their own.
TEST(EncodeRdnLists, WritesLongValues) {
  const auto repeated = [](const char* unit) {
    std::string octets;
    for (int i = 0; i < 4104; ++i) octets += Octets(unit);
    return octets;
  };
  const struct {
    DWORD type;
    const char* unit;
    unsigned tag;
    const char* written;
  } rows[] = {{CERT_RDN_BMP_STRING, "61 00", 0x13, "61"},
              {CERT_RDN_BMP_STRING, "36 04", 0x1E, "04 36"},
              {CERT_RDN_UTF8_STRING, "D0 B6", 0x1E, "04 36"}};
  for (const auto& row : rows) {
    const Rdns rdns = {{RDNAttr("2.5.4.3", row.type, ExactCopy(repeated(row.unit)))}};
    const std::string value = Tlv(row.tag, repeated(row.written));
    EXPECT_EQ(Octets(Written(rdns)), NameOf(Octets("06 03 55 04 03") + value));
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
  for (const auto& [form, der] : rows) EXPECT_EQ(Written(form), der);
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
