#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>

#include <algorithm>
#include <utility>

#include "tests/extensions/extension_shown.h"
#include "tests/support/calls.h"

namespace Ortholan::testing {
namespace {

IdentObj Characters(const char* text) { return ExactCopy(text); }

CertExtension Make(const char* oid, BOOL critical, const char* value) {
  CertExtension extension;
  extension.oid = Characters(oid);
  extension.critical = critical;
  extension.value = Blob(value);
  return extension;
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

// "1.2 0 05; 1.3 1 06"
std::string ShownList(const CertExtensionList& list) {
  std::string text;
  for (const CertExtension& extension : list) text += (text.empty() ? "" : "; ") + Shown(extension);
  return text;
}

// The extension of its text, which has two blanks.
CertExtension Read(const std::string& text) {
  const size_t flag = text.find(' ') + 1;
  const size_t value = text.find(' ', flag) + 1;
  return Make(text.substr(0, flag - 1).c_str(), std::stoi(text.substr(flag)),
              text.substr(value).c_str());
}

CertExtensionList ReadList(const std::string& text) {
  CertExtensionList list;
  for (size_t begin = 0, end; begin < text.size(); begin = end + 2) {
    end = std::min(text.find("; ", begin), text.size());
    list.push_back(Read(text.substr(begin, end - begin)));
  }
  return list;
}

std::string Compared(const VectorRow& row) {
  const CertExtension a = Read(row.text("in"));
  const CertExtension b = Read(row.text("arg"));
  std::string holds;
  const auto note = [&holds](bool does, const char* name) {
    if (does) holds += (holds.empty() ? "" : " ") + std::string(name);
  };
  note(a == b, "==");
  note(a != b, "!=");
  note(a < b, "<");
  note(a > b, ">");
  return holds;
}

std::string Found(const VectorRow& row) {
  CertExtension out = Make("9.9", 9, "FF");
  const bool found = ReadList(row.text("in")).FindExtension(row.text("arg").c_str(), out);
  return (found ? "found " : "") + Shown(out);
}

std::string Updated(const VectorRow& row) {
  CertExtensionList list = ReadList(row.text("in"));
  const bool changed = list.Update(Read(row.text("arg")));
  return (changed ? "changed: " : "same: ") + ShownList(list);
}

std::string Merged(const VectorRow& row) {
  CertExtensionList list = ReadList(row.text("in"));
  list.MergeLists(ReadList(row.text("arg")));
  return ShownList(list);
}

TEST(ExtensionValues, Answer) {
  RunCalls("extension_values.tsv",
           {{"compare", Compared}, {"find", Found}, {"update", Updated}, {"merge", Merged}});
}

TEST(CertExtensionList, TakesItselfAndItsElements) {
  CertExtensionList list = ReadList("1.2 1 05; 1.3 2 06");
  EXPECT_TRUE(list.FindExtension("1.2", list.front()));
  EXPECT_EQ(ShownList(list), "1.2 1 05; 1.3 2 06");
  EXPECT_TRUE(list.FindExtension("1.2", list.back()));
  EXPECT_EQ(ShownList(list), "1.2 1 05; 1.2 1 05");
  EXPECT_FALSE(list.FindExtension("1.3", list.back()));
  EXPECT_EQ(ShownList(list), "1.2 1 05;  1 05");

  list = ReadList("1.2 2 05; 1.3 0 09; 1.2 0 07");
  EXPECT_TRUE(list.Update(list.back()));
  EXPECT_EQ(ShownList(list), "1.2 0 07; 1.3 0 09; 1.2 0 07");
  CertExtensionList& same = list;
  list.MergeLists(same);
  same = list;
  EXPECT_EQ(ShownList(CertExtensionList(list)), "1.2 0 07; 1.3 0 09; 1.2 0 07");
  EXPECT_EQ(CertExtensionList().GetObjectSize(), 4u);
  EXPECT_EQ(ReadList("1.2 1 05 00;  0 ").GetObjectSize(), 4u + 17 + 12);
}

}  // namespace
}  // namespace Ortholan::testing
