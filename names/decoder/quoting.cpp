#include "names/decoder/quoting.h"

#include <ortholan/name_decoder.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace Ortholan {
namespace {

constexpr char kQuote = '"';

bool CallsForQuotes(wchar_t c) {
  const auto index = static_cast<uint32_t>(c);
  return index < kQuoteClasses.size() && (kQuoteClasses[index] & kQuotedAnywhere) != 0;
}

// The Unicode white space that both platforms agree on, whatever the locale.
bool IsWhiteSpace(wchar_t character) {
  const auto c = static_cast<uint32_t>(character);
  if (c < 0x80) return (kQuoteClasses[c] & kQuotedAtEnds) != 0;
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

// From the back, so that nothing is overwritten before it is read.
template <typename Char>
void Quote(Char* value, size_t size, size_t quotedSize) {
  Char* from = value + size;
  Char* to = value + quotedSize;
  *--to = Char(kQuote);
  while (from != value) {
    const Char c = *--from;
    *--to = c;
    if (c == Char(kQuote)) *--to = c;
  }
  *value = Char(kQuote);
}

}  // namespace

const std::wstring X500NameDecoder::AuxSymbols(kAuxSymbols);

void EscapeAttrAuxSym(size_t start, std::wstring* text) {
  if (!IsPlain(std::wstring_view(*text).substr(start))) QuoteAttr(start, text);
}

size_t QuotedSize(const char* value, size_t size) {
  return size + static_cast<size_t>(std::count(value, value + size, kQuote)) + 2;
}

void QuoteAttr(char* value, size_t size) { Quote(value, size, QuotedSize(value, size)); }

void QuoteAttr(size_t start, std::wstring* text) {
  const size_t size = text->size() - start;
  const auto quotes = static_cast<size_t>(
      std::count(text->begin() + static_cast<std::ptrdiff_t>(start), text->end(), wchar_t{kQuote}));
  text->resize(text->size() + quotes + 2);
  Quote(text->data() + start, size, size + quotes + 2);
}

}  // namespace Ortholan
