// What the native realisation makes of arguments that are missing or make no sense together.

#include <functional>

#include "platform/calls.h"
#include "platform/file.h"
#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

char text[8] = "text";
wchar_t wide[8] = L"text";
char other[8];
BYTE octets[8] = {0x13, 0x01, 'A'};
DWORD size = 0;
uint64_t place = 0;
BOOL used = FALSE;
SYSTEMTIME system_time = {2000, 1, 0, 1, 0, 0, 0, 0};
FILETIME file_time = {};
CERT_RDN_VALUE_BLOB missing = {1, nullptr};
void* const kNoFile = reinterpret_cast<void*>(intptr_t{0x7FFFFFFF});

constexpr UINT kUtf8 = 65001;
constexpr UINT kUsAscii = 20127;
constexpr DWORD kArgument = ERROR_INVALID_PARAMETER;

struct Refusal {
  const char* label;
  std::function<bool()> call;
  DWORD error;  // kUntouched for a call that succeeds
};

const Refusal kRows[] = {
    {"path of no module", [] { return GetModuleFileNameA(text, other, 8) != 0; },
     ERROR_MOD_NOT_FOUND},
    {"path nowhere", [] { return GetModuleFileNameA(nullptr, nullptr, 8) != 0; },
     ERROR_INSUFFICIENT_BUFFER},
    {"path without room", [] { return GetModuleFileNameA(nullptr, other, 0) != 0; },
     ERROR_INSUFFICIENT_BUFFER},
    {"load nothing", [] { return LoadLibraryA(nullptr) != nullptr; }, kArgument},
    {"release no module", [] { return FreeLibrary(text) != FALSE; }, ERROR_INVALID_HANDLE},
    {"release the library", [] { return FreeLibrary(OwnModule()) != FALSE; }, kUntouched},
    {"release the program", [] { return FreeLibrary(GetModuleHandleA(nullptr)) != FALSE; },
     kUntouched},
    {"message nowhere", [] { return LoadStringA(OwnModule(), 0, nullptr, 8) != 0; }, kArgument},
    {"message without room", [] { return LoadStringA(OwnModule(), 0, other, 0) != 0; }, kArgument},
    {"message, room below 0", [] { return LoadStringA(OwnModule(), 0, other, -1) != 0; },
     kArgument},
    {"time from nothing", [] { return FileTimeToSystemTime(nullptr, &system_time) != FALSE; },
     kArgument},
    {"time nowhere", [] { return FileTimeToSystemTime(&file_time, nullptr) != FALSE; }, kArgument},
    {"ticks from nothing", [] { return SystemTimeToFileTime(nullptr, &file_time) != FALSE; },
     kArgument},
    {"ticks nowhere", [] { return SystemTimeToFileTime(&system_time, nullptr) != FALSE; },
     kArgument},
    {"text of no value", [] { return CertRDNValueToStrA(4, nullptr, other, 8) != 0; }, kArgument},
    {"text of no octets", [] { return CertRDNValueToStrA(4, &missing, other, 8) != 0; }, kArgument},
    {"encode nothing",
     [] { return CryptEncodeObject(kEncoding, X509_INTEGER, nullptr, nullptr, &size) != FALSE; },
     kArgument},
    {"encode without a size",
     [] { return CryptEncodeObject(kEncoding, X509_INTEGER, &used, nullptr, nullptr) != FALSE; },
     kArgument},
    {"decode no octets",
     [] { return CryptDecodeObject(kEncoding, X509_NAME, nullptr, 2, 0, nullptr, &size) != FALSE; },
     kArgument},
    {"decode nothing",
     [] { return CryptDecodeObject(kEncoding, X509_NAME, nullptr, 0, 0, nullptr, &size) != FALSE; },
     static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT)},
    {"decode without a size",
     [] {
       return CryptDecodeObject(kEncoding, X509_NAME, octets, 3, 0, nullptr, nullptr) != FALSE;
     },
     kArgument},
    {"widen in place",
     [] {
       return MultiByteToWideChar(kUtf8, 0, text, 4, reinterpret_cast<wchar_t*>(text), 2) != 0;
     },
     kArgument},
    {"widen nowhere", [] { return MultiByteToWideChar(kUtf8, 0, text, 4, nullptr, 4) != 0; },
     kArgument},
    {"widen, room below 0", [] { return MultiByteToWideChar(kUtf8, 0, text, 4, wide, -1) != 0; },
     kArgument},
    {"widen nothing", [] { return MultiByteToWideChar(kUtf8, 0, text, 0, wide, 4) != 0; },
     kArgument},
    {"widen with the terminator",
     [] { return MultiByteToWideChar(kUtf8, 0, text, -1, nullptr, 0) == 5; }, kUntouched},
    {"narrow with the terminator",
     [] { return WideCharToMultiByte(kUtf8, 0, wide, -1, nullptr, 0, nullptr, nullptr) == 5; },
     kUntouched},
    {"narrow to UTF-8 with a substitute",
     [] { return WideCharToMultiByte(kUtf8, 0, wide, 4, other, 8, "?", nullptr) != 0; }, kArgument},
    {"narrow to UTF-8 and ask for substitutes",
     [] { return WideCharToMultiByte(kUtf8, 0, wide, 4, other, 8, nullptr, &used) != 0; },
     kArgument},
    {"narrow with a substitute",
     [] {
       const bool done = WideCharToMultiByte(kUsAscii, 0, L"a\x416", 2, other, 2, "!", &used) == 2;
       return done && used == TRUE && other[1] == '!';
     },
     kUntouched},
    {"narrow without a need",
     [] {
       return WideCharToMultiByte(kUsAscii, 0, L"ab", 2, other, 2, "!", &used) == 2 &&
              used == FALSE;
     },
     kUntouched},
    {"close no file", [] { return FileClose(kNoFile); }, ERROR_ACCESS_DENIED},
    {"read no file", [] { return FileRead(kNoFile, other, 1, &size); }, ERROR_ACCESS_DENIED},
    {"seek in no file", [] { return FileSeek(kNoFile, 0); }, ERROR_ACCESS_DENIED},
    {"place in no file", [] { return FilePosition(kNoFile, &place); }, ERROR_ACCESS_DENIED},
    {"size of no file", [] { return FileSize(kNoFile, &place); }, ERROR_ACCESS_DENIED},
};

TEST(Arguments, AreRefusedWhereTheyMakeNoSense) {
  for (const Refusal& row : kRows) {
    SCOPED_TRACE(row.label);
    SetLastError(kUntouched);
    EXPECT_EQ(row.call(), row.error == kUntouched);
    EXPECT_EQ(GetLastError(), row.error);
  }
}

}  // namespace
}  // namespace Ortholan::testing
