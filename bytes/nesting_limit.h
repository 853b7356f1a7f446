// How deep elements may be nested inside a value, whoever reads it: recursion has a bound.
#ifndef ORTHOLAN_BYTES_NESTING_LIMIT_H_
#define ORTHOLAN_BYTES_NESTING_LIMIT_H_

#include <cstddef>

namespace Ortholan {

constexpr size_t kMaxNesting = 32;  // levels below the value itself; of JSON the value counts too

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_NESTING_LIMIT_H_
