#include "bytes/der_length.h"

namespace Ortholan {

bool ReadLongLength(ByteView in, uint8_t first, size_t* position, Length* length) {
  constexpr size_t kMostOctets = 8;
  const size_t octets = first - size_t{kLongForm};
  *length = {0, octets == 0};
  if (octets > kMostOctets || octets > in.size - *position) return false;
  for (size_t i = 0; i < octets; ++i) length->octets = length->octets << 8 | in[(*position)++];
  return true;
}

}  // namespace Ortholan
