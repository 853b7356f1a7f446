// Names compared as RFC 5280 has it, by the strict layer.
#ifndef ORTHOLAN_EXAMPLES_STRICT_MATCHING_H_
#define ORTHOLAN_EXAMPLES_STRICT_MATCHING_H_

#include "examples/arguments.h"
#include "examples/stream/stream.h"

namespace Example {

// --rfc5280 of equal, and what goes with it alone.
extern const Option kEqualRfc5280Option;
extern const Option kAnyOrderOption;

// --lines of equal with --rfc5280: two columns.
ItemWork EqualRfc5280Lines(const Arguments& arguments);

// UsageError where --any-order is given without --rfc5280.
void RequireRfc5280(const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STRICT_MATCHING_H_
