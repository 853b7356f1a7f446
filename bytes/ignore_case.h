// Texts compared without the case of ASCII letters, and of no others, whatever the locale.
//
//   SameWithoutCase("www.Example.org", "WWW.example.org")   // true
#ifndef ORTHOLAN_BYTES_IGNORE_CASE_H_
#define ORTHOLAN_BYTES_IGNORE_CASE_H_

#include <cstdint>
#include <cstring>
#include <string_view>

#include "bytes/ascii.h"

namespace Ortholan {

// Of eight characters in one word what is not the case of a letter.
constexpr uint64_t kButCase = ~UINT64_C(0x2020202020202020);

// Eight characters in one word.
inline uint64_t LoadCharacters(const char* at) {
  uint64_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

// Of texts of one size.
constexpr bool SameLetterByLetter(std::string_view a, std::string_view b) {
  for (size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && ToAsciiLower(a[i]) != ToAsciiLower(b[i])) return false;
  }
  return true;
}

// Whether two texts are the same but for the case of ASCII letters: hosts, schemes, keywords.
inline bool SameWithoutCase(std::string_view a, std::string_view b) {
  constexpr size_t kWord = sizeof(uint64_t);
  if (a.size() != b.size()) return false;
  if (a.size() < kWord) return SameLetterByLetter(a, b);
  // Most that differ do so in their first or last eight characters, bit 0x20 aside.
  size_t at = a.size() - kWord;
  uint64_t difference = (LoadCharacters(a.data()) ^ LoadCharacters(b.data())) |
                        (LoadCharacters(a.data() + at) ^ LoadCharacters(b.data() + at));
  if ((difference & kButCase) != 0) return false;
  while (at > kWord) {
    at -= kWord;
    difference |= LoadCharacters(a.data() + at) ^ LoadCharacters(b.data() + at);
  }
  return difference == 0 || SameLetterByLetter(a, b);
}

// Whether the last characters of two texts are such that one may end in the other.
inline bool MayEndAlike(std::string_view a, std::string_view b) {
  constexpr size_t kWord = sizeof(uint64_t);
  if (a.size() < kWord || b.size() < kWord) return true;
  const uint64_t difference =
      LoadCharacters(a.data() + a.size() - kWord) ^ LoadCharacters(b.data() + b.size() - kWord);
  return (difference & kButCase) == 0;
}

// -1, 0 or 1 by lower-cased bytes, unsigned, as `_stricmp` has it.
inline int CompareIgnoreCase(std::string_view a, std::string_view b) {
  const size_t common = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < common; ++i) {
    const auto x = static_cast<unsigned char>(ToAsciiLower(a[i]));
    const auto y = static_cast<unsigned char>(ToAsciiLower(b[i]));
    if (x != y) return x < y ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_IGNORE_CASE_H_
