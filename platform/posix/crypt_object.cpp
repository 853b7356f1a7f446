// CryptEncodeObject and CryptDecodeObject: a table of codecs, each found by its constant or by the
// identifier of the extension that it serves.

#include <ortholan/platform.h>

#include <cstdint>
#include <cstring>

#include "platform/posix/codecs.h"
#include "platform/posix/fail.h"
#include "platform/posix/name_value.h"

namespace Ortholan {
namespace {

using posix::Fail;

using Encode = BOOL (*)(const void* structInfo, BYTE* out, DWORD* outBytes) noexcept;
using Decode = BOOL (*)(const BYTE* encoded, DWORD encodedBytes, void* out,
                        DWORD* outBytes) noexcept;

BOOL EncodeValue(const void* structInfo, BYTE* out, DWORD* outBytes) noexcept {
  return posix::EncodeNameValue(*static_cast<const CERT_NAME_VALUE*>(structInfo), out, outBytes);
}

BOOL EncodeUnicodeValue(const void* structInfo, BYTE* out, DWORD* outBytes) noexcept {
  return posix::EncodeUnicodeNameValue(*static_cast<const CERT_NAME_VALUE*>(structInfo), out,
                                       outBytes);
}

struct Codec {
  std::uintptr_t constant;
  Encode encode;
  Decode decode;
};

template <class Info, DWORD (*Write)(const Info&, posix::DerWriter*),
          DWORD (*Read)(ByteView, posix::StructRoom*, Info*)>
constexpr Codec MakeCodec(std::uintptr_t constant) {
  return {constant, posix::EncodeWith<Info, Write>, posix::DecodeWith<Info, Read>};
}

// By the values of the constants, which are no constant expressions; the most wanted first.
constexpr Codec kCodecs[] = {
    {6, EncodeValue, posix::DecodeNameValue},                 // X509_NAME_VALUE
    {24, EncodeUnicodeValue, posix::DecodeUnicodeNameValue},  // X509_UNICODE_NAME_VALUE
    MakeCodec<CERT_ALT_NAME_INFO, posix::WriteAlternateName, posix::ReadAlternateName>(12),
    MakeCodec<CRYPT_BIT_BLOB, posix::WriteBits, posix::ReadBits>(14),
    MakeCodec<CERT_BASIC_CONSTRAINTS2_INFO, posix::WriteBasicConstraints,
              posix::ReadBasicConstraints>(15),
    MakeCodec<CRYPT_DATA_BLOB, posix::WriteOctetString, posix::ReadOctetString>(25),
    MakeCodec<CRYPT_BIT_BLOB, posix::WriteBits, posix::ReadBits>(26),
    MakeCodec<CERT_AUTHORITY_KEY_ID2_INFO, posix::WriteAuthorityKeyId, posix::ReadAuthorityKeyId>(
        31),
    MakeCodec<CERT_ENHKEY_USAGE, posix::WriteEnhancedKeyUsage, posix::ReadEnhancedKeyUsage>(36),
};

// Extensions and the constants of their structures.
struct ExtensionRow {
  LPCSTR oid;
  std::uintptr_t constant;
};
constexpr ExtensionRow kExtensions[] = {
    {szOID_SUBJECT_ALT_NAME, 12},       {szOID_ISSUER_ALT_NAME, 12},
    {szOID_SUBJECT_KEY_IDENTIFIER, 25}, {szOID_KEY_USAGE, 14},
    {szOID_SUBJECT_ALT_NAME2, 12},      {szOID_ISSUER_ALT_NAME2, 12},
    {szOID_BASIC_CONSTRAINTS2, 15},     {szOID_AUTHORITY_KEY_IDENTIFIER2, 31},
    {szOID_ENHANCED_KEY_USAGE, 36},
};

// Values up to this one are constants, all others point at the text of an identifier.
constexpr std::uintptr_t kLastConstant = 0xFFFF;

const Codec* FindCodec(DWORD encodingType, LPCSTR structType) {
  if ((encodingType & (X509_ASN_ENCODING | PKCS_7_ASN_ENCODING)) == 0) return nullptr;
  auto constant = reinterpret_cast<std::uintptr_t>(structType);
  if (constant > kLastConstant) {
    constant = 0;
    for (const ExtensionRow& row : kExtensions) {
      if (std::strcmp(row.oid, structType) == 0) constant = row.constant;
    }
  }
  for (const Codec& codec : kCodecs) {
    if (codec.constant == constant) return &codec;
  }
  return nullptr;
}

}  // namespace

BOOL CryptEncodeObject(DWORD encodingType, LPCSTR structType, const void* structInfo, BYTE* out,
                       DWORD* outBytes) noexcept {
  const Codec* const codec = FindCodec(encodingType, structType);
  if (codec == nullptr) return Fail(ERROR_FILE_NOT_FOUND);
  if (structInfo == nullptr || outBytes == nullptr) return Fail(ERROR_INVALID_PARAMETER);
  return codec->encode(structInfo, out, outBytes);
}

BOOL CryptDecodeObject(DWORD encodingType, LPCSTR structType, const BYTE* encoded,
                       DWORD encodedBytes, DWORD /*flags*/, void* out, DWORD* outBytes) noexcept {
  const Codec* const codec = FindCodec(encodingType, structType);
  if (codec == nullptr) return Fail(ERROR_FILE_NOT_FOUND);
  if (outBytes == nullptr || (encoded == nullptr && encodedBytes != 0)) {
    return Fail(ERROR_INVALID_PARAMETER);
  }
  return codec->decode(encoded, encodedBytes, out, outBytes);
}

}  // namespace Ortholan
