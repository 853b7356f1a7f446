#include "names/decoder/when_quoted.h"

#include <ortholan/name_decoder.h>

#include <cstdint>

namespace Ortholan {
namespace {

bool IsWhiteSpaceBeyondAscii(uint32_t c) {
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

bool IsQuotedAnywhere(wchar_t c) {
  const auto index = static_cast<uint32_t>(c);
  return index < kQuoteClasses.size() && (kQuoteClasses[index] & kQuotedAnywhere) != 0;
}

}  // namespace

const std::wstring X500NameDecoder::AuxSymbols(kAuxSymbols);

unsigned QuoteClassesOf(wchar_t c) {
  const auto index = static_cast<uint32_t>(c);
  if (index < kQuoteClasses.size()) return kQuoteClasses[index];
  return IsWhiteSpaceBeyondAscii(index) ? kQuotedAtEnds : 0;
}

void EscapeAttrAuxSym(size_t start, std::wstring* text) {
  const std::wstring_view value = std::wstring_view(*text).substr(start);
  const bool anywhere = std::any_of(value.begin(), value.end(), IsQuotedAnywhere);
  if (CallsForQuotes(value, anywhere ? kQuotedAnywhere : 0)) QuoteFrom(start, text);
}

}  // namespace Ortholan
