// Writing where there is no room: nothing is lost silently.

#include <gtest/gtest.h>
#include <ortholan/cert_extension.h>
#include <ortholan/zep_file.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdio>

namespace Ortholan::testing {
namespace {

// No file may grow beyond `size` bytes while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {size, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_;
  void (*handler_)(int);
};

// The code of a write that has to fail, and that leaves the position.
DWORD WriteError(CZEPFile* file) {
  CertExtension extension;
  extension.oid = "2.5.29.15";
  extension.value = IdentObj(nullptr, 20);
  uint64_t before = 0;
  uint64_t after = 1;
  EXPECT_TRUE(file->GetPosition(&before));
  int error = -1;
  EXPECT_EQ(extension.WriteData(*file, &error), 0u);
  EXPECT_TRUE(file->GetPosition(&after));
  EXPECT_EQ(after, before);
  EXPECT_EQ(extension.WriteData(*file, nullptr), 0u);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(error));
  return static_cast<DWORD>(error);
}

TEST(FullDisk, IsReported) {
  CZEPFile file;
  if (!file.Open("/dev/full", CZEPFile::kReadWrite)) GTEST_SKIP() << "no such device";
  EXPECT_EQ(WriteError(&file), 112u);
}

TEST(FullDisk, HalfARecordIsReported) {
  constexpr char kPath[] = "full_disk_test.tmp";
  DWORD error = 0;
  uint64_t size = 0;
  {
    CZEPFile file;
    ASSERT_TRUE(file.Open(kPath, CZEPFile::kCreate));
    ASSERT_TRUE(file.Write("##", 2));
    const FileSizeLimit limit(12);
    error = WriteError(&file);
    EXPECT_TRUE(file.GetSize(&size));
  }
  std::remove(kPath);
  EXPECT_EQ(error, 223u);
  EXPECT_EQ(size, 12u) << "the first part was written";
}

}  // namespace
}  // namespace Ortholan::testing
