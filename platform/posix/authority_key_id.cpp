#include "platform/posix/codecs.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kSequence = 0x30;
constexpr BYTE kKeyId = 0x80;
constexpr BYTE kIssuer = 0xA1;
constexpr BYTE kSerialNumber = 0x82;

// Octets of a little-endian two's complement number without those that only repeat its sign.
std::size_t SignificantOctets(const CRYPT_INTEGER_BLOB& number) {
  std::size_t size = number.cbData;
  for (; size > 1; --size) {
    const BYTE top = number.pbData[size - 1];
    const bool negative = number.pbData[size - 2] >= 0x80;
    if (top != (negative ? 0xFF : 0x00)) break;
  }
  return size;
}

void WriteSerialNumber(const CRYPT_INTEGER_BLOB& number, DerWriter* out) {
  const std::size_t mark = out->size();
  const std::size_t size = SignificantOctets(number);
  for (std::size_t i = 0; i < size; ++i) out->PutOctet(number.pbData[i]);
  out->PutHeader(kSerialNumber, mark);
}

DWORD ReadSerialNumber(ByteView content, StructRoom* room, CRYPT_INTEGER_BLOB* number) {
  if (content.size == 0) return CRYPT_E_ASN1_CORRUPT;
  *number = room->Copy(content);
  if (number->pbData == nullptr) return ERROR_SUCCESS;
  for (std::size_t i = 0; i < content.size; ++i) {
    number->pbData[i] = content.data[content.size - 1 - i];
  }
  return ERROR_SUCCESS;
}

}  // namespace

DWORD WriteAuthorityKeyId(const CERT_AUTHORITY_KEY_ID2_INFO& info, DerWriter* out) {
  if (!IsThere(info.KeyId) || !IsThere(info.AuthorityCertSerialNumber)) {
    return ERROR_INVALID_PARAMETER;
  }
  const std::size_t mark = out->size();
  if (info.AuthorityCertSerialNumber.cbData != 0) {
    WriteSerialNumber(info.AuthorityCertSerialNumber, out);
  }
  if (info.AuthorityCertIssuer.cAltEntry != 0) {
    if (const DWORD error = WriteAlternateNameAs(kIssuer, info.AuthorityCertIssuer, out)) {
      return error;
    }
  }
  if (info.KeyId.cbData != 0) {
    const std::size_t key = out->size();
    out->PutOctets(ToBytes(info.KeyId));
    out->PutHeader(kKeyId, key);
  }
  out->PutHeader(kSequence, mark);
  return ERROR_SUCCESS;
}

DWORD ReadAuthorityKeyId(ByteView der, StructRoom* room, CERT_AUTHORITY_KEY_ID2_INFO* info) {
  ByteView members;
  if (const DWORD error = ReadTagged(der, kSequence, &members)) return error;
  // Each member at most once and in this order, as their tags rise.
  BYTE before = 0;
  while (members.size != 0) {
    Element member;
    if (const DWORD error = TakeElement(&members, &member)) return error;
    const BYTE number = member.tag & 0x1F;
    if (number < before) return CRYPT_E_ASN1_CORRUPT;
    before = static_cast<BYTE>(number + 1);
    DWORD error = CRYPT_E_ASN1_CORRUPT;
    if (member.tag == kKeyId) {
      info->KeyId = room->Copy(member.content);
      error = ERROR_SUCCESS;
    } else if (member.tag == kIssuer) {
      error = ReadAlternateNameContent(member.content, room, &info->AuthorityCertIssuer);
    } else if (member.tag == kSerialNumber) {
      error = ReadSerialNumber(member.content, room, &info->AuthorityCertSerialNumber);
    }
    if (error != ERROR_SUCCESS) return error;
  }
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix
