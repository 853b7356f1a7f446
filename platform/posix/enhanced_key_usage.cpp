#include "platform/posix/codecs.h"
#include "platform/posix/identifier.h"

namespace Ortholan::posix {
namespace {

constexpr BYTE kIdentifier = 0x06;
constexpr BYTE kSequence = 0x30;

DWORD CountUsages(ByteView members, std::size_t* count) {
  Element member;
  for (*count = 0; members.size != 0; ++*count) {
    if (const DWORD error = TakeElement(&members, &member)) return error;
    if (member.tag != kIdentifier) return CRYPT_E_ASN1_BADTAG;
  }
  return ERROR_SUCCESS;
}

}  // namespace

DWORD WriteEnhancedKeyUsage(const CERT_ENHKEY_USAGE& info, DerWriter* out) {
  if (info.cUsageIdentifier != 0 && info.rgpszUsageIdentifier == nullptr) {
    return ERROR_INVALID_PARAMETER;
  }
  const std::size_t mark = out->size();
  for (DWORD i = info.cUsageIdentifier; i-- > 0;) {
    if (const DWORD error = WriteIdentifier(kIdentifier, info.rgpszUsageIdentifier[i], out)) {
      return error;
    }
  }
  out->PutHeader(kSequence, mark);
  return ERROR_SUCCESS;
}

DWORD ReadEnhancedKeyUsage(ByteView der, StructRoom* room, CERT_ENHKEY_USAGE* info) {
  ByteView members;
  if (const DWORD error = ReadTagged(der, kSequence, &members)) return error;
  std::size_t count;
  if (const DWORD error = CountUsages(members, &count)) return error;
  LPSTR* const usages = room->Take<LPSTR>(count);
  Element member;
  for (std::size_t i = 0; i < count; ++i) {
    TakeElement(&members, &member);
    LPSTR usage;
    if (const DWORD error = ReadIdentifier(member.content, room, &usage)) return error;
    room->Store(usages, i, usage);
  }
  *info = {static_cast<DWORD>(count), usages};
  return ERROR_SUCCESS;
}

}  // namespace Ortholan::posix
