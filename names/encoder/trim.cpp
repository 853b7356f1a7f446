#include "names/encoder/trim.h"

#include <ortholan/name_encoder.h>

#include <string>

namespace Ortholan {
namespace {

constexpr bool IsTrimmed(wchar_t c) {
  return c == L'\r' || c == L'\n' || c == L'\t' || c == L' ';
}

}  // namespace

std::wstring_view Trimmed(std::wstring_view text) {
  if (text.empty()) return text;
  size_t first = 0;
  while (first < text.size() && IsTrimmed(text[first])) ++first;
  if (first == text.size()) return text.substr(0, 1);
  size_t last = text.size() - 1;
  while (IsTrimmed(text[last])) --last;
  return text.substr(first, last - first + 1);
}

void TrimLeftRight(std::wstring& s) {
  const std::wstring_view kept = Trimmed(s);
  const size_t offset = static_cast<size_t>(kept.data() - s.data());
  s.erase(offset + kept.size());
  s.erase(0, offset);
}

}  // namespace Ortholan
