// The order of a SET OF (X.690 11.6): ascending as octet strings, a shorter one padded with zeros
// behind.
#ifndef ORTHOLAN_STRICT_DER_SET_ORDER_H_
#define ORTHOLAN_STRICT_DER_SET_ORDER_H_

#include "bytes/byte_view.h"

namespace Ortholan::strict {

// Whether `after`, an element, may stand behind `before`.
inline bool IsAscending(ByteView before, ByteView after) {
  const size_t common = before.size < after.size ? before.size : after.size;
  return std::memcmp(before.data, after.data, common) <= 0;
}

// Sorts elements that are in order one by one. Throws std::bad_alloc where they have to move.
void SortSetOf(uint8_t* elements, size_t size);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_SET_ORDER_H_
