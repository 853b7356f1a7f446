// Moments counted from 1970 without leap seconds, and their text.
//
//   SecondsOf("1970-01-02T00:00:00Z")   // 86400
#ifndef ORTHOLAN_STRICT_EXTENSIONS_MOMENT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_MOMENT_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

// Seconds of a text "2026-11-21T22:05:00Z" that names a moment; below zero before 1970.
int64_t SecondsOf(std::string_view text);

// Milliseconds, as logs of certificates count (RFC 6962 3.2): the last one whose year has four
// digits, 9999-12-31T23:59:59.999Z.
constexpr uint64_t kLastMillisecond = UINT64_C(253402300799999);

// Puts "2026-11-21T22:05:00.123Z" for what is at most kLastMillisecond.
void PutMilliseconds(uint64_t time, Output* out);

// Reads such a text of 1970 or later; false for any other.
bool MillisecondsOf(std::string_view text, uint64_t* time);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_MOMENT_H_
