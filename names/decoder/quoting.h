// Values in double quotes, where their characters call for them.
#ifndef ORTHOLAN_NAMES_DECODER_QUOTING_H_
#define ORTHOLAN_NAMES_DECODER_QUOTING_H_

#include <array>
#include <string>
#include <string_view>

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

// Quotes the value that `text` holds from `start` to its end, unless it is plain: not empty, free
// of apostrophes and of the characters of X500NameDecoder::AuxSymbols, and without white space at
// either end.
void EscapeAttrAuxSym(size_t start, std::wstring* text);

// Doubles the double quotes of that value and puts one at either end.
void QuoteAttr(size_t start, std::wstring* text);

// Quotes the `size` characters at `value`, which has room for as many as QuotedSize tells.
size_t QuotedSize(const char* value, size_t size);
void QuoteAttr(char* value, size_t size);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_QUOTING_H_
