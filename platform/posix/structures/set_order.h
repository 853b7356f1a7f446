// The order of a SET OF in DER.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_

#include <ortholan/platform.h>

#include <cstddef>

namespace Ortholan::posix {

// Sorts the elements of `content` in place by their octets, a shorter one as if followed by zeros
// (X.690 11.6). False where memory runs out; the elements are then as they were.
bool SortSet(BYTE* content, std::size_t size);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_SET_ORDER_H_
