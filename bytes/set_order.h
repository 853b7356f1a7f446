// The order of a SET OF in DER (X.690 11.6): ascending as octet strings, a shorter one padded with
// zeros behind.
//
//   02 01 05, 02 01 07, 04 00
#ifndef ORTHOLAN_BYTES_SET_ORDER_H_
#define ORTHOLAN_BYTES_SET_ORDER_H_

#include "bytes/byte_view.h"

namespace Ortholan {

// Whether `after`, an element, may stand behind `before`. No two elements differ in trailing zeros
// alone: their lengths would.
inline bool IsAscending(ByteView before, ByteView after) {
  const size_t common = before.size < after.size ? before.size : after.size;
  return std::memcmp(before.data, after.data, common) <= 0;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_SET_ORDER_H_
