#include "bytes/ascii.h"

#include <cstdint>
#include <cstring>

namespace Ortholan {
namespace {

template <class Word>
bool IsAsciiWord(const char* text) {
  constexpr Word kHighBits = static_cast<Word>(0x8080808080808080);
  Word word;
  std::memcpy(&word, text, sizeof word);
  return (word & kHighBits) == 0;
}

// For a text of a word or more. The last word may overlap the one before.
template <class Word>
bool AreAsciiWords(const char* text, size_t size) {
  for (size_t i = 0; i < size - sizeof(Word); i += sizeof(Word)) {
    if (!IsAsciiWord<Word>(text + i)) return false;
  }
  return IsAsciiWord<Word>(text + size - sizeof(Word));
}

}  // namespace

bool IsAscii(std::string_view text) {
  if (text.size() >= sizeof(uint64_t)) return AreAsciiWords<uint64_t>(text.data(), text.size());
  if (text.size() >= sizeof(uint32_t)) return AreAsciiWords<uint32_t>(text.data(), text.size());
  unsigned seen = 0;
  for (const char c : text) seen |= static_cast<unsigned char>(c);
  return seen < 0x80;
}

void AppendAscii(std::string_view text, std::wstring* out) {
  const size_t before = out->size();
  out->resize(before + text.size());
  wchar_t* to = out->data() + before;
  for (size_t i = 0; i < text.size(); ++i) to[i] = static_cast<unsigned char>(text[i]);
}

}  // namespace Ortholan
