// Files of bytes, unbuffered: what a call reports is what reached the system.
//
// Every function returns false, or null, with the last error set. Codes are those of Windows on
// every platform: 2 not found, 5 access denied, 112 disk full, ...
#ifndef ORTHOLAN_PLATFORM_FILE_H_
#define ORTHOLAN_PLATFORM_FILE_H_

#include <ortholan/platform.h>

#include <cstdint>

namespace Ortholan {

// Opens `path`, terminated and in the platform's 8-bit form, at its start. Only with `write` may
// the file be written to; only with `create` is it made, or emptied where it exists. Null on
// failure.
void* FileOpen(const char* path, bool write, bool create) noexcept;
bool FileClose(void* file) noexcept;

// Transfer up to `size` bytes at the position and move it. 0 read is the end of the file; less
// than `size` written is no failure yet.
bool FileRead(void* file, void* data, DWORD size, DWORD* read) noexcept;
bool FileWrite(void* file, const void* data, DWORD size, DWORD* written) noexcept;

// Bytes from the start of the file.
bool FileSeek(void* file, uint64_t position) noexcept;
bool FilePosition(void* file, uint64_t* position) noexcept;
bool FileSize(void* file, uint64_t* size) noexcept;

}  // namespace Ortholan

#endif  // ORTHOLAN_PLATFORM_FILE_H_
