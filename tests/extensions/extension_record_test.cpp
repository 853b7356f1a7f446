#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>

#include "tests/extensions/extension_shown.h"
#include "tests/support/calls.h"
#include "tests/support/data_lines.h"

namespace Ortholan::testing {
namespace {

CertExtension Make(std::string_view oid, BOOL critical, const IdentObj& value) {
  CertExtension extension;
  extension.oid = ExactCopy(oid);
  extension.critical = critical;
  extension.value = value;
  return extension;
}

// The code that `call(int* error)` reports, which has to be the same in either place.
template <class Call>
DWORD Code(Call&& call) {
  int error = -1;
  SetLastError(kUntouched);
  call(&error);
  const DWORD code = static_cast<DWORD>(error);
  SetLastError(kUntouched);
  call(nullptr);
  EXPECT_EQ(GetLastError(), code);
  return code;
}

std::string Written(const VectorRow& row) {
  CertExtension extension =
      Make(row.text("oid"), static_cast<BOOL>(row.number("critical")), ExactCopy(row.octets("in")));
  IdentObj record;
  const DWORD code = Code([&](int* error) { record = extension.WriteData(error); });
  return code == 0 ? Hex(record) : "code " + std::to_string(code) + Hex(record);
}

std::string Read(const VectorRow& row) {
  const IdentObj record = ExactCopy(row.octets("in"));
  CertExtension extension = Make("9.9", 9, Blob("FF"));
  DWORD consumed = 0;
  const DWORD code =
      Code([&](int* error) { consumed = extension.ReadData(record.pbData, record.cbData, error); });
  if (code == 0) return std::to_string(consumed) + ": " + Shown(extension);
  EXPECT_EQ(std::to_string(consumed) + Shown(extension), "09.9 9 FF");
  return "code " + std::to_string(code);
}

TEST(ExtensionRecord, Answers) {
  RunCalls("extension_records.tsv", {{"write", Written}, {"read", Read}});
}

TEST(ExtensionRecord, MayBeLong) {
  const IdentObj record = Make("2.5.29.15", -256, IdentObj(nullptr, 65536)).WriteData(nullptr);
  EXPECT_EQ(Hex(AsText(record).substr(0, 18)),
            "30 83 01 00 0D 06 03 55 1D 0F 01 01 FF 04 83 01 00 00");
  EXPECT_EQ(record.cbData, 18u + 65536);
  CertExtension none;
  EXPECT_EQ(Code([&](int* error) { none.ReadData(nullptr, 5, error); }), kCorrupt);
  EXPECT_EQ(Code([&](int* error) { none.ReadData("0", 0, error); }), kCorrupt);
}

TEST(ExtensionRecord, IsReadFromItsOwnValue) {
  CertExtension extension = Make("9.9", 9, Blob("30 06 06 01 2A 04 01 41"));
  EXPECT_EQ(extension.ReadData(extension.value.pbData, extension.value.cbData, nullptr), 8u);
  EXPECT_EQ(Shown(extension), "1.2 0 41");
}

// Reads, and writes what was read; false where it is refused. What was written is read as the same.
bool HoldsFor(const std::string& octets, std::string* written) {
  const IdentObj exact = ExactCopy(octets);
  CertExtension extension = Make("9.9", 9, Blob("FF"));
  int error = -1;
  const DWORD consumed = extension.ReadData(exact.pbData, exact.cbData, &error);
  EXPECT_EQ(consumed == 0, error != 0);
  EXPECT_LE(consumed, exact.cbData);
  if (consumed == 0) {
    EXPECT_EQ(Shown(extension), "9.9 9 FF");
    return false;
  }
  const IdentObj record = extension.WriteData(&error);
  EXPECT_EQ(error, 0);
  CertExtension again;
  EXPECT_EQ(again.ReadData(record.pbData, record.cbData, &error), record.cbData);
  EXPECT_TRUE(again == extension);
  *written = AsText(record);
  return true;
}

// "der 30..." or "other 30..."
struct Sample {
  explicit Sample(const std::string& line)
      : canonical(line.rfind("der ", 0) == 0), octets(Octets(line.substr(line.find(' ') + 1))) {}
  bool canonical;
  std::string octets;
};

TEST(RealExtensions, CanonicalRecordsComeBack) {
  size_t canonical = 0;
  for (const std::string& line : DataLines("extensions.txt")) {
    SCOPED_TRACE(line);
    const Sample sample(line);
    std::string written;
    HoldsFor(sample.octets, &written);
    EXPECT_EQ(written == sample.octets, sample.canonical);
    if (sample.canonical) ++canonical;
  }
  EXPECT_GT(canonical, 25u);
}

}  // namespace
}  // namespace Ortholan::testing
