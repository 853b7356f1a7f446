// BOOLEAN, INTEGER and ENUMERATED: content in two's complement, most significant octet first (X.690
// 8.3), in blobs the least significant one first.

#include <cstdint>

#include "platform/posix/structures/field.h"
#include "platform/posix/structures/load.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kSignBit = 0x80;

// A flag that is not set is its default and is left out.
DWORD WriteFlag(const Field& /*field*/, const BYTE* /*value*/, DerWriter* out) {
  out->PutOctet(0xFF);
  return ERROR_SUCCESS;
}

DWORD ReadFlag(const Field& /*field*/, const Element& element, std::size_t place,
               StructRoom* room) {
  if (element.content.size != 1) return CRYPT_E_ASN1_CORRUPT;
  room->Put(place, element.content[0] != 0 ? TRUE : FALSE);
  return ERROR_SUCCESS;
}

void PutNumber(std::int64_t number, DerWriter* out) {
  bool more = true;
  while (more) {
    const auto octet = static_cast<BYTE>(number);
    number >>= 8;
    out->PutOctet(octet);
    more = number != (octet < kSignBit ? 0 : -1);
  }
}

// Numbers from `least` to `most`, which have at most 33 bits.
DWORD ReadNumber(ByteView content, std::int64_t least, std::int64_t most, std::int64_t* number) {
  if (content.empty()) return CRYPT_E_ASN1_CORRUPT;
  *number = content[0] < kSignBit ? 0 : -1;
  for (const BYTE octet : content) {
    *number = *number * 256 + octet;
    if (*number < least || *number > most) return CRYPT_E_ASN1_LARGE;
  }
  return ERROR_SUCCESS;
}

DWORD WriteUnsigned(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  PutNumber(Load<DWORD>(value), out);
  return ERROR_SUCCESS;
}

DWORD ReadUnsigned(const Field& /*field*/, const Element& element, std::size_t place,
                   StructRoom* room) {
  if (!element.content.empty() && element.content[0] >= kSignBit) return CRYPT_E_ASN1_CORRUPT;
  std::int64_t number;
  if (const DWORD error = ReadNumber(element.content, 0, UINT32_MAX, &number)) return error;
  room->Put(place, static_cast<DWORD>(number));
  return ERROR_SUCCESS;
}

DWORD WriteSigned(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  PutNumber(Load<std::int32_t>(value), out);
  return ERROR_SUCCESS;
}

DWORD ReadSigned(const Field& /*field*/, const Element& element, std::size_t place,
                 StructRoom* room) {
  std::int64_t number;
  if (const DWORD error = ReadNumber(element.content, INT32_MIN, INT32_MAX, &number)) return error;
  room->Put(place, static_cast<std::int32_t>(number));
  return ERROR_SUCCESS;
}

void PutReversed(ByteView octets, DerWriter* out) {
  for (const BYTE octet : octets) out->PutOctet(octet);
}

void ReadReversed(ByteView content, std::size_t place, StructRoom* room) {
  BYTE* const octets = room->PutBlob(place, content.size);
  for (std::size_t i = 0; octets != nullptr && i < content.size; ++i) {
    octets[i] = content[content.size - 1 - i];
  }
}

// Without the octets at the end that only repeat the sign.
ByteView Significant(ByteView number) {
  std::size_t size = number.size;
  for (; size > 1; --size) {
    const BYTE sign = number[size - 2] < kSignBit ? 0x00 : 0xFF;
    if (number[size - 1] != sign) break;
  }
  return number.First(size);
}

DWORD WriteBigNumber(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  ByteView number;
  if (!LoadOctets(value, &number)) return ERROR_INVALID_PARAMETER;
  if (number.empty()) out->PutOctet(0);
  PutReversed(Significant(number), out);
  return ERROR_SUCCESS;
}

DWORD ReadBigNumber(const Field& /*field*/, const Element& element, std::size_t place,
                    StructRoom* room) {
  if (element.content.empty()) return CRYPT_E_ASN1_CORRUPT;
  ReadReversed(element.content, place, room);
  return ERROR_SUCCESS;
}

// Written with a zero in front where the top bit is set, and read without one.
DWORD WriteNatural(const Field& /*field*/, const BYTE* value, DerWriter* out) {
  ByteView number;
  if (!LoadOctets(value, &number)) return ERROR_INVALID_PARAMETER;
  while (!number.empty() && number[number.size - 1] == 0) number = number.First(number.size - 1);
  PutReversed(number, out);
  if (number.empty() || number[number.size - 1] >= kSignBit) out->PutOctet(0);
  return ERROR_SUCCESS;
}

DWORD ReadNatural(const Field& /*field*/, const Element& element, std::size_t place,
                  StructRoom* room) {
  ByteView content = element.content;
  if (content.empty()) return CRYPT_E_ASN1_CORRUPT;
  while (content.size > 1 && content[0] == 0) content = content.From(1);
  ReadReversed(content, place, room);
  return ERROR_SUCCESS;
}

}  // namespace

const Kind kFlagKind = {WriteFlag, ReadFlag};
const Kind kUnsignedKind = {WriteUnsigned, ReadUnsigned};
const Kind kSignedKind = {WriteSigned, ReadSigned};
const Kind kNumberKind = {WriteBigNumber, ReadBigNumber};
const Kind kNaturalKind = {WriteNatural, ReadNatural};

}  // namespace Ortholan::posix
