#include "foundation/utf16.h"

#include <algorithm>

namespace Ortholan {
namespace {

constexpr uint32_t kLastCodePoint = 0x10FFFF;
constexpr uint32_t kFirstPair = 0x10000;

BYTE* WriteUnit(uint32_t unit, BYTE* out) {
  *out++ = static_cast<BYTE>(unit);
  *out++ = static_cast<BYTE>(unit >> 8);
  return out;
}

constexpr bool IsPair(uint32_t character) {
  return character - kFirstPair <= kLastCodePoint - kFirstPair;
}

// Low surrogates from `first` to `end` with a high one before them.
uint64_t CountPairs(const wchar_t* units, size_t first, size_t end) {
  uint32_t pairs = 0;
  for (size_t k = first; k < end; ++k) {
    const auto high = static_cast<uint32_t>(units[k - 1]);
    const auto low = static_cast<uint32_t>(units[k]);
    pairs +=
        static_cast<uint32_t>(IsHighSurrogate(high)) & static_cast<uint32_t>(IsLowSurrogate(low));
  }
  return pairs;
}

// What the characters from `first` to `end` take above two octets each.
uint64_t CountLongUtf8(const wchar_t* units, size_t first, size_t end) {
  uint32_t more = 0;
  uint32_t lows = 0;
  for (size_t k = first; k < end; ++k) {
    const auto c = static_cast<uint32_t>(units[k]);
    more += static_cast<uint32_t>(c >= 0x800) + static_cast<uint32_t>(IsPair(c));
    lows += static_cast<uint32_t>(IsLowSurrogate(c));
  }
  return lows == 0 ? more : more - 2 * CountPairs(units, std::max<size_t>(first, 1), end);
}

}  // namespace

size_t CountUnits(std::wstring_view text) {
  size_t units = text.size();
  for (const wchar_t c : text) units += IsPair(static_cast<uint32_t>(c));
  return units;
}

// A unit takes one to three octets; the two surrogates of a pair take four instead of six. No
// branch in the inner loops: the compiler takes many units at a time. Most texts need the first.
uint64_t CountUtf8(std::wstring_view text) {
  constexpr size_t kBlock = 4096;
  const wchar_t* const units = text.data();
  uint64_t octets = text.size();
  for (size_t i = 0; i < text.size(); i += kBlock) {
    const size_t end = std::min(text.size(), i + kBlock);
    uint32_t seen = 0;
    uint32_t more = 0;
    for (size_t k = i; k < end; ++k) {
      const auto c = static_cast<uint32_t>(units[k]);
      seen |= c;
      more += static_cast<uint32_t>(c >= 0x80);
    }
    octets += more;
    if (seen >= 0x800) octets += CountLongUtf8(units, i, end);
  }
  return octets;
}

BYTE* WriteUtf16Le(std::wstring_view text, BYTE* out) {
  for (const wchar_t character : text) {
    const uint32_t c = static_cast<uint32_t>(character);
    if (c <= kLastUnit) {
      out = WriteUnit(c, out);
    } else if (IsPair(c)) {
      out = WriteUnit(0xD800 + ((c - kFirstPair) >> 10), out);
      out = WriteUnit(0xDC00 + ((c - kFirstPair) & 0x3FF), out);
    } else {
      out = WriteUnit(kReplacement, out);
    }
  }
  return out;
}

void AppendUtf16Le(ByteView bytes, std::wstring* text) {
  const size_t units = bytes.size / 2;
  const size_t before = text->size();
  text->resize(before + units);
  wchar_t* out = text->data() + before;
  for (size_t i = 0; i < units; ++i) {
    out[i] = static_cast<wchar_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
  }
}

}  // namespace Ortholan
