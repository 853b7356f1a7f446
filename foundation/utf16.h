// UTF-16 text between wide characters and the little-endian bytes of the platform's structures.
//
// Wide text holds one unit a character. A wide character above 0xFFFF, which only a caller on a
// platform with four-byte characters can bring, counts as its surrogate pair.
#ifndef ORTHOLAN_FOUNDATION_UTF16_H_
#define ORTHOLAN_FOUNDATION_UTF16_H_

#include <ortholan/platform.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/byte_view.h"

namespace Ortholan {

constexpr uint32_t kLastUnit = 0xFFFF;
constexpr uint32_t kReplacement = 0xFFFD;

constexpr bool IsHighSurrogate(uint32_t unit) { return (unit & 0xFFFFFC00) == 0xD800; }
constexpr bool IsLowSurrogate(uint32_t unit) { return (unit & 0xFFFFFC00) == 0xDC00; }

// UTF-16 units of `text`.
size_t CountUnits(std::wstring_view text);
// UTF-8 octets of `text`, an unpaired surrogate counting as U+FFFD.
uint64_t CountUtf8(std::wstring_view text);

// Writes two octets a unit; `out` has room for 2 * CountUnits(text). Returns the end.
BYTE* WriteUtf16Le(std::wstring_view text, BYTE* out);

// Appends bytes.size / 2 units.
void AppendUtf16Le(ByteView bytes, std::wstring* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_UTF16_H_
