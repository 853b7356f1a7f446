#include "bytes/utf16.h"

#include "bytes/utf8.h"

namespace Ortholan {
namespace {

// Calls `put` with each unit of `text`.
template <class Put>
void ForEachUnit(std::wstring_view text, Put put) {
  for (const wchar_t character : text) {
    const auto c = static_cast<uint32_t>(character);
    if (c <= kLastUnit) {
      put(c);
    } else if (IsPair(c)) {
      put(HighSurrogate(c));
      put(LowSurrogate(c));
    } else {
      put(kReplacement);
    }
  }
}

}  // namespace

size_t CountUnits(std::wstring_view text) {
  size_t units = text.size();
  for (const wchar_t c : text) units += IsPair(static_cast<uint32_t>(c));
  return units;
}

uint64_t CountUtf8(std::wstring_view text) {
  return Utf8Size(WideSource{text.data()}, text.size());
}

uint8_t* WriteUtf16Le(std::wstring_view text, uint8_t* out) {
  ForEachUnit(text, [&out](uint32_t unit) {
    *out++ = static_cast<uint8_t>(unit);
    *out++ = static_cast<uint8_t>(unit >> 8);
  });
  return out;
}

uint8_t* WriteUtf16Be(std::wstring_view text, uint8_t* out) {
  ForEachUnit(text, [&out](uint32_t unit) {
    *out++ = static_cast<uint8_t>(unit >> 8);
    *out++ = static_cast<uint8_t>(unit);
  });
  return out;
}

void AppendUtf16Le(ByteView bytes, std::wstring* text) {
  const LittleEndianSource source{bytes.data};
  const size_t units = bytes.size / 2;
  const size_t before = text->size();
  text->resize(before + units);
  wchar_t* const out = text->data() + before;
  for (size_t i = 0; i < units; ++i) out[i] = static_cast<wchar_t>(source[i]);
}

}  // namespace Ortholan
