#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>

#include "tests/support/data_lines.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUntouched = 7777;
constexpr DWORD kCorrupt = 0x80093103;
constexpr DWORD kBadTag = 0x8009310B;

std::string Shown(const CertExtension& extension) {
  return std::string(AsText(extension.oid)) + ' ' + std::to_string(extension.critical) + ' ' +
         Hex(extension.value);
}

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

IdentObj Zeros(DWORD size) { return IdentObj(nullptr, size); }

TEST(ExtensionRecord, Writes) {
  const IdentObj usage = Blob("03 02 05 A0");
  const struct {
    const char* label;
    CertExtension extension;
    std::string record;
  } kRows[] = {
      {"critical", Make("2.5.29.15", 1, usage), "30 0E 06 03 55 1D 0F 01 01 FF 04 04 03 02 05 A0"},
      {"not critical", Make("2.5.29.15", 0, usage), "30 0B 06 03 55 1D 0F 04 04 03 02 05 A0"},
      {"any flag", Make("1.2", -256, IdentObj()), "30 08 06 01 2A 01 01 FF 04 00"},
      {"long arc", Make("1.2.4294967295.0", 0, usage),
       "30 0F 06 07 2A 8F FF FF FF 7F 00 04 04 03 02 05 A0"},
      {"up to a NUL", Make(std::string_view("1.2\0x", 5), 0, IdentObj()), "30 05 06 01 2A 04 00"},
      {"200 octets", Make("2.5.29.15", 0, Zeros(200)), "30 81 D0 06 03 55 1D 0F 04 81 C8"},
      {"300 octets", Make("2.5.29.15", 0, Zeros(300)), "30 82 01 35 06 03 55 1D 0F 04 82 01 2C"},
      {"65,536 octets", Make("2.5.29.15", 1, Zeros(65536)),
       "30 83 01 00 0D 06 03 55 1D 0F 01 01 FF 04 83 01 00 00"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    CertExtension extension = row.extension;
    IdentObj record;
    EXPECT_EQ(Code([&](int* error) { record = extension.WriteData(error); }), 0u);
    std::string expected = Octets(row.record);
    if (extension.value.cbData >= 200) expected += std::string(extension.value.cbData, '\0');
    EXPECT_TRUE(AsText(record) == expected) << Hex(AsText(record).substr(0, 30));
  }
}

TEST(ExtensionRecord, RefusesToWrite) {
  std::string longest = "1.2";
  for (int i = 0; i < 259; ++i) longest += ".0";
  const std::string kOids[] = {"",    "1",     "1.",   ".1.2",           "1.2.",        "1..2",
                               "a.b", "1.2.x", "1.2 ", "1.2.4294967296", longest + ".0"};
  for (const std::string& oid : kOids) {
    CertExtension extension = Make(oid, 1, Blob("05 00"));
    IdentObj record;
    EXPECT_EQ(Code([&](int* error) { record = extension.WriteData(error); }), 1326u) << oid;
    EXPECT_EQ(record.cbData, 0u) << oid;
  }
  int error = -1;
  EXPECT_EQ(Make(longest, 0, IdentObj()).WriteData(&error).cbData, 4u + 4 + 260 + 2);
  EXPECT_EQ(error, 0);
}

TEST(ExtensionRecord, Reads) {
  const struct {
    const char* label;
    const char* record;
    DWORD consumed;
    const char* shown;
  } kRows[] = {
      {"critical", "30 0E 06 03 55 1D 0F 01 01 FF 04 04 03 02 05 A0", 16,
       "2.5.29.15 1 03 02 05 A0"},
      {"not critical", "30 0B 06 03 55 1D 0F 04 04 03 02 05 A0", 13, "2.5.29.15 0 03 02 05 A0"},
      {"octets behind", "30 06 06 01 2A 04 01 41 30 80", 8, "1.2 0 41"},
      {"FALSE written", "30 08 06 01 2A 01 01 00 04 00", 10, "1.2 0 "},
      {"TRUE as one", "30 08 06 01 2A 01 01 01 04 00", 10, "1.2 1 "},
      {"TRUE in the second octet", "30 09 06 01 2A 01 02 00 80 04 00", 11, "1.2 1 "},
      {"indefinite", "30 80 06 01 2A 04 01 41 00 00 FF", 10, "1.2 0 41"},
      {"long lengths", "30 81 09 06 81 01 2A 04 82 00 01 41", 12, "1.2 0 41"},
      {"eight length octets", "30 88 00 00 00 00 00 00 00 05 06 01 2A 04 00", 15, "1.2 0 "},
      {"a SET", "31 05 06 01 2A 04 00", 7, "1.2 0 "},
      {"last of any type", "30 07 06 01 2A 30 02 05 00", 9, "1.2 0 05 00"},
      {"last in pieces", "30 08 06 01 2A 24 03 04 01 41", 10, "1.2 0 04 01 41"},
      {"padded arc", "30 07 06 03 2A 80 05 04 00", 9, "1.2.5 0 "},
      {"two-octet first arcs stay", "30 06 06 02 88 37 04 00", 8, "3.16.55 0 "},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    const IdentObj record = Blob(row.record);
    CertExtension extension = Make("9.9", 9, Blob("FF"));
    DWORD consumed = 0;
    const auto read = [&](int* error) {
      consumed = extension.ReadData(record.pbData, record.cbData, error);
    };
    EXPECT_EQ(Code(read), 0u);
    EXPECT_EQ(consumed, row.consumed);
    EXPECT_EQ(Shown(extension), row.shown);
  }
}

TEST(ExtensionRecord, RefusesToRead) {
  const struct {
    const char* label;
    const char* record;
    DWORD code = kCorrupt;
  } kRows[] = {
      {"nothing", ""},
      {"one octet", "30"},
      {"no children", "30 00"},
      {"one child", "30 03 06 01 2A"},
      {"four children", "30 0A 06 01 2A 01 01 FF 04 00 05 00"},
      {"four children, the last broken", "30 0A 06 01 2A 05 00 04 00 1F 81 81", kBadTag},
      {"primitive", "04 05 06 01 2A 04 00", kBadTag},
      {"identifier never ends", "3F 81 81 81", kBadTag},
      {"first is no identifier", "30 05 04 01 2A 04 00"},
      {"identifier constructed", "30 05 26 01 2A 04 00"},
      {"identifier of another class", "30 05 86 01 2A 04 00"},
      {"identifier empty", "30 04 06 00 04 00"},
      {"identifier unfinished", "30 06 06 02 2A 83 04 00"},
      {"identifier above 32 bits", "30 0A 06 06 2A 90 80 80 80 00 04 00"},
      {"identifier indefinite", "30 80 06 80 2A 03 00 00 04 00 00 00"},
      {"middle is no BOOLEAN", "30 08 06 01 2A 02 01 01 04 00"},
      {"BOOLEAN empty", "30 07 06 01 2A 01 00 04 00"},
      {"value indefinite", "30 0A 06 01 2A 24 80 04 01 41 00 00"},
      {"value counted", "30 80 06 01 2A 04 80 41 00 00 00 00"},
      {"value passes the end", "30 05 06 01 2A 04 01 41"},
      {"record passes the end", "30 06 06 01 2A 04 01"},
      {"no terminator", "30 80 06 01 2A 04 01 41"},
      {"nine length octets", "30 89 00 00 00 00 00 00 00 00 05 06 01 2A 04 00"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    const IdentObj record = Blob(row.record);
    CertExtension extension = Make("9.9", 9, Blob("FF"));
    const auto read = [&](int* error) {
      EXPECT_EQ(extension.ReadData(record.pbData, record.cbData, error), 0u);
    };
    const DWORD code = Code(read);
    EXPECT_EQ(code, row.code) << std::hex << code;
    EXPECT_EQ(Shown(extension), "9.9 9 FF");
  }
  CertExtension extension = Make("9.9", 9, Blob("FF"));
  EXPECT_EQ(Code([&](int* error) { extension.ReadData(nullptr, 5, error); }), kCorrupt);
  EXPECT_EQ(Code([&](int* error) { extension.ReadData("0", 0, error); }), kCorrupt);
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

TEST(RealExtensions, AreRefusedWhenCutShort) {
  for (const std::string& line : DataLines("extensions.txt")) {
    const Sample sample(line);
    std::string written;
    for (size_t size = 0; size < sample.octets.size(); ++size) {
      EXPECT_FALSE(HoldsFor(sample.octets.substr(0, size), &written)) << size << " of " << line;
    }
  }
}

TEST(RealExtensions, MayBeSpoiled) {
  constexpr size_t kLargest = 120;
  for (const std::string& line : DataLines("extensions.txt")) {
    const Sample sample(line);
    if (sample.octets.size() > kLargest) continue;
    for (size_t i = 0; i < sample.octets.size(); ++i) {
      for (const unsigned flipped : {0x01u, 0x20u, 0x80u, 0xFFu}) {
        std::string broken = sample.octets;
        broken[i] = static_cast<char>(static_cast<unsigned char>(broken[i]) ^ flipped);
        std::string written;
        HoldsFor(broken, &written);
        ASSERT_FALSE(HasFailure()) << Hex(broken);
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
