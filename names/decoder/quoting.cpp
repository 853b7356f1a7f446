#include "names/decoder/quoting.h"

#include <ortholan/name_decoder.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace Ortholan {
namespace {

constexpr std::wstring_view kAuxSymbols = L"#;,+\"\\=<>\n\r";
constexpr wchar_t kQuote = L'"';
constexpr wchar_t kApostrophe = L'\'';

constexpr std::array<bool, 0x80> MakeQuotedCharacters() {
  std::array<bool, 0x80> quoted = {};
  for (const wchar_t c : kAuxSymbols) quoted[static_cast<size_t>(c)] = true;
  quoted[static_cast<size_t>(kApostrophe)] = true;
  return quoted;
}
constexpr std::array<bool, 0x80> kQuotedCharacters = MakeQuotedCharacters();

bool CallsForQuotes(wchar_t c) {
  const auto index = static_cast<uint32_t>(c);
  return index < kQuotedCharacters.size() && kQuotedCharacters[index];
}

// The Unicode white space that both platforms agree on, whatever the locale.
bool IsWhiteSpace(wchar_t character) {
  const auto c = static_cast<uint32_t>(character);
  if (c < 0x80) return c == 0x20 || (c >= 0x09 && c <= 0x0D);
  switch (c) {
    case 0x00A0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
      return true;
    default:
      return c >= 0x2000 && c <= 0x200A;
  }
}

bool IsPlain(std::wstring_view value) {
  if (value.empty() || IsWhiteSpace(value.front()) || IsWhiteSpace(value.back())) return false;
  return std::none_of(value.begin(), value.end(), CallsForQuotes);
}

}  // namespace

const std::wstring X500NameDecoder::AuxSymbols(kAuxSymbols);

void EscapeAttrAuxSym(size_t start, std::wstring* text) {
  if (!IsPlain(std::wstring_view(*text).substr(start))) QuoteAttr(start, text);
}

void QuoteAttr(size_t start, std::wstring* text) {
  const auto value = text->begin() + static_cast<std::ptrdiff_t>(start);
  const auto quotes = static_cast<size_t>(std::count(value, text->end(), kQuote));
  size_t from = text->size();
  text->resize(text->size() + quotes + 2);
  size_t to = text->size();
  // From the back, so that nothing is overwritten before it is read.
  (*text)[--to] = kQuote;
  while (from > start) {
    const wchar_t c = (*text)[--from];
    (*text)[--to] = c;
    if (c == kQuote) (*text)[--to] = kQuote;
  }
  (*text)[start] = kQuote;
}

}  // namespace Ortholan
