// Equality of names.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include "tests/names/model/rdn_bytes.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

std::string Cn(unsigned tag, const std::string& content) {
  return RdnOf("55 04 03", Tlv(tag, content));
}

std::string Name(const std::string& rdns) { return Tlv(0x30, rdns); }

const std::string kA = Cn(0x0C, "a");
const std::string kB = Cn(0x0C, "b");
const std::string kNul("a\0b", 3);

struct EqualRow {
  const char* label;
  std::string a;
  std::string b;
  bool equal;
};

const EqualRow kEqualRows[] = {
    {"two empty objects", "", "", true},
    {"empty object and no RDN", "", Name(""), true},
    {"empty object and a name", "", Name(kA), false},
    {"same bytes", Name(kA + kB), Name(kA + kB), true},
    {"another order", Name(kA + kB + kA), Name(kA + kA + kB), true},
    {"as often", Name(kA + kB + kA), Name(kA + kB + kB), false},
    {"part of the other", Name(kA), Name(kA + kA), false},
    {"another type", Name(kA), Name(RdnOf("55 04 0A", Tlv(0x0C, "a"))), false},
    {"types and values crossed", Name(kA + RdnOf("55 04 0A", Tlv(0x0C, "b"))),
     Name(kB + RdnOf("55 04 0A", Tlv(0x0C, "a"))), false},
    {"PrintableString", Name(kA), Name(Cn(0x13, "a")), true},
    {"BMPString", Name(kA), Name(Cn(0x1E, std::string("\0a", 2))), true},
    {"letter case", Name(kA), Name(Cn(0x0C, "A")), false},
    {"blank", Name(kA), Name(Cn(0x0C, "a ")), false},
    {"empty texts", Name(Cn(0x0C, "")), Name(Cn(0x13, "")), true},
    {"empty text and another", Name(Cn(0x0C, "") + kA), Name(Cn(0x0C, "") + kB), false},
    {"empty text among others", Name(kB + Cn(0x0C, "") + kA), Name(kA + Cn(0x13, "") + kB), true},
    {"the same up to NUL", Name(Cn(0x0C, kNul)), Name(kA), false},
    {"the same behind NUL", Name(Cn(0x0C, kNul)), Name(Cn(0x1E, std::string("\0a\0\0\0b", 6))),
     true},
    {"NUL alone", Name(Cn(0x0C, std::string(1, '\0'))), Name(Cn(0x0C, "")), false},
    {"unpaired surrogates", Name(Cn(0x1E, "\xD8\x3D")), Name(Cn(0x1E, "\xD8\x3E")), false},
    {"outside any 8-bit code page", Name(Cn(0x0C, "\xE2\x82\xAC\xE4\xBD\xA0")),
     Name(Cn(0x0C, "\xE2\x82\xAC\xE4\xBD\xA1")), false},
    {"kept as encodings", Name(Cn(0x93, "a") + kA), Name(kA + Cn(0x93, "a")), true},
    {"other octets", Name(Cn(0x93, "a")), Name(Cn(0x93, "b")), false},
    {"rest in another order", Name(kA + Cn(0x93, "a") + kA + kB),
     Name(kA + Cn(0x93, "a") + kB + kA), true},
    {"rest as often", Name(kA + kB + kA + kA), Name(kA + kB + kB + kA), false},
    {"an encoding is not its text", Name(Cn(0x93, "a")), Name(kA), false},
    {"an encoding is not its hexadecimal text", Name(Cn(0x93, "a")), Name(Cn(0x0C, "#930161")),
     false},
    {"nor its octets as characters", Name(Cn(0x93, "a")), Name(Cn(0x0C, "\xC2\x93\x01\x61")),
     false},
    {"padded arc of the same type", Name(kA), Name(RdnOf("55 80 04 03", Tlv(0x0C, "a"))), true},
    {"long form of a length", Name(kA), Octets("30 81 0C") + kA, true},
};

std::string Compared(const X509Name& a, const X509Name& b) {
  bool equal = false;
  bool unequal = false;
  const std::string outcome = Failure([&] { equal = a == b; });
  EXPECT_EQ(Failure([&] { unequal = a != b; }), outcome);
  if (outcome != "returned") return outcome;
  EXPECT_NE(equal, unequal);
  return equal ? "equal" : "not equal";
}

TEST(NameEquality, HoldsForTheSameAttributes) {
  for (const EqualRow& row : kEqualRows) {
    SCOPED_TRACE(row.label);
    const X509Name a = ExactCopy(row.a);
    const X509Name b = ExactCopy(row.b);
    EXPECT_EQ(Compared(a, b), row.equal ? "equal" : "not equal");
    EXPECT_EQ(Compared(b, a), row.equal ? "equal" : "not equal");
    EXPECT_EQ(Compared(a, a), "equal");
  }
}

TEST(NameEquality, IsRefusedWhereEitherSideIsNoName) {
  const std::string attribute = Octets("30 08 06 03 55 04 03 0C 01 61");
  const std::pair<const char*, std::string> rows[] = {
      {"several attributes", Name(kA + Tlv(0x31, attribute + attribute))},
      {"several attributes behind another one", Name(kB + Tlv(0x31, attribute + attribute))},
      {"no attribute", Octets("30 02 31 00")},
      {"no value", Octets("30 09 31 07 30 05 06 03 55 04 03")},
      {"cut short", Octets("30 0C 31 0A 30 08")},
      {"broken type", Octets("30 0B 31 09 30 07 06 02 55 80 0C 01 61")},
  };
  const X509Name good = ExactCopy(Name(kA));
  for (const auto& [label, der] : rows) {
    SCOPED_TRACE(label);
    const X509Name bad = ExactCopy(der);
    EXPECT_EQ(Compared(good, bad), kUntyped);
    EXPECT_EQ(Compared(bad, good), kUntyped);
    EXPECT_EQ(Compared(bad, bad), kUntyped);
    EXPECT_EQ(Compared(X509Name(), bad), kUntyped);
  }
}

}  // namespace
}  // namespace Ortholan::testing
