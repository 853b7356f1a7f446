// CryptEncodeObject and CryptDecodeObject: a table of codecs, each found by its constant or by the
// identifier of the extension that it serves.

#include <ortholan/platform.h>

#include "platform/posix/fail.h"
#include "platform/posix/name_value.h"

namespace Ortholan {
namespace {

using posix::Fail;

bool IsX509(DWORD encodingType) {
  return (encodingType & (X509_ASN_ENCODING | PKCS_7_ASN_ENCODING)) != 0;
}

}  // namespace

BOOL CryptEncodeObject(DWORD encodingType, LPCSTR structType, const void* structInfo, BYTE* out,
                       DWORD* outBytes) noexcept {
  if (!IsX509(encodingType)) return Fail(ERROR_FILE_NOT_FOUND);
  if (structInfo == nullptr || outBytes == nullptr) return Fail(ERROR_INVALID_PARAMETER);
  if (structType == X509_NAME_VALUE) {
    return posix::EncodeNameValue(*static_cast<const CERT_NAME_VALUE*>(structInfo), out, outBytes);
  }
  return Fail(ERROR_FILE_NOT_FOUND);
}

BOOL CryptDecodeObject(DWORD encodingType, LPCSTR structType, const BYTE* encoded,
                       DWORD encodedBytes, DWORD /*flags*/, void* out, DWORD* outBytes) noexcept {
  if (!IsX509(encodingType)) return Fail(ERROR_FILE_NOT_FOUND);
  if (outBytes == nullptr || (encoded == nullptr && encodedBytes != 0)) {
    return Fail(ERROR_INVALID_PARAMETER);
  }
  if (structType == X509_NAME_VALUE) {
    return posix::DecodeNameValue(encoded, encodedBytes, out, outBytes);
  }
  return Fail(ERROR_FILE_NOT_FOUND);
}

}  // namespace Ortholan
