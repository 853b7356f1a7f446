// UTF-16 text, in wide characters or in octets.
//
// Wide text holds one unit a character. A wide character above 0xFFFF, which only a caller on a
// platform with four-byte characters can bring, counts as its surrogate pair.
#ifndef ORTHOLAN_BYTES_UTF16_H_
#define ORTHOLAN_BYTES_UTF16_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "bytes/byte_view.h"
#include "bytes/lanes.h"

namespace Ortholan {

inline constexpr uint32_t kLastUnit = 0xFFFF;
inline constexpr uint32_t kLastScalar = 0x10FFFF;
inline constexpr uint32_t kReplacement = 0xFFFD;

constexpr bool IsHighSurrogate(uint32_t unit) { return (unit & 0xFFFFFC00) == 0xD800; }
constexpr bool IsLowSurrogate(uint32_t unit) { return (unit & 0xFFFFFC00) == 0xDC00; }
constexpr bool IsSurrogate(uint32_t unit) { return (unit & 0xFFFFF800) == 0xD800; }

// A character that takes two units, and the two.
constexpr bool IsPair(uint32_t scalar) {
  return scalar - (kLastUnit + 1) <= kLastScalar - (kLastUnit + 1);
}
constexpr uint32_t HighSurrogate(uint32_t scalar) { return 0xD7C0 + (scalar >> 10); }
constexpr uint32_t LowSurrogate(uint32_t scalar) { return 0xDC00 + (scalar & 0x3FF); }

// Sources of UTF-16 units.

struct WideSource {
  const wchar_t* text;
  uint32_t operator[](size_t i) const { return static_cast<uint32_t>(text[i]); }
  // False where some character is above U+FFFF.
  bool ReadLanes(size_t at, uint64_t* lanes) const {
    uint32_t seen = 0;
    *lanes = 0;
    for (size_t i = 0; i < kLanes; ++i) {
      const uint32_t unit = (*this)[at + i];
      seen |= unit;
      *lanes |= static_cast<uint64_t>(unit) << (16 * i);
    }
    return seen <= 0xFFFF;
  }
};

struct LittleEndianSource {
  const uint8_t* text;
  uint32_t operator[](size_t i) const {
    return text[2 * i] | static_cast<uint32_t>(text[2 * i + 1]) << 8;
  }
  bool ReadLanes(size_t at, uint64_t* lanes) const {
    *lanes = LoadLanes(text + 2 * at);
    return true;
  }
};

// UTF-16 units of `text`.
size_t CountUnits(std::wstring_view text);
// UTF-8 octets of `text`, an unpaired surrogate counting as U+FFFD.
uint64_t CountUtf8(std::wstring_view text);

// Write two octets a unit, U+FFFD for what is no character; `out` has room for
// 2 * CountUnits(text). Return the end.
uint8_t* WriteUtf16Le(std::wstring_view text, uint8_t* out);
uint8_t* WriteUtf16Be(std::wstring_view text, uint8_t* out);

// Appends bytes.size / 2 units.
void AppendUtf16Le(ByteView bytes, std::wstring* text);

// Exchanges the octets of each whole unit: big-endian to little-endian and back.
inline void SwapUnits(const uint8_t* from, size_t size, uint8_t* to) {
  for (size_t i = 0; i + 1 < size; i += 2) {
    to[i] = from[i + 1];
    to[i + 1] = from[i];
  }
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_UTF16_H_
