// When a value is put in double quotes.
//
//   std::wstring text = L"CN=";
//   text += L"a, b";
//   EscapeAttrAuxSym(3, &text);  // CN="a, b"
#ifndef ORTHOLAN_NAMES_DECODER_WHEN_QUOTED_H_
#define ORTHOLAN_NAMES_DECODER_WHEN_QUOTED_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "names/doubled_quotes.h"

namespace Ortholan {

// Separators, quotes and line ends: characters that a value is not shown bare with.
constexpr std::wstring_view kAuxSymbols = L"#;,+\"\\=<>\n\r";

// By ASCII character: whether it puts a value in quotes wherever it stands, or at an end.
enum QuoteClass : unsigned char { kQuotedAnywhere = 1, kQuotedAtEnds = 2 };

constexpr std::array<unsigned char, 0x80> MakeQuoteClasses() {
  std::array<unsigned char, 0x80> classes = {};
  for (const wchar_t c : kAuxSymbols) classes[static_cast<size_t>(c)] = kQuotedAnywhere;
  classes['\''] = kQuotedAnywhere;
  for (size_t c = 0x09; c <= 0x0D; ++c) classes[c] |= kQuotedAtEnds;
  classes[' '] = kQuotedAtEnds;
  return classes;
}
inline constexpr std::array<unsigned char, 0x80> kQuoteClasses = MakeQuoteClasses();

inline unsigned QuoteClassesOf(char ascii) {
  return kQuoteClasses.begin()[static_cast<unsigned char>(ascii)];
}
// Beyond ASCII the white space of Unicode that both platforms agree on, whatever the locale.
unsigned QuoteClassesOf(wchar_t c);

// Whether a value is put in quotes: unless it is not empty, free of apostrophes and of
// X500NameDecoder::AuxSymbols, and without white space at either end. `seen` has the classes of all
// its characters.
template <class Char>
bool CallsForQuotes(std::basic_string_view<Char> value, unsigned seen) {
  if (value.empty() || (seen & kQuotedAnywhere) != 0) return true;
  return ((QuoteClassesOf(value.front()) | QuoteClassesOf(value.back())) & kQuotedAtEnds) != 0;
}

// Quotes the value that `text` holds from `start` to its end where it calls for that.
void EscapeAttrAuxSym(size_t start, std::wstring* text);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_WHEN_QUOTED_H_
