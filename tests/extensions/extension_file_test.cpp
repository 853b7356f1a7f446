#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>
#include <ortholan/zep_file.h>

#include <cstdio>

#include "tests/extensions/extension_shown.h"

namespace Ortholan::testing {
namespace {

constexpr char kPath[] = "extension_file_test.tmp";

class FileTest : public ::testing::Test {
 protected:
  void SetUp() override { std::remove(kPath); }
  void TearDown() override {
    file_.Close();
    std::remove(kPath);
  }

  // A file of these octets, open at its start.
  void Fill(const std::string& octets) {
    ASSERT_TRUE(file_.Open(kPath, CZEPFile::kCreate));
    ASSERT_TRUE(file_.Write(octets.data(), static_cast<DWORD>(octets.size())));
    ASSERT_TRUE(file_.Seek(0));
  }
  uint64_t Position() const {
    uint64_t position = 0;
    EXPECT_TRUE(file_.GetPosition(&position));
    return position;
  }
  uint64_t Size() const {
    uint64_t size = 0;
    EXPECT_TRUE(file_.GetSize(&size));
    return size;
  }
  // The octets from the position on, at most `size`.
  std::string Read(DWORD size) const {
    std::string octets(size, '\0');
    DWORD read = 0;
    EXPECT_TRUE(file_.Read(octets.data(), size, &read));
    return Hex(octets.substr(0, read));
  }

  CZEPFile file_;
};

// The last error of a call that has to fail.
template <class Call>
DWORD ErrorOf(Call&& call) {
  SetLastError(kUntouched);
  EXPECT_FALSE(call());
  return GetLastError();
}

TEST_F(FileTest, ReadsWritesAndSeeks) {
  Fill(Octets("00 1A 0D 0A FF"));
  EXPECT_EQ(Read(3), "00 1A 0D");
  EXPECT_EQ(Position(), 3u);
  EXPECT_EQ(Read(9), "0A FF");
  EXPECT_EQ(Read(9), "");
  EXPECT_EQ(Size(), 5u);

  EXPECT_TRUE(file_.Seek(1));
  EXPECT_TRUE(file_.Write("B", 1));
  EXPECT_TRUE(file_.Write(nullptr, 0));
  EXPECT_EQ(Position(), 2u);
  EXPECT_TRUE(file_.Seek(7));
  EXPECT_EQ(Size(), 5u) << "seeking alone adds nothing";
  EXPECT_EQ(Read(1), "");
  EXPECT_TRUE(file_.Write("C", 1));
  EXPECT_TRUE(file_.Seek(0));
  EXPECT_EQ(Read(9), "00 42 0D 0A FF 00 00 43");
  EXPECT_TRUE(file_.Close());
  EXPECT_TRUE(file_.Close());
  EXPECT_FALSE(file_.IsOpen());

  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kRead));
  EXPECT_TRUE(file_.IsOpen());
  EXPECT_EQ(Size(), 8u);
  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kReadWrite)) << "the first one is closed";
  EXPECT_EQ(Size(), 8u);
  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kCreate));
  EXPECT_EQ(Size(), 0u) << "emptied";
}

TEST_F(FileTest, Failures) {
  const struct {
    const char* label;
    const char* path;
    CZEPFile::Mode mode;
    DWORD error;
  } kRows[] = {
      {"missing", kPath, CZEPFile::kRead, 2},     {"missing", kPath, CZEPFile::kReadWrite, 2},
      {"null", nullptr, CZEPFile::kRead, 87},     {"a directory", ".", CZEPFile::kRead, 5},
      {"a directory", ".", CZEPFile::kCreate, 5},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(ErrorOf([&] { return file_.Open(row.path, row.mode); }), row.error) << row.label;
    EXPECT_FALSE(file_.IsOpen()) << row.label;
  }

  DWORD read = 1;
  BYTE octet = 0;
  uint64_t number = 0;
  EXPECT_EQ(ErrorOf([&] { return file_.Read(&octet, 1, &read); }), 6u);
  EXPECT_EQ(read, 0u);
  EXPECT_EQ(ErrorOf([&] { return file_.Write(&octet, 1); }), 6u);
  EXPECT_EQ(ErrorOf([&] { return file_.Seek(0); }), 6u);
  EXPECT_EQ(ErrorOf([&] { return file_.GetPosition(&number); }), 6u);
  EXPECT_EQ(ErrorOf([&] { return file_.GetSize(&number); }), 6u);

  Fill("A");
  EXPECT_EQ(ErrorOf([&] { return file_.Seek(UINT64_C(1) << 63); }), 131u);
  EXPECT_EQ(Position(), 0u);
  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kRead));
  EXPECT_EQ(ErrorOf([&] { return file_.Write("B", 1); }), 5u);
  EXPECT_EQ(Read(9), "41");
}

class ExtensionFile : public FileTest {
 protected:
  // "0 10 2.5.29.15 1 05 00": code, result, and what was read.
  std::string ReadOne(DWORD size = 0xFFFFFFFF) {
    CertExtension extension;
    extension.oid = "9.9";
    int error = -1;
    const DWORD consumed = extension.ReadData(file_, size, &error);
    if (consumed == 0) {
      EXPECT_EQ(AsText(extension.oid), "9.9");
      return "failed " + Hex(CodeOctets(error));
    }
    return std::to_string(error) + ' ' + std::to_string(consumed) + ' ' +
           std::string(AsText(extension.oid)) + ' ' + std::to_string(extension.critical) + ' ' +
           Hex(extension.value);
  }
  // Most significant first.
  static std::string CodeOctets(int code) {
    std::string octets;
    for (int shift = 24; shift >= 0; shift -= 8) {
      octets += static_cast<char>(static_cast<DWORD>(code) >> shift);
    }
    return octets;
  }
};

constexpr char kFailedCorrupt[] = "failed 80 09 31 03";
constexpr char kFailedBadTag[] = "failed 80 09 31 0B";

TEST_F(ExtensionFile, HoldsRecordsInARow) {
  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kCreate));
  ASSERT_TRUE(file_.Write("##", 2));
  CertExtension extension;
  extension.oid = "1.2";
  for (const DWORD size : {0u, 70u, 300u}) {
    extension.critical = static_cast<BOOL>(size);
    extension.value = IdentObj(nullptr, size);
    int error = -1;
    const IdentObj record = extension.WriteData(&error);
    const uint64_t before = Position();
    SetLastError(kUntouched);
    EXPECT_EQ(extension.WriteData(file_, nullptr), record.cbData);
    EXPECT_EQ(GetLastError(), 0u);
    EXPECT_EQ(Position(), before + record.cbData);
  }
  ASSERT_TRUE(file_.Seek(2));
  EXPECT_EQ(ReadOne(), "0 7 1.2 0 ");
  EXPECT_EQ(ReadOne(80), "0 80 1.2 1 " + Hex(std::string(70, '\0')));
  EXPECT_EQ(ReadOne().substr(0, 11), "0 314 1.2 1");
  EXPECT_EQ(Position(), Size());
  EXPECT_EQ(ReadOne(), kFailedCorrupt);
}

TEST_F(ExtensionFile, AFaultLeavesThePosition) {
  const struct {
    const char* label;
    const char* octets;
    DWORD size;
    const char* outcome;
  } kRows[] = {
      {"whole", "30 06 06 01 2A 04 01 41 FF", 9, "0 8 1.2 0 41"},
      {"just as many", "30 06 06 01 2A 04 01 41 FF", 8, "0 8 1.2 0 41"},
      {"indefinite", "30 80 06 01 2A 04 01 41 00 00 FF FF", 100, "0 10 1.2 0 41"},
      {"nothing asked for", "30 06 06 01 2A 04 01 41", 0, kFailedCorrupt},
      {"fewer asked for", "30 06 06 01 2A 04 01 41", 7, kFailedCorrupt},
      {"at the end", "", 100, kFailedCorrupt},
      {"cut in the header", "30", 100, kFailedCorrupt},
      {"cut in the length", "30 82 01", 100, kFailedCorrupt},
      {"cut in the content", "30 06 06 01 2A 04 01", 100, kFailedCorrupt},
      {"promises 4 GB", "30 84 FF FF FF F0 06 01 2A 04 01", 0xFFFFFFFF, kFailedCorrupt},
      {"no terminator", "30 80 06 01 2A 04 01 41", 100, kFailedCorrupt},
      {"primitive", "04 06 06 01 2A 04 01 41", 100, kFailedBadTag},
      {"one child", "30 03 06 01 2A FF", 100, kFailedCorrupt},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    Fill(Octets("AB CD ") + Octets(row.octets));
    ASSERT_TRUE(file_.Seek(2));
    const std::string outcome = ReadOne(row.size);
    EXPECT_EQ(outcome, row.outcome);
    const bool failed = outcome.rfind("failed", 0) == 0;
    const DWORD consumed = failed ? 0 : static_cast<DWORD>(std::stoul(outcome.substr(2)));
    EXPECT_EQ(Position(), 2 + consumed);
  }
}

TEST_F(ExtensionFile, LongIndefiniteRecordsAreReadWhole) {
  const std::string value(500, 'A');
  Fill(Octets("30 80 06 01 2A 04 82 01 F4") + value + Octets("00 00") + std::string(90, 'B'));
  EXPECT_EQ(ReadOne(), "0 511 1.2 0 " + Hex(value));
  EXPECT_EQ(Position(), 511u);
}

TEST_F(ExtensionFile, ReportsTheFilesErrors) {
  CertExtension extension;
  extension.oid = "1.2";
  const auto write = [&](DWORD* code) {
    int error = -1;
    EXPECT_EQ(extension.WriteData(file_, &error), 0u);
    *code = static_cast<DWORD>(error);
    return extension.WriteData(file_, nullptr) != 0;
  };
  DWORD code = 0;
  EXPECT_EQ(ErrorOf([&] { return write(&code); }), 6u);
  EXPECT_EQ(code, 6u);
  EXPECT_EQ(ReadOne(), "failed 00 00 00 06");

  Fill("");
  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kRead));
  EXPECT_EQ(ErrorOf([&] { return write(&code); }), 5u);
  EXPECT_EQ(code, 5u);
  EXPECT_EQ(ErrorOf([&] { return extension.ReadData(file_, 9, nullptr) != 0; }), kCorrupt);

  ASSERT_TRUE(file_.Open(kPath, CZEPFile::kCreate));
  extension.oid = "1.x";
  EXPECT_EQ(ErrorOf([&] { return write(&code); }), 1326u);
  EXPECT_EQ(code, 1326u);
  EXPECT_EQ(Size(), 0u);
}

}  // namespace
}  // namespace Ortholan::testing
