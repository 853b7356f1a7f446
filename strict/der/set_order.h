// A SET OF brought into its order (bytes/set_order.h).
#ifndef ORTHOLAN_STRICT_DER_SET_ORDER_H_
#define ORTHOLAN_STRICT_DER_SET_ORDER_H_

#include "bytes/set_order.h"

namespace Ortholan::strict {

// Sorts elements that are in order one by one. Throws std::bad_alloc where they have to move.
void SortSetOf(uint8_t* elements, size_t size);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_SET_ORDER_H_
