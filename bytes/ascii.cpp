#include "bytes/ascii.h"

#include <cstdint>
#include <cstring>

namespace Ortholan {
namespace {

constexpr uint64_t kHighBits = 0x8080808080808080;
constexpr size_t kWord = sizeof(uint64_t);

bool IsAsciiWord(const char* text) {
  uint64_t word;
  std::memcpy(&word, text, kWord);
  return (word & kHighBits) == 0;
}

}  // namespace

bool IsAscii(std::string_view text) {
  const char* const data = text.data();
  const size_t size = text.size();
  if (size < kWord) {
    unsigned seen = 0;
    for (const char c : text) seen |= static_cast<unsigned char>(c);
    return seen < 0x80;
  }
  // The last word may overlap the one before.
  for (size_t i = 0; i < size - kWord; i += kWord) {
    if (!IsAsciiWord(data + i)) return false;
  }
  return IsAsciiWord(data + size - kWord);
}

void AppendAscii(std::string_view text, std::wstring* out) {
  const size_t before = out->size();
  out->resize(before + text.size());
  wchar_t* to = out->data() + before;
  for (size_t i = 0; i < text.size(); ++i) to[i] = static_cast<unsigned char>(text[i]);
}

}  // namespace Ortholan
