#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>

#include <utility>

#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUntouched = 7777;

IdentObj Characters(const char* text) { return ExactCopy(text); }

CertExtension Make(const char* oid, BOOL critical, const char* value) {
  CertExtension extension;
  extension.oid = Characters(oid);
  extension.critical = critical;
  extension.value = Blob(value);
  return extension;
}

// "2.5.29.15 1 03 02"
std::string Shown(const CertExtension& extension) {
  return std::string(AsText(extension.oid)) + ' ' + std::to_string(extension.critical) + ' ' +
         Hex(extension.value);
}

TEST(CertExtension, CopiesThePlatformsRecord) {
  char oid[] = "2.5.29.19";
  char empty[] = "";
  BYTE octets[] = {0x30, 0x00};
  const struct {
    const char* label;
    CERT_EXTENSION raw;
    const char* shown;
    DWORD size;
  } kRows[] = {
      {"whole", {oid, 1, {2, octets}}, "2.5.29.19 1 30 00", 23},
      {"flag as given", {oid, -7, {1, octets}}, "2.5.29.19 -7 30", 22},
      {"empty", {empty, 0, {0, nullptr}}, " 0 ", 12},
      {"null", {nullptr, 2, {0, octets}}, " 2 ", 12},
      {"size alone", {oid, 0, {2, nullptr}}, "2.5.29.19 0 00 00", 23},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    const CertExtension made(row.raw);
    CertExtension assigned = Make("1.2", 1, "FF");
    assigned = row.raw;
    EXPECT_EQ(Shown(made), row.shown);
    EXPECT_EQ(Shown(assigned), row.shown);
    EXPECT_EQ(made.GetObjectSize(), row.size);
  }
  EXPECT_EQ(CertExtension().GetObjectSize(), 12u);
  EXPECT_EQ(Shown(CertExtension()), " 0 ");
}

TEST(CertExtension, IsAValue) {
  CertExtension a = Make("1.2.3", 3, "05 00");
  CertExtension copy = a;
  CertExtension& same = copy;
  copy = same;
  a.value.pbData[0] = 0x06;
  EXPECT_EQ(Shown(copy), "1.2.3 3 05 00");
  const CertExtension moved = std::move(copy);
  copy = a;
  EXPECT_EQ(Shown(moved), "1.2.3 3 05 00");
  EXPECT_EQ(Shown(copy), "1.2.3 3 06 00");

  // A record whose parts are those of the extension that it is assigned to.
  a.oid = ExactCopy(std::string("1.2.3", 6));
  const CERT_EXTENSION own = {reinterpret_cast<LPSTR>(a.oid.pbData), 1, a.value};
  a = own;
  EXPECT_EQ(Shown(a), "1.2.3 1 06 00");
}

TEST(CertExtension, Comparisons) {
  enum : unsigned { kEqual = 1, kUnequal = 2, kLess = 4, kGreater = 8 };
  const struct {
    const char* label;
    CertExtension a;
    CertExtension b;
    unsigned holds;
  } kRows[] = {
      {"equal", Make("1.2", 1, "05"), Make("1.2", 1, "05"), kEqual},
      {"empty", CertExtension(), CertExtension(), kEqual},
      {"other value", Make("1.2", 1, "05"), Make("1.2", 1, "06"), 0},
      {"other flag", Make("1.2", 1, "05"), Make("1.2", 2, "05"), 0},
      {"other identifier", Make("1.2", 1, "05"), Make("1.3", 1, "05"), 0},
      {"all but the identifier", Make("1.2", 0, "05"), Make("1.2", 1, "06"), 0},
      {"all but the flag", Make("1.2", 1, "05"), Make("1.3", 1, "06"), 0},
      {"all but the value", Make("1.2", 0, "05"), Make("1.3", 1, "05"), 0},
      {"all less", Make("1.2", 0, "05"), Make("1.3", 1, "06"), kUnequal | kLess},
      {"all greater", Make("1.3", 1, "06"), Make("1.2", 0, "05"), kUnequal | kGreater},
      {"mixed", Make("1.2", 1, "05"), Make("1.3", 0, "06"), kUnequal},
      {"signed flag", Make("1.2", -1, "05"), Make("1.3", 0, "06"), kUnequal | kLess},
      {"unsigned octets", Make("1.2", 0, "7F"), Make("1.3", 1, "80"), kUnequal | kLess},
      {"shorter first", Make("9", 0, "FF"), Make("1.2", 1, "00 00"), kUnequal | kLess},
      {"empty first", CertExtension(), Make("1", 1, "00"), kUnequal | kLess},
  };
  for (const auto& row : kRows) {
    const unsigned holds = (row.a == row.b ? kEqual : 0u) | (row.a != row.b ? kUnequal : 0u) |
                           (row.a < row.b ? kLess : 0u) | (row.a > row.b ? kGreater : 0u);
    EXPECT_EQ(holds, row.holds) << row.label;
  }
}

// The value after encoding `info`.
template <class Info>
std::string Encoded(Info info, const char* structType) {
  CertExtension extension = Make("1.2", 1, "FF");
  EXPECT_TRUE(extension.EncodeData(&info, structType));
  EXPECT_EQ(extension.critical, 1);
  return Hex(extension.value);
}

TEST(CertExtension, EncodesThePlatformsStructures) {
  BYTE bits[] = {0xA0};
  char usage[] = "1.2.3";
  LPSTR usages[] = {usage};
  const CRYPT_DATA_BLOB octets = {1, bits};
  const CERT_BASIC_CONSTRAINTS2_INFO authority = {TRUE, TRUE, 1};
  EXPECT_EQ(Encoded(authority, X509_BASIC_CONSTRAINTS2), "30 06 01 01 FF 02 01 01");
  EXPECT_EQ(Encoded(authority, szOID_BASIC_CONSTRAINTS2), "30 06 01 01 FF 02 01 01");
  EXPECT_EQ(Encoded(CRYPT_BIT_BLOB{1, bits, 5}, X509_KEY_USAGE), "03 02 05 A0");
  EXPECT_EQ(Encoded(CERT_ENHKEY_USAGE{1, usages}, X509_ENHANCED_KEY_USAGE), "30 04 06 02 2A 03");
  EXPECT_EQ(Encoded(octets, X509_OCTET_STRING), "04 01 A0");
}

TEST(CertExtension, DecodesThePlatformsStructures) {
  CertExtension extension = Make("1.2", 0, "30 06 01 01 FF 02 01 01");
  IdentObj out = Blob("FF");
  ASSERT_TRUE(extension.DecodeData(out, X509_BASIC_CONSTRAINTS2));
  const auto* authority = reinterpret_cast<const CERT_BASIC_CONSTRAINTS2_INFO*>(out.pbData);
  EXPECT_NE(authority->fCA, FALSE);
  EXPECT_NE(authority->fPathLenConstraint, FALSE);
  EXPECT_EQ(authority->dwPathLenConstraint, 1u);
  EXPECT_EQ(Hex(extension.value), "30 06 01 01 FF 02 01 01");

  // Into the value itself, whose structure then points into it, and back.
  extension.value = Blob("03 02 05 A0");
  ASSERT_TRUE(extension.DecodeData(extension.value, X509_KEY_USAGE));
  const auto* bits = reinterpret_cast<const CRYPT_BIT_BLOB*>(extension.value.pbData);
  ASSERT_EQ(bits->cbData, 1u);
  EXPECT_EQ(bits->cUnusedBits, 5u);
  EXPECT_GT(bits->pbData, extension.value.pbData);
  EXPECT_LT(bits->pbData, extension.value.pbData + extension.value.cbData);
  EXPECT_EQ(bits->pbData[0], 0xA0);
  ASSERT_TRUE(extension.EncodeData(extension.value.pbData, X509_KEY_USAGE));
  EXPECT_EQ(Hex(extension.value), "03 02 05 A0");
}

TEST(CertExtension, CodecFailuresLeaveEverythingAlone) {
  const struct {
    const char* label;
    const char* structType;
    const char* value;
    DWORD error;  // 0 for any
  } kRows[] = {
      {"unknown identifier", "1.2.3.4.5.6.7", "05 00", 2},
      {"unknown constant", reinterpret_cast<const char*>(0x7FF0), "05 00", 2},
      {"another tag", X509_BASIC_CONSTRAINTS2, "05 00", 0},
      {"cut short", X509_BASIC_CONSTRAINTS2, "30 06 01 01 FF", 0},
      {"empty", X509_KEY_USAGE, "", 0},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    CertExtension extension = Make("1.2", 1, row.value);
    IdentObj out = Blob("AB");
    SetLastError(kUntouched);
    EXPECT_FALSE(extension.DecodeData(out, row.structType));
    const DWORD error = GetLastError();
    EXPECT_TRUE(row.error != 0 ? error == row.error : error != kUntouched) << error;
    EXPECT_EQ(Hex(out), "AB");
    EXPECT_EQ(Hex(extension.value), row.value);
  }
  CertExtension extension = Make("1.2", 1, "05 00");
  CRYPT_DATA_BLOB info = {0, nullptr};
  SetLastError(kUntouched);
  EXPECT_FALSE(extension.EncodeData(&info, "1.2.3.4.5.6.7"));
  EXPECT_EQ(GetLastError(), 2u);
  EXPECT_EQ(Shown(extension), "1.2 1 05 00");
}

// "1.2 0 05; 1.3 1 06; "
std::string Shown(const CertExtensionList& list) {
  std::string text;
  for (const CertExtension& extension : list) text += Shown(extension) + "; ";
  return text;
}

CertExtensionList List(std::initializer_list<CertExtension> extensions) {
  CertExtensionList list;
  for (const CertExtension& extension : extensions) list.push_back(extension);
  return list;
}

TEST(CertExtensionList, FindsByIdentifier) {
  const CertExtensionList list =
      List({Make("1.2", 1, "05"), Make("A", 2, "06"), Make("1.2", 3, "07"), Make("", 4, "08")});
  const struct {
    const char* label;
    const char* oid;
    bool found;
    const char* shown;
  } kRows[] = {
      {"first of two", "1.2", true, "1.2 1 05"},
      {"letters", "A", true, "A 2 06"},
      {"case", "a", false, " 9 FF"},
      {"longer", "1.2.3", false, " 9 FF"},
      {"shorter", "1.", false, " 9 FF"},
      {"empty", "", true, " 4 08"},
  };
  for (const auto& row : kRows) {
    CertExtension out = Make("9.9", 9, "FF");
    EXPECT_EQ(list.FindExtension(row.oid, out), row.found) << row.label;
    EXPECT_EQ(Shown(out), row.shown) << row.label;
  }
  CertExtension out = Make("9.9", 9, "FF");
  EXPECT_FALSE(CertExtensionList().FindExtension("", out));
  EXPECT_EQ(Shown(out), " 9 FF");
}

TEST(CertExtensionList, FindsIntoAnElementOfItsOwn) {
  CertExtensionList list = List({Make("1.2", 1, "05"), Make("1.3", 2, "06")});
  EXPECT_TRUE(list.FindExtension("1.2", list.front()));
  EXPECT_EQ(Shown(list), "1.2 1 05; 1.3 2 06; ");
  EXPECT_TRUE(list.FindExtension("1.2", list.back()));
  EXPECT_EQ(Shown(list), "1.2 1 05; 1.2 1 05; ");
  EXPECT_FALSE(list.FindExtension("1.3", list.back()));
  EXPECT_EQ(Shown(list), "1.2 1 05;  1 05; ");
}

TEST(CertExtensionList, UpdateReplacesOrAppends) {
  CertExtensionList list = List({Make("1.2", 1, "05"), Make("1.3", 0, "06"), Make("1.2", 0, "07")});
  const struct {
    const char* label;
    CertExtension extension;
    bool changed;
    const char* shown;
  } kSteps[] = {
      {"same", Make("1.2", 1, "05"), false, "1.2 1 05; 1.3 0 06; 1.2 0 07; "},
      {"value", Make("1.3", 0, "09"), true, "1.2 1 05; 1.3 0 09; 1.2 0 07; "},
      {"flag of the first", Make("1.2", 2, "05"), true, "1.2 2 05; 1.3 0 09; 1.2 0 07; "},
      {"new", Make("1.4", 0, ""), true, "1.2 2 05; 1.3 0 09; 1.2 0 07; 1.4 0 ; "},
      {"new no more", Make("1.4", 0, ""), false, "1.2 2 05; 1.3 0 09; 1.2 0 07; 1.4 0 ; "},
      {"empty", CertExtension(), true, "1.2 2 05; 1.3 0 09; 1.2 0 07; 1.4 0 ;  0 ; "},
  };
  for (const auto& step : kSteps) {
    EXPECT_EQ(list.Update(step.extension), step.changed) << step.label;
    EXPECT_EQ(Shown(list), step.shown) << step.label;
  }
  const CertExtension& second = *std::next(list.begin(), 2);
  EXPECT_TRUE(list.Update(second)) << "an element of the list itself";
  EXPECT_EQ(Shown(list), "1.2 0 07; 1.3 0 09; 1.2 0 07; 1.4 0 ;  0 ; ");
}

TEST(CertExtensionList, Merges) {
  CertExtensionList list = List({Make("1.2", 1, "05"), Make("1.3", 0, "06")});
  list.MergeLists(List({Make("1.4", 0, "07"), Make("1.2", 0, "08"), Make("1.4", 1, "09")}));
  EXPECT_EQ(Shown(list), "1.2 0 08; 1.3 0 06; 1.4 1 09; ");
  list.MergeLists(CertExtensionList());
  EXPECT_EQ(Shown(list), "1.2 0 08; 1.3 0 06; 1.4 1 09; ");

  CertExtensionList twice = List({Make("1.2", 1, "05"), Make("1.2", 0, "06")});
  CertExtensionList& same = twice;
  twice.MergeLists(same);
  EXPECT_EQ(Shown(twice), "1.2 1 05; 1.2 0 06; ");
  same = twice;
  EXPECT_EQ(Shown(CertExtensionList(twice)), "1.2 1 05; 1.2 0 06; ");
}

TEST(CertExtensionList, ObjectSize) {
  EXPECT_EQ(CertExtensionList().GetObjectSize(), 4u);
  EXPECT_EQ(List({Make("1.2", 1, "05 00"), CertExtension()}).GetObjectSize(), 4u + 17 + 12);
}

}  // namespace
}  // namespace Ortholan::testing
