#include "foundation/utf16.h"

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
  return character > kLastUnit && character <= kLastCodePoint;
}

}  // namespace

size_t CountUnits(std::wstring_view text) {
  size_t units = text.size();
  for (const wchar_t c : text) units += IsPair(static_cast<uint32_t>(c));
  return units;
}

uint64_t CountUtf8(std::wstring_view text) {
  uint64_t octets = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const uint32_t c = static_cast<uint32_t>(text[i]);
    if (c < 0x80) {
      octets += 1;
    } else if (c < 0x800) {
      octets += 2;
    } else if (IsPair(c)) {
      octets += 4;
    } else if (IsHighSurrogate(c) && i + 1 < text.size() &&
               IsLowSurrogate(static_cast<uint32_t>(text[i + 1]))) {
      octets += 4;
      ++i;
    } else {
      octets += 3;
    }
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
