#include <cstdint>

#include "platform/posix/codecs.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kBitString = 0x03;

BYTE WithoutUnused(BYTE last, DWORD unused) {
  return static_cast<BYTE>(last & static_cast<BYTE>(0xFF << unused));
}

}  // namespace

DWORD WriteBits(const CRYPT_BIT_BLOB& info, DerWriter* out) {
  if (info.cbData != 0 && info.pbData == nullptr) return ERROR_INVALID_PARAMETER;
  const std::uint64_t all = std::uint64_t{8} * info.cbData;
  const std::uint64_t bits = info.cUnusedBits < all ? all - info.cUnusedBits : 0;
  const std::size_t octets = static_cast<std::size_t>((bits + 7) / 8);
  const auto unused = static_cast<BYTE>(8 * octets - bits);

  const std::size_t mark = out->size();
  if (octets != 0) {
    out->PutOctet(WithoutUnused(info.pbData[octets - 1], unused));
    out->PutOctets({info.pbData, octets - 1});
  }
  out->PutOctet(unused);
  out->PutHeader(kBitString, mark);
  return ERROR_SUCCESS;
}

DWORD ReadBits(ByteView der, StructRoom* room, CRYPT_BIT_BLOB* info) {
  ByteView content;
  if (const DWORD error = ReadTagged(der, kBitString, &content)) return error;
  if (content.size == 0) return CRYPT_E_ASN1_CORRUPT;
  const BYTE unused = content.data[0];
  const std::size_t octets = content.size - 1;
  if (unused > (octets != 0 ? 7 : 0)) return CRYPT_E_ASN1_CORRUPT;

  const CRYPT_DATA_BLOB copy = room->Copy({content.data + 1, octets});
  if (copy.pbData != nullptr) {
    BYTE& last = copy.pbData[octets - 1];
    last = WithoutUnused(last, unused);
  }
  *info = {copy.cbData, copy.pbData, unused};
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix
