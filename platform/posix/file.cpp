#include "platform/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

namespace Ortholan {
namespace {

struct ErrorRow {
  int error;
  DWORD code;
};

constexpr DWORD kOtherFailure = 31;  // ERROR_GEN_FAILURE

// EBADF: the descriptor is open, but not for writing.
constexpr ErrorRow kErrors[] = {
    {ENOENT, 2},  {ENOTDIR, 3}, {EMFILE, 4},   {ENFILE, 4},   {EACCES, 5},         {EPERM, 5},
    {EISDIR, 5},  {EBADF, 5},   {ENOMEM, 8},   {EROFS, 19},   {EIO, 1117},         {EEXIST, 80},
    {EINVAL, 87}, {ESPIPE, 87}, {ENOSPC, 112}, {EDQUOT, 112}, {ENAMETOOLONG, 206}, {EFBIG, 223},
};

bool FailWithErrno() {
  const int error = errno;
  DWORD code = kOtherFailure;
  for (const ErrorRow& row : kErrors) {
    if (row.error == error) code = row.code;
  }
  SetLastError(code);
  return false;
}

// The handle is the descriptor plus one, so that none is null.
void* ToHandle(int descriptor) {
  return reinterpret_cast<void*>(static_cast<intptr_t>(descriptor) + 1);
}
int ToDescriptor(void* file) { return static_cast<int>(reinterpret_cast<intptr_t>(file) - 1); }

// Repeats a transfer that a signal interrupted before anything moved.
template <typename Transfer>
bool Run(Transfer transfer, DWORD* moved) {
  ssize_t result = 0;
  do {
    result = transfer();
  } while (result < 0 && errno == EINTR);
  if (result < 0) return FailWithErrno();
  *moved = static_cast<DWORD>(result);
  return true;
}

// Opens for reading like a file, but cannot be read.
bool IsDirectory(int descriptor) {
  struct stat about;
  return fstat(descriptor, &about) == 0 && S_ISDIR(about.st_mode);
}

}  // namespace

void* FileOpen(const char* path, bool write, bool create) noexcept {
  const int access = write ? O_RDWR : O_RDONLY;
  const int made = create ? O_CREAT | O_TRUNC : 0;
  const int descriptor = open(path, access | made | O_CLOEXEC, 0666);
  if (descriptor >= 0 && !IsDirectory(descriptor)) return ToHandle(descriptor);
  if (descriptor >= 0) {
    close(descriptor);
    errno = EISDIR;
  }
  FailWithErrno();
  return nullptr;
}

bool FileClose(void* file) noexcept { return close(ToDescriptor(file)) == 0 || FailWithErrno(); }

bool FileRead(void* file, void* data, DWORD size, DWORD* moved) noexcept {
  return Run([=] { return read(ToDescriptor(file), data, size); }, moved);
}

bool FileWrite(void* file, const void* data, DWORD size, DWORD* moved) noexcept {
  return Run([=] { return write(ToDescriptor(file), data, size); }, moved);
}

bool FileSeek(void* file, uint64_t position) noexcept {
  if (position > static_cast<uint64_t>(std::numeric_limits<off_t>::max())) {
    SetLastError(ERROR_NEGATIVE_SEEK);
    return false;
  }
  return lseek(ToDescriptor(file), static_cast<off_t>(position), SEEK_SET) >= 0 || FailWithErrno();
}

bool FilePosition(void* file, uint64_t* position) noexcept {
  const off_t at = lseek(ToDescriptor(file), 0, SEEK_CUR);
  if (at < 0) return FailWithErrno();
  *position = static_cast<uint64_t>(at);
  return true;
}

bool FileSize(void* file, uint64_t* size) noexcept {
  struct stat about;
  if (fstat(ToDescriptor(file), &about) != 0) return FailWithErrno();
  *size = static_cast<uint64_t>(about.st_size);
  return true;
}

}  // namespace Ortholan
