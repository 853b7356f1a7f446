// Four octets of text in one word, for runs of ASCII: told and folded without a branch an octet.
//
//   while (end - in >= kWordOctets && IsWordWithin(word = LoadWord(in), 0x21, 0x7E)) ...
#ifndef ORTHOLAN_BYTES_LETTER_WORDS_H_
#define ORTHOLAN_BYTES_LETTER_WORDS_H_

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Ortholan {

inline constexpr std::ptrdiff_t kWordOctets = 4;

inline uint32_t LoadWord(const uint8_t* octets) {
  uint32_t word;
  std::memcpy(&word, octets, sizeof word);
  return word;
}

constexpr uint32_t EachOctet(uint32_t octet) { return octet * 0x01010101; }

// The top bit of each octet that is at least `least`; all octets are below 0x80.
constexpr uint32_t Reaching(uint32_t word, uint32_t least) {
  return (word + EachOctet(0x80 - least)) & EachOctet(0x80);
}

constexpr bool IsAsciiWord(uint32_t word) { return (word & EachOctet(0x80)) == 0; }

// Whether all octets are from `first` to `last`, characters of ASCII below DEL.
constexpr bool IsWordWithin(uint32_t word, uint32_t first, uint32_t last) {
  return IsAsciiWord(word) && Reaching(word, first) == EachOctet(0x80) &&
         Reaching(word, last + 1) == 0;
}

// Characters of ASCII with capital letters in lower case.
constexpr uint32_t LowerWord(uint32_t word) {
  return word | (Reaching(word, 'A') & ~Reaching(word, 'Z' + 1)) >> 2;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_LETTER_WORDS_H_
