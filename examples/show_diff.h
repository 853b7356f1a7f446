// What differs between the names and extensions of two documents.
#ifndef ORTHOLAN_EXAMPLES_SHOW_DIFF_H_
#define ORTHOLAN_EXAMPLES_SHOW_DIFF_H_

#include "examples/arguments.h"

namespace Example {

// The files hold two documents in all, or a UsageError is thrown. Returns 0 where names and
// extensions have the same octets, else 1.
int RunShowDiff(const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOW_DIFF_H_
