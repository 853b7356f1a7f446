// What each character does to an unquoted value under the encoder's options: the alphabets that it
// leaves possible, and whether it ends the value.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_CHARS_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_CHARS_H_

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "names/encoder/alphabets.h"
#include "names/separators.h"

namespace Ortholan {

// One table for both questions, read once a character.
class ValueChars {
 public:
  // A character's alphabets (CharClass), negative where it goes on with the value. The conjunction
  // of a value's entries has the alphabets of the whole, and a delimiter's leaves them as they are.
  using Entry = int8_t;
  static constexpr Entry kAll = -1;

  explicit constexpr ValueChars(std::string_view delimiters) {
    for (Entry& entry : entries_) entry = kGoesOn;
    for (size_t c = 0; c < kAsciiCount; ++c) {
      entries_[c] = static_cast<Entry>(kGoesOn | kCharClasses[c]);
    }
    for (const char c : delimiters) entries_[static_cast<size_t>(c)] = kAll & ~kGoesOn;
  }

  Entry Of(char c) const { return entries_[static_cast<unsigned char>(c)]; }
  Entry Of(wchar_t c) const {
    return entries_[std::min(static_cast<uint32_t>(c), uint32_t{kAsciiCount})];
  }

  template <typename Char>
  bool Ends(Char c) const {
    return Of(c) >= 0;
  }

 private:
  static constexpr Entry kGoesOn = -128;

  Entry entries_[256] = {};
};

// By the rows of kReadSeparators.
template <size_t... kRow>
constexpr std::array<ValueChars, sizeof...(kRow)> MakeValueChars(std::index_sequence<kRow...>) {
  return {ValueChars(kReadSeparators[kRow].text)...};
}
inline constexpr auto kValueChars =
    MakeValueChars(std::make_index_sequence<std::size(kReadSeparators)>());

inline const ValueChars& ValueCharsFor(DWORD options) {
  size_t row = 0;
  while (row + 1 < kValueChars.size() && (options & kReadSeparators[row].option) == 0) ++row;
  return kValueChars[row];
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_CHARS_H_
