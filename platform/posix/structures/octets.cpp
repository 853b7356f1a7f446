// Octets as they are: OCTET STRING, BIT STRING and whole elements.

#include <cstdint>

#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

DWORD WriteOctets(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  ByteView octets;
  if (!LoadOctets(value, &octets)) return ERROR_INVALID_PARAMETER;
  out->PutOctets(octets);
  return ERROR_SUCCESS;
}

DWORD ReadOctets(const Field& /*field*/, const Element& element, std::size_t place,
                 StructRoom* room) {
  room->PutBlob(place, element.content);
  return ERROR_SUCCESS;
}

DWORD ReadAny(const Field& /*field*/, const Element& element, std::size_t place, StructRoom* room) {
  room->PutBlob(place, element.whole);
  return ERROR_SUCCESS;
}

BYTE WithoutUnused(BYTE last, DWORD unused) {
  return static_cast<BYTE>(last & static_cast<BYTE>(0xFF << unused));
}

// Unused bits are written, and read, as zero; a count of eight or more takes whole octets off the
// end.
DWORD WriteBits(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  const auto info = Load<CRYPT_BIT_BLOB>(value);
  if (info.cbData != 0 && info.pbData == nullptr) return ERROR_INVALID_PARAMETER;
  const std::uint64_t all = std::uint64_t{8} * info.cbData;
  const std::uint64_t bits = info.cUnusedBits < all ? all - info.cUnusedBits : 0;
  const auto octets = static_cast<std::size_t>((bits + 7) / 8);
  const auto unused = static_cast<BYTE>(8 * octets - bits);
  if (octets != 0) {
    out->PutOctet(WithoutUnused(info.pbData[octets - 1], unused));
    out->PutOctets({info.pbData, octets - 1});
  }
  out->PutOctet(unused);
  return ERROR_SUCCESS;
}

DWORD ReadBits(const Field& /*field*/, const Element& element, std::size_t place,
               StructRoom* room) {
  const ByteView content = element.content;
  if (content.empty()) return CRYPT_E_ASN1_CORRUPT;
  const BYTE unused = content[0];
  const ByteView octets = content.From(1);
  if (unused > (octets.empty() ? 0 : 7)) return CRYPT_E_ASN1_CORRUPT;
  BYTE* const copy = room->PutBlob(place, octets);
  if (copy != nullptr) copy[octets.size - 1] = WithoutUnused(copy[octets.size - 1], unused);
  room->Put(place + offsetof(CRYPT_BIT_BLOB, cUnusedBits), DWORD{unused});
  return ERROR_SUCCESS;
}

}  // namespace

const Kind kOctetsKind = {WriteOctets, ReadOctets};
const Kind kAnyKind = {WriteOctets, ReadAny};
const Kind kBitsKind = {WriteBits, ReadBits};

}  // namespace Ortholan::posix
