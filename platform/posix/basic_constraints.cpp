#include <cstdint>

#include "platform/posix/codecs.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kBoolean = 0x01;
constexpr BYTE kInteger = 0x02;
constexpr BYTE kSequence = 0x30;

void WriteUnsigned(DWORD value, DerWriter* out) {
  const std::size_t mark = out->size();
  BYTE top;
  do {
    top = static_cast<BYTE>(value);
    out->PutOctet(top);
    value >>= 8;
  } while (value != 0);
  if (top >= 0x80) out->PutOctet(0);
  out->PutHeader(kInteger, mark);
}

DWORD ReadUnsigned(ByteView content, DWORD* value) {
  if (content.size == 0 || content.data[0] >= 0x80) return CRYPT_E_ASN1_CORRUPT;
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < content.size; ++i) {
    sum = sum << 8 | content.data[i];
    if (sum > kLargestSize) return CRYPT_E_ASN1_LARGE;
  }
  *value = static_cast<DWORD>(sum);
  return ERROR_SUCCESS;
}

}  // namespace

DWORD WriteBasicConstraints(const CERT_BASIC_CONSTRAINTS2_INFO& info, DerWriter* out) {
  const std::size_t mark = out->size();
  if (info.fPathLenConstraint != FALSE) WriteUnsigned(info.dwPathLenConstraint, out);
  if (info.fCA != FALSE) {
    const std::size_t flag = out->size();
    out->PutOctet(0xFF);
    out->PutHeader(kBoolean, flag);
  }
  out->PutHeader(kSequence, mark);
  return ERROR_SUCCESS;
}

DWORD ReadBasicConstraints(ByteView der, StructRoom* /*room*/, CERT_BASIC_CONSTRAINTS2_INFO* info) {
  ByteView members;
  if (const DWORD error = ReadTagged(der, kSequence, &members)) return error;
  Element member;
  if (members.size != 0 && members.data[0] == kBoolean) {
    if (const DWORD error = TakeElement(&members, &member)) return error;
    if (member.content.size != 1) return CRYPT_E_ASN1_CORRUPT;
    info->fCA = member.content.data[0] != 0 ? TRUE : FALSE;
  }
  if (members.size != 0 && members.data[0] == kInteger) {
    if (const DWORD error = TakeElement(&members, &member)) return error;
    info->fPathLenConstraint = TRUE;
    if (const DWORD error = ReadUnsigned(member.content, &info->dwPathLenConstraint)) return error;
  }
  return members.size == 0 ? ERROR_SUCCESS : CRYPT_E_ASN1_CORRUPT;
}

}  // namespace Ortholan::posix
