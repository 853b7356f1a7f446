#include "foundation/element_writer.h"

namespace Ortholan {

size_t IdentifierSize(DWORD tag) {
  if (tag < kHighTagNumber) return 1;
  size_t octets = 2;
  while ((tag >>= 7) != 0) ++octets;
  return octets;
}

BYTE* WriteIdentifier(BYTE* out, BYTE classAndForm, DWORD tag) {
  if (tag < kHighTagNumber) {
    *out++ = static_cast<BYTE>(classAndForm | tag);
    return out;
  }
  *out++ = classAndForm | kHighTagNumber;
  for (size_t group = IdentifierSize(tag) - 1; group-- != 0;) {
    const BYTE more = group != 0 ? kLongForm : 0;
    *out++ = static_cast<BYTE>(more | (tag >> (7 * group) & 0x7F));
  }
  return out;
}

}  // namespace Ortholan
