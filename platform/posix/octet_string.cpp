#include "platform/posix/codecs.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kOctetString = 0x04;

}  // namespace

DWORD WriteOctetString(const CRYPT_DATA_BLOB& info, DerWriter* out) {
  if (!IsThere(info)) return ERROR_INVALID_PARAMETER;
  const std::size_t mark = out->size();
  out->PutOctets(ToBytes(info));
  out->PutHeader(kOctetString, mark);
  return ERROR_SUCCESS;
}

DWORD ReadOctetString(ByteView der, StructRoom* room, CRYPT_DATA_BLOB* info) {
  ByteView content;
  if (const DWORD error = ReadTagged(der, kOctetString, &content)) return error;
  *info = room->Copy(content);
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix
