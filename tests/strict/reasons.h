// Reasons of the strict layer by the names that vector files call them: without ORTHOLAN_REASON_.
#ifndef ORTHOLAN_TESTS_STRICT_REASONS_H_
#define ORTHOLAN_TESTS_STRICT_REASONS_H_

#include <ortholan/strict.h>

#include <string>

namespace Ortholan::testing {

// "" for none; a reason without a row by its number.
std::string ReasonName(ortholan_reason reason);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_STRICT_REASONS_H_
