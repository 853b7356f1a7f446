// CertRDNValueToStrA and CertRDNValueToStrW: one attribute value as text, without quotes.

#include <ortholan/platform.h>

#include <cstddef>

#include "bytes/hex.h"
#include "bytes/utf8.h"
#include "platform/posix/fail.h"

namespace Ortholan {
namespace {

using posix::Fail;

constexpr std::size_t kLargest = 0xFFFFFFFF;

// How the octets of a value type become text.
enum class Reading { kNone, kHex, kNarrow, kUtf16 };

Reading ReadingOf(DWORD type) {
  switch (type) {
    case CERT_RDN_ENCODED_BLOB:
    case CERT_RDN_OCTET_STRING:
      return Reading::kHex;
    case CERT_RDN_BMP_STRING:
    case CERT_RDN_UTF8_STRING:
      return Reading::kUtf16;
    default:
      return type >= CERT_RDN_NUMERIC_STRING && type <= CERT_RDN_GENERAL_STRING ? Reading::kNarrow
                                                                                : Reading::kNone;
  }
}

// Units before the first NUL.
std::size_t TerminatedUnits(const CERT_RDN_VALUE_BLOB& value) {
  const LittleEndianSource units{value.pbData};
  std::size_t count = 0;
  while (count < value.cbData / 2 && units[count] != 0) ++count;
  return count;
}

std::size_t HexSize(const CERT_RDN_VALUE_BLOB& value) {
  return 1 + 2 * static_cast<std::size_t>(value.cbData);
}

template <class Char>
void WriteHex(const CERT_RDN_VALUE_BLOB& value, Char* out) {
  *out++ = '#';
  for (std::size_t i = 0; i < value.cbData; ++i) out = WriteHexOctet(value.pbData[i], out);
}

// Sizes and texts without the terminator, in bytes of UTF-8 or in UTF-16 units.

std::size_t TextSize(Reading reading, const CERT_RDN_VALUE_BLOB& value, const char*) {
  if (reading == Reading::kHex) return HexSize(value);
  if (reading == Reading::kNarrow) return value.cbData;
  return Utf8Size(LittleEndianSource{value.pbData}, TerminatedUnits(value));
}

std::size_t TextSize(Reading reading, const CERT_RDN_VALUE_BLOB& value, const wchar_t*) {
  if (reading == Reading::kHex) return HexSize(value);
  if (reading == Reading::kUtf16) return TerminatedUnits(value);
  return FromUtf8(value.pbData, value.cbData, UnitCounter{}).sink.size;
}

void WriteText(Reading reading, const CERT_RDN_VALUE_BLOB& value, char* out, std::size_t size) {
  if (reading == Reading::kUtf16) {
    ToUtf8(LittleEndianSource{value.pbData}, TerminatedUnits(value),
           ByteWriter{reinterpret_cast<BYTE*>(out), size});
    return;
  }
  for (std::size_t i = 0; i < size; ++i) out[i] = static_cast<char>(value.pbData[i]);
}

void WriteText(Reading reading, const CERT_RDN_VALUE_BLOB& value, wchar_t* out, std::size_t size) {
  if (reading == Reading::kNarrow) {
    FromUtf8(value.pbData, value.cbData, WideWriter{out, size});
    return;
  }
  const LittleEndianSource units{value.pbData};
  for (std::size_t i = 0; i < size; ++i) out[i] = static_cast<wchar_t>(units[i]);
}

template <class Char>
DWORD ValueToStr(DWORD valueType, const CERT_RDN_VALUE_BLOB* value, Char* out, DWORD outChars) {
  const Reading reading = ReadingOf(valueType);
  if (reading == Reading::kNone) return 0;
  if (value == nullptr || (value->pbData == nullptr && value->cbData != 0)) {
    return Fail<DWORD>(ERROR_INVALID_PARAMETER);
  }
  const std::size_t size = TextSize(reading, *value, out);
  if (size >= kLargest) return Fail<DWORD>(ERROR_INVALID_PARAMETER);
  const auto needed = static_cast<DWORD>(size + 1);
  if (out == nullptr || outChars == 0) return needed;
  if (outChars < needed) {
    out[0] = 0;
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 1;
  }
  if (reading == Reading::kHex) {
    WriteHex(*value, out);
  } else {
    WriteText(reading, *value, out, size);
  }
  out[size] = 0;
  return needed;
}

}  // namespace

DWORD CertRDNValueToStrA(DWORD valueType, CERT_RDN_VALUE_BLOB* value, LPSTR out,
                         DWORD outChars) noexcept {
  return ValueToStr(valueType, value, out, outChars);
}

DWORD CertRDNValueToStrW(DWORD valueType, CERT_RDN_VALUE_BLOB* value, LPWSTR out,
                         DWORD outChars) noexcept {
  return ValueToStr(valueType, value, out, outChars);
}

}  // namespace Ortholan
