#include "examples/failure.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "examples/colour.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

void Fail(DWORD code, std::string_view what) {
  Failure failure{code, std::string(what)};
  throw failure;
}

void Refuse(std::string_view what) { Fail(ERROR_SUCCESS, what); }

namespace {

bool isVerbose = false;

struct MeaningRow {
  DWORD code;
  const char* text;
};

// CRYPT_E_* codes are signed on Windows.
constexpr DWORD Unsigned(long long code) { return static_cast<DWORD>(code); }

// What the library and the platform calls under it set.
const MeaningRow kMeanings[] = {
    {ERROR_SUCCESS, "no code was set"},
    {ERROR_FILE_NOT_FOUND, "no such file"},
    {ERROR_PATH_NOT_FOUND, "no such path"},
    {ERROR_ACCESS_DENIED, "access denied"},
    {ERROR_INVALID_HANDLE, "invalid handle"},
    {ERROR_NOT_ENOUGH_MEMORY, "out of memory"},
    {ERROR_INVALID_DATA, "the data is not of the form or type wanted"},
    {ERROR_WRITE_FAULT, "write fault"},
    {ERROR_READ_FAULT, "read fault"},
    {ERROR_GEN_FAILURE, "the device does not work"},
    {ERROR_HANDLE_EOF, "end of the file"},
    {ERROR_FILE_EXISTS, "the file exists"},
    {ERROR_CANNOT_MAKE, "cannot create the file or directory"},
    {ERROR_INVALID_PARAMETER, "invalid parameter"},
    {ERROR_OPEN_FAILED, "cannot open the file"},
    {ERROR_DISK_FULL, "the disk is full"},
    {ERROR_CALL_NOT_IMPLEMENTED, "not supported"},
    {ERROR_INSUFFICIENT_BUFFER, "the buffer is too small"},
    {ERROR_INVALID_NAME, "invalid file name"},
    {ERROR_MOD_NOT_FOUND, "module not found"},
    {ERROR_NEGATIVE_SEEK, "position before the start of the file"},
    {ERROR_BAD_ARGUMENTS, "empty name, or invalid argument"},
    {ERROR_ALREADY_EXISTS, "exists already"},
    {ERROR_MORE_DATA, "the buffer is too small"},
    {ERROR_INVALID_FLAGS, "invalid flags"},
    {ERROR_NO_UNICODE_TRANSLATION, "octets that are no text in this encoding"},
    {ERROR_LOGON_FAILURE, "a value or identifier that cannot be encoded"},
    {ERROR_INTERNAL_DB_CORRUPTION, "the name is not accepted"},
    {ERROR_INTERNAL_ERROR, "internal error"},
    {ERROR_FUNCTION_FAILED, "the operation failed"},
    {ERROR_RESOURCE_NAME_NOT_FOUND, "no such text"},
    {0x80092003, "error reading or writing a file"},
    {Unsigned(CRYPT_E_NOT_FOUND), "not found"},
    {Unsigned(CRYPT_E_INVALID_NUMERIC_STRING), "character outside NumericString"},
    {Unsigned(CRYPT_E_INVALID_PRINTABLE_STRING), "character outside PrintableString"},
    {Unsigned(CRYPT_E_INVALID_IA5_STRING), "character outside IA5String"},
    {Unsigned(CRYPT_E_INVALID_X500_STRING), "invalid name text"},
    {Unsigned(CRYPT_E_NOT_CHAR_STRING), "not a character string"},
    {Unsigned(CRYPT_E_ASN1_ERROR), "ASN.1 error"},
    {Unsigned(CRYPT_E_ASN1_EOD), "the ASN.1 data ends too early"},
    {Unsigned(CRYPT_E_ASN1_CORRUPT), "the ASN.1 data is corrupt or cut short"},
    {Unsigned(CRYPT_E_ASN1_LARGE), "the data is too large"},
    {Unsigned(CRYPT_E_ASN1_CONSTRAINT), "a value is outside its limits"},
    {Unsigned(CRYPT_E_ASN1_MEMORY), "out of memory"},
    {Unsigned(CRYPT_E_ASN1_BADTAG), "bad ASN.1 tag"},
    {Unsigned(CRYPT_E_ASN1_CHOICE), "bad ASN.1 choice"},
};

}  // namespace

const char* Meaning(DWORD code) {
  const auto* const row =
      std::find_if(std::begin(kMeanings), std::end(kMeanings),
                   [code](const MeaningRow& entry) { return entry.code == code; });
  return row != std::end(kMeanings) ? row->text : "unknown code";
}

void SetVerbose(bool value) { isVerbose = value; }

std::string Describe(const Failure& failure) {
  if (failure.code == ERROR_SUCCESS) return failure.what;
  const std::string text = failure.what + ": " + Meaning(failure.code);
  if (!isVerbose) return text;
  const auto code = static_cast<unsigned long>(failure.code);
  char number[48];
  std::snprintf(number, sizeof number, " (last error %lu, 0x%08lX)", code, code);
  return text + number;
}

void ReportLine(const std::string& text) {
  // Not FromUtf8: a file's name may be any octets.
  const std::string line = Paint(Colour::kFault, "x509name:", Stream::kError) + " " +
                           VisibleInMessage(Repaired(text)) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void Report(const std::string& where, const Failure& failure) {
  ReportLine(where + ": " + Describe(failure));
  if (!failure.excerpt.empty()) std::fputs((failure.excerpt + "\n").c_str(), stderr);
}

}  // namespace Example
