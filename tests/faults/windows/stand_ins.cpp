// The library calls the system through import pointers, which the linker takes from here before it
// looks into the import libraries: they lead to stand-ins, which fail on demand and otherwise go on
// to the system.

#include <ortholan/platform.h>

#include "tests/faults/plan.h"

namespace Ortholan::testing {
namespace {

// The system's own call. GetModuleHandleW and LoadLibraryW are nobody's stand-ins.
template <class Call>
Call* Real(const wchar_t* module, const char* name) {
  HMODULE loaded = GetModuleHandleW(module);
  if (loaded == nullptr) loaded = LoadLibraryW(module);
  const FARPROC address = GetProcAddress(loaded, name);
  return reinterpret_cast<Call*>(reinterpret_cast<void*>(address));
}

// Looking a call up leaves the last error alone.
#define REAL(module, name)                                    \
  static const auto real = [] {                               \
    const DWORD error = GetLastError();                       \
    const auto found = Real<decltype(::name)>(module, #name); \
    SetLastError(error);                                      \
    return found;                                             \
  }()

// Defines the stand-in of a call, which fails with `failure` under the name `call`, and the pointer
// to it, by the name that compilers give import pointers.
#define STAND_IN(module, type, name, call, failure, parameters, arguments) \
  type WINAPI StandInFor##name parameters {                                \
    REAL(module, name);                                                    \
    if (Fails(call)) return failure;                                       \
    return real arguments;                                                 \
  }                                                                        \
  }                                                                        \
  extern "C" {                                                             \
  decltype(&::name) __imp_##name = StandInFor##name;                       \
  }                                                                        \
  namespace {

constexpr wchar_t kKernel[] = L"kernel32.dll";
constexpr wchar_t kUser[] = L"user32.dll";
constexpr wchar_t kCrypt[] = L"crypt32.dll";

// Strings of names go through the same calls as extensions.
const char* NameOf(LPCSTR type, const char* of_strings, const char* of_others) {
  return type == X509_NAME_VALUE ? of_strings : of_others;
}
const char* NameOfMove(DWORD method) {
  return method == FILE_CURRENT ? "FilePosition" : "FileSeek";
}

STAND_IN(kKernel, int, MultiByteToWideChar, "MultiByteToWideChar", 0,
         (UINT page, DWORD flags, LPCSTR in, int inSize, LPWSTR out, int outSize),
         (page, flags, in, inSize, out, outSize))
STAND_IN(kKernel, int, WideCharToMultiByte, "WideCharToMultiByte", 0,
         (UINT page, DWORD flags, LPCWSTR in, int inSize, LPSTR out, int outSize, LPCSTR standIn,
          BOOL* used),
         (page, flags, in, inSize, out, outSize, standIn, used))
STAND_IN(kCrypt, BOOL, CryptEncodeObject, NameOf(type, "EncodeStringValue", "CryptEncodeObject"),
         FALSE, (DWORD encoding, LPCSTR type, const void* info, BYTE* out, DWORD* size),
         (encoding, type, info, out, size))
STAND_IN(kCrypt, BOOL, CryptDecodeObject, NameOf(type, "DecodeStringValue", "CryptDecodeObject"),
         FALSE,
         (DWORD encoding, LPCSTR type, const BYTE* in, DWORD inSize, DWORD flags, void* out,
          DWORD* size),
         (encoding, type, in, inSize, flags, out, size))
STAND_IN(kCrypt, PCCRYPT_OID_INFO, CryptFindOIDInfo, "FindAttributeInfo", nullptr,
         (DWORD keyType, void* key, DWORD group), (keyType, key, group))
STAND_IN(kCrypt, DWORD, CertRDNValueToStrA, "CertRDNValueToStrA", 0,
         (DWORD type, CERT_RDN_VALUE_BLOB* value, LPSTR out, DWORD size), (type, value, out, size))
STAND_IN(kCrypt, DWORD, CertRDNValueToStrW, "CertRDNValueToStrW", 0,
         (DWORD type, CERT_RDN_VALUE_BLOB* value, LPWSTR out, DWORD size), (type, value, out, size))
STAND_IN(kKernel, BOOL, FileTimeToSystemTime, "FileTimeToSystemTime", FALSE,
         (const FILETIME* in, SYSTEMTIME* out), (in, out))
STAND_IN(kKernel, BOOL, SystemTimeToFileTime, "SystemTimeToFileTime", FALSE,
         (const SYSTEMTIME* in, FILETIME* out), (in, out))
STAND_IN(kKernel, HMODULE, GetModuleHandleA, "GetModuleHandleA", nullptr, (LPCSTR name), (name))
STAND_IN(kKernel, DWORD, GetModuleFileNameA, "GetModuleFileNameA", 0,
         (HMODULE module, LPSTR out, DWORD size), (module, out, size))
STAND_IN(kKernel, HMODULE, LoadLibraryA, "LoadLibraryA", nullptr, (LPCSTR name), (name))
STAND_IN(kUser, int, LoadStringA, "LoadStringA", 0,
         (HINSTANCE module, UINT id, LPSTR out, int size), (module, id, out, size))
STAND_IN(kKernel, HANDLE, CreateFileA, "FileOpen", INVALID_HANDLE_VALUE,
         (LPCSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD how,
          DWORD flags, HANDLE like),
         (path, access, share, security, how, flags, like))
STAND_IN(kKernel, BOOL, ReadFile, "FileRead", FALSE,
         (HANDLE file, void* data, DWORD size, DWORD* read, OVERLAPPED* overlapped),
         (file, data, size, read, overlapped))
STAND_IN(kKernel, BOOL, WriteFile, "FileWrite", FALSE,
         (HANDLE file, const void* data, DWORD size, DWORD* written, OVERLAPPED* overlapped),
         (file, data, size, written, overlapped))
STAND_IN(kKernel, BOOL, SetFilePointerEx, NameOfMove(method), FALSE,
         (HANDLE file, LARGE_INTEGER distance, LARGE_INTEGER* to, DWORD method),
         (file, distance, to, method))
STAND_IN(kKernel, BOOL, GetFileSizeEx, "FileSize", FALSE, (HANDLE file, LARGE_INTEGER* size),
         (file, size))

// What is to be released is released all the same.
STAND_IN(kKernel, BOOL, CloseHandle, "FileClose", (real(handle), SetLastError(plan.error), FALSE),
         (HANDLE handle), (handle))
STAND_IN(kKernel, BOOL, FreeLibrary, "FreeLibrary", (real(module), SetLastError(plan.error), FALSE),
         (HMODULE module), (module))

}  // namespace
}  // namespace Ortholan::testing
