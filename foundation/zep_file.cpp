#include <ortholan/zep_file.h>

#include <utility>

#include "platform/file.h"

namespace Ortholan {
namespace {

constexpr DWORD kNothingWritten = 29;  // ERROR_WRITE_FAULT

bool Fail(DWORD code) {
  SetLastError(code);
  return false;
}

}  // namespace

CZEPFile::CZEPFile() noexcept : handle_(nullptr) {}

CZEPFile::~CZEPFile() {
  if (handle_ != nullptr) FileClose(handle_);
}

bool CZEPFile::Open(const char* path, Mode mode) {
  if (!Close()) return false;
  if (path == nullptr) return Fail(ERROR_INVALID_PARAMETER);
  handle_ = FileOpen(path, mode != kRead, mode == kCreate);
  return handle_ != nullptr;
}

bool CZEPFile::Close() {
  void* handle = std::exchange(handle_, nullptr);
  return handle == nullptr || FileClose(handle);
}

bool CZEPFile::IsOpen() const noexcept { return handle_ != nullptr; }

bool CZEPFile::Read(void* data, DWORD size, DWORD* read) const {
  *read = 0;
  if (handle_ == nullptr) return Fail(ERROR_INVALID_HANDLE);
  while (*read < size) {
    DWORD moved = 0;
    if (!FileRead(handle_, static_cast<BYTE*>(data) + *read, size - *read, &moved)) return false;
    if (moved == 0) break;
    *read += moved;
  }
  return true;
}

bool CZEPFile::Write(const void* data, DWORD size) {
  if (handle_ == nullptr) return Fail(ERROR_INVALID_HANDLE);
  for (DWORD written = 0; written < size;) {
    DWORD moved = 0;
    const BYTE* rest = static_cast<const BYTE*>(data) + written;
    if (!FileWrite(handle_, rest, size - written, &moved)) return false;
    if (moved == 0) return Fail(kNothingWritten);
    written += moved;
  }
  return true;
}

bool CZEPFile::Seek(uint64_t position) const {
  return handle_ != nullptr ? FileSeek(handle_, position) : Fail(ERROR_INVALID_HANDLE);
}

bool CZEPFile::GetPosition(uint64_t* position) const {
  return handle_ != nullptr ? FilePosition(handle_, position) : Fail(ERROR_INVALID_HANDLE);
}

bool CZEPFile::GetSize(uint64_t* size) const {
  return handle_ != nullptr ? FileSize(handle_, size) : Fail(ERROR_INVALID_HANDLE);
}

}  // namespace Ortholan
