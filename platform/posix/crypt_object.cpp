// CryptEncodeObject and CryptDecodeObject: two walks through what a structure is made of, the first
// to learn the size, the second to fill the caller's room.

#include <ortholan/platform.h>

#include <cstring>

#include "platform/posix/fail.h"
#include "platform/posix/structures/table.h"

namespace Ortholan {
namespace {

using posix::DerWriter;
using posix::Fail;
using posix::StructRoom;
using posix::Structure;

constexpr std::size_t kLargestSize = 0xFFFFFFFF;

const Structure* Find(DWORD encodingType, LPCSTR structType) {
  if ((encodingType & (X509_ASN_ENCODING | PKCS_7_ASN_ENCODING)) == 0) return nullptr;
  return posix::FindStructure(structType);
}

// Stores the size; true where the caller's room takes it and is to be filled. `*result` is what
// the call returns.
bool WantsContent(std::size_t size, const void* out, DWORD* outBytes, BOOL* result) {
  if (size > kLargestSize) {
    *result = Fail(CRYPT_E_ASN1_LARGE);
    return false;
  }
  const DWORD room = *outBytes;
  *outBytes = static_cast<DWORD>(size);
  *result = out == nullptr || room >= size ? TRUE : Fail(ERROR_MORE_DATA);
  return out != nullptr && *result != FALSE;
}

DWORD Read(const Structure& structure, ByteView der, StructRoom* room) {
  if (der.empty()) return CRYPT_E_ASN1_CORRUPT;
  if (!posix::Accepts(*structure.field, der[0])) return CRYPT_E_ASN1_BADTAG;
  posix::Element element;
  if (const DWORD error = posix::TakeElement(&der, &element)) return error;
  const std::size_t place = room->Take(structure.size, alignof(void*));
  return posix::ReadField(*structure.field, element, place, room);
}

}  // namespace

BOOL CryptEncodeObject(DWORD encodingType, LPCSTR structType, const void* structInfo, BYTE* out,
                       DWORD* outBytes) noexcept {
  const Structure* const structure = Find(encodingType, structType);
  if (structure == nullptr) return Fail(ERROR_FILE_NOT_FOUND);
  if (structInfo == nullptr || outBytes == nullptr) return Fail(ERROR_INVALID_PARAMETER);
  const auto* const info = static_cast<const BYTE*>(structInfo);
  DerWriter counter;
  if (const DWORD error = posix::WriteField(*structure->field, info, &counter)) {
    *outBytes = counter.fault();
    return Fail(error);
  }
  BOOL result;
  if (!WantsContent(counter.size(), out, outBytes, &result)) return result;
  DerWriter writer(out + counter.size());
  const DWORD error = posix::WriteField(*structure->field, info, &writer);
  return error == ERROR_SUCCESS ? TRUE : Fail(error);
}

BOOL CryptDecodeObject(DWORD encodingType, LPCSTR structType, const BYTE* encoded,
                       DWORD encodedBytes, DWORD /*flags*/, void* out, DWORD* outBytes) noexcept {
  const Structure* const structure = Find(encodingType, structType);
  if (structure == nullptr) return Fail(ERROR_FILE_NOT_FOUND);
  if (outBytes == nullptr || (encoded == nullptr && encodedBytes != 0)) {
    return Fail(ERROR_INVALID_PARAMETER);
  }
  const ByteView der{encoded, encodedBytes};
  StructRoom counter;
  if (const DWORD error = Read(*structure, der, &counter)) return Fail(error);
  BOOL result;
  if (!WantsContent(counter.used(), out, outBytes, &result)) return result;
  std::memset(out, 0, counter.used());
  StructRoom room(static_cast<BYTE*>(out));
  Read(*structure, der, &room);
  return TRUE;
}

}  // namespace Ortholan
