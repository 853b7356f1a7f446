// A SET OF in the order of DER, with memory that may run out.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_

#include <ortholan/platform.h>

#include <cstddef>

namespace Ortholan::posix {

// Sorts the elements of `content` in place (bytes/set_order.h). False where memory runs out; the
// elements are then as they were.
bool SortSet(BYTE* content, std::size_t size);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_
