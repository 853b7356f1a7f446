#include "bytes/utf8_scalar.h"

namespace Ortholan {

size_t ReadUtf8Scalar(ByteView in, uint32_t* scalar) {
  if (in.empty()) return 0;
  *scalar = in[0];
  if (in[0] < 0x80) return 1;
  const Utf8Lead lead = ReadUtf8Lead(in[0]);
  if (lead.size == 0 || in.size < lead.size || in[1] < lead.low || in[1] > lead.high) return 0;
  uint32_t value = Utf8LeadBits(in[0], lead.size) << 6 | (in[1] & 0x3Fu);
  for (size_t i = 2; i < lead.size; ++i) {
    if ((in[i] & 0xC0) != 0x80) return 0;
    value = value << 6 | (in[i] & 0x3Fu);
  }
  *scalar = value;
  return lead.size;
}

}  // namespace Ortholan
