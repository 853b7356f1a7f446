#include "platform/file.h"

namespace Ortholan {

void* FileOpen(const char* path, bool write, bool create) noexcept {
  const DWORD access = write ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const HANDLE file =
      CreateFileA(path, access, FILE_SHARE_READ, nullptr, create ? CREATE_ALWAYS : OPEN_EXISTING,
                  FILE_ATTRIBUTE_NORMAL, nullptr);
  return file != INVALID_HANDLE_VALUE ? file : nullptr;
}

bool FileClose(void* file) noexcept { return CloseHandle(file) != FALSE; }

bool FileRead(void* file, void* data, DWORD size, DWORD* read) noexcept {
  return ReadFile(file, data, size, read, nullptr) != FALSE;
}

bool FileWrite(void* file, const void* data, DWORD size, DWORD* written) noexcept {
  return WriteFile(file, data, size, written, nullptr) != FALSE;
}

bool FileSeek(void* file, uint64_t position) noexcept {
  LARGE_INTEGER to;
  to.QuadPart = static_cast<LONGLONG>(position);
  return SetFilePointerEx(file, to, nullptr, FILE_BEGIN) != FALSE;
}

bool FilePosition(void* file, uint64_t* position) noexcept {
  LARGE_INTEGER at;
  if (!SetFilePointerEx(file, LARGE_INTEGER{}, &at, FILE_CURRENT)) return false;
  *position = static_cast<uint64_t>(at.QuadPart);
  return true;
}

bool FileSize(void* file, uint64_t* size) noexcept {
  LARGE_INTEGER bytes;
  if (!GetFileSizeEx(file, &bytes)) return false;
  *size = static_cast<uint64_t>(bytes.QuadPart);
  return true;
}

}  // namespace Ortholan
