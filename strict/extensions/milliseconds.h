// Milliseconds since 1970 without leap seconds, as logs of certificates count (RFC 6962 3.2), and
// their text.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_MILLISECONDS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_MILLISECONDS_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

// The last one whose year has four digits, 9999-12-31T23:59:59.999Z.
constexpr uint64_t kLastMillisecond = UINT64_C(253402300799999);

// Puts "2026-11-21T22:05:00.123Z" for what is at most kLastMillisecond.
void PutMilliseconds(uint64_t time, Output* out);

// Reads such a text of 1970 or later; false for any other.
bool MillisecondsOf(std::string_view text, uint64_t* time);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_MILLISECONDS_H_
