// The linker sends the library's calls here (--wrap): they fail on demand and otherwise go on to
// the platform.

#include "platform/calls.h"
#include "platform/file.h"
#include "platform/string_value.h"
#include "tests/faults/plan.h"

namespace Ortholan {

// Declares the platform's call and defines its stand-in.
#define STAND_IN(type, name, mangled, parameters, arguments) \
  type Real##name parameters asm("__real_" mangled);         \
  type StandInFor##name parameters asm("__wrap_" mangled);   \
  type StandInFor##name parameters {                         \
    if (testing::Fails(#name)) return static_cast<type>(0);  \
    return Real##name arguments;                             \
  }

STAND_IN(int, MultiByteToWideChar, "_ZN8Ortholan19MultiByteToWideCharEjjPKciPwi",
         (UINT page, DWORD flags, LPCSTR in, int inSize, LPWSTR out, int outSize),
         (page, flags, in, inSize, out, outSize))
STAND_IN(int, WideCharToMultiByte, "_ZN8Ortholan19WideCharToMultiByteEjjPKwiPciPKcPi",
         (UINT page, DWORD flags, LPCWSTR in, int inSize, LPSTR out, int outSize, LPCSTR standIn,
          BOOL* used),
         (page, flags, in, inSize, out, outSize, standIn, used))
STAND_IN(BOOL, CryptEncodeObject, "_ZN8Ortholan17CryptEncodeObjectEjPKcPKvPhPj",
         (DWORD encoding, LPCSTR type, const void* info, BYTE* out, DWORD* size),
         (encoding, type, info, out, size))
STAND_IN(BOOL, CryptDecodeObject, "_ZN8Ortholan17CryptDecodeObjectEjPKcPKhjjPvPj",
         (DWORD encoding, LPCSTR type, const BYTE* in, DWORD inSize, DWORD flags, void* out,
          DWORD* size),
         (encoding, type, in, inSize, flags, out, size))
STAND_IN(DWORD, CertRDNValueToStrA, "_ZN8Ortholan18CertRDNValueToStrAEjPNS_15_CRYPTOAPI_BLOBEPcj",
         (DWORD type, CERT_RDN_VALUE_BLOB* value, char* out, DWORD size), (type, value, out, size))
STAND_IN(DWORD, CertRDNValueToStrW, "_ZN8Ortholan18CertRDNValueToStrWEjPNS_15_CRYPTOAPI_BLOBEPwj",
         (DWORD type, CERT_RDN_VALUE_BLOB* value, wchar_t* out, DWORD size),
         (type, value, out, size))
STAND_IN(BOOL, FileTimeToSystemTime,
         "_ZN8Ortholan20FileTimeToSystemTimeEPKNS_8FILETIMEEPNS_10SYSTEMTIMEE",
         (const FILETIME* in, SYSTEMTIME* out), (in, out))
STAND_IN(BOOL, SystemTimeToFileTime,
         "_ZN8Ortholan20SystemTimeToFileTimeEPKNS_10SYSTEMTIMEEPNS_8FILETIMEE",
         (const SYSTEMTIME* in, FILETIME* out), (in, out))
STAND_IN(const CRYPT_OID_INFO*, FindAttributeInfo, "_ZN8Ortholan17FindAttributeInfoEjPKv",
         (DWORD keyType, const void* key), (keyType, key))
STAND_IN(bool, EncodeStringValue, "_ZN8Ortholan17EncodeStringValueEjPKcmPhm",
         (DWORD type, const char* text, size_t count, BYTE* out, size_t size),
         (type, text, count, out, size))
STAND_IN(bool, DecodeStringValue, "_ZN8Ortholan11StringValue6DecodeEPKhm",
         (StringValue * self, const BYTE* element, size_t size), (self, element, size))
STAND_IN(void*, FileOpen, "_ZN8Ortholan8FileOpenEPKcbb",
         (const char* path, bool write, bool create), (path, write, create))
STAND_IN(bool, FileClose, "_ZN8Ortholan9FileCloseEPv", (void* file), (file))
STAND_IN(bool, FileRead, "_ZN8Ortholan8FileReadEPvS0_jPj",
         (void* file, void* data, DWORD size, DWORD* read), (file, data, size, read))
STAND_IN(bool, FileWrite, "_ZN8Ortholan9FileWriteEPvPKvjPj",
         (void* file, const void* data, DWORD size, DWORD* written), (file, data, size, written))
STAND_IN(bool, FileSeek, "_ZN8Ortholan8FileSeekEPvm", (void* file, uint64_t position),
         (file, position))
STAND_IN(bool, FilePosition, "_ZN8Ortholan12FilePositionEPvPm", (void* file, uint64_t* position),
         (file, position))
STAND_IN(bool, FileSize, "_ZN8Ortholan8FileSizeEPvPm", (void* file, uint64_t* size), (file, size))

}  // namespace Ortholan
