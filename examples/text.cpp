#include "examples/text.h"

#include <ortholan/der_helper.h>
#include <ortholan/name_decoder.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "examples/console.h"
#include "examples/failure.h"

namespace Example {

using namespace Ortholan;

std::wstring FromUtf8(const std::string& text) {
  if (text.empty()) return {};
  if (text.size() > std::numeric_limits<int>::max()) Fail(ERROR_INVALID_PARAMETER, "text too long");
  if (MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), static_cast<int>(text.size()),
                          nullptr, 0) == 0) {
    Fail(GetLastError(), "the text is not UTF-8");
  }
  return DerHelper::ToWString(text, CP_UTF8);
}

std::string ToUtf8(const std::wstring& text) { return DerHelper::ToString(text, CP_UTF8); }

std::string Repaired(const std::string& text) {
  return ToUtf8(DerHelper::ToWString(text, CP_UTF8));
}

char32_t TakeCharacter(std::string_view& rest) {
  const auto octet = [&rest](std::size_t i) -> char32_t {
    return static_cast<unsigned char>(rest[i]);
  };
  const std::size_t size = octet(0) < 0x80 ? 1 : octet(0) < 0xE0 ? 2 : octet(0) < 0xF0 ? 3 : 4;
  char32_t character = size == 1 ? octet(0) : octet(0) & (0x7FU >> size);
  for (std::size_t i = 1; i < size && i < rest.size(); ++i)
    character = character << 6 | (octet(i) & 0x3F);
  rest.remove_prefix(std::min(size, rest.size()));
  return character;
}

namespace {

struct Range {
  char32_t first, last;
};
// Unicode's controls, line and paragraph separators, and Default_Ignorable_Code_Point, which has
// marks of direction, joiners, fillers, variation selectors and tags; surrogates and noncharacters.
constexpr Range kHidden[] = {
    {0x0000, 0x001F},   {0x007F, 0x009F},   {0x00AD, 0x00AD},   {0x034F, 0x034F}, {0x061C, 0x061C},
    {0x115F, 0x1160},   {0x17B4, 0x17B5},   {0x180B, 0x180F},   {0x200B, 0x200F}, {0x2028, 0x202E},
    {0x2060, 0x206F},   {0x2800, 0x2800},   {0x3164, 0x3164},   {0xD800, 0xDFFF}, {0xFDD0, 0xFDEF},
    {0xFE00, 0xFE0F},   {0xFEFF, 0xFEFF},   {0xFFA0, 0xFFA0},   {0xFFF0, 0xFFFB}, {0xFFFE, 0xFFFF},
    {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A}, {0xE0000, 0xE0FFF},
};

std::string CharacterEscape(char32_t character) {
  char escape[16];
  const auto value = static_cast<unsigned long>(character);
  std::snprintf(escape, sizeof escape, character > 0xFFFF ? "\\U%08lX" : "\\u%04lX", value);
  return escape;
}

// `escape` tells what stands for a character, empty for the character itself.
template <typename Escape>
std::string Escaped(std::string_view text, Escape escape) {
  std::string shown;
  shown.reserve(text.size());
  while (!text.empty()) {
    const char* const start = text.data();
    const std::string escaped = escape(TakeCharacter(text));
    if (escaped.empty()) {
      shown.append(start, text.data());
    } else {
      shown += escaped;
    }
  }
  return shown;
}

std::string VisibleEscape(char32_t character) {
  if (character == U'\\') return "\\\\";
  return IsHidden(character) ? CharacterEscape(character) : std::string();
}

}  // namespace

bool IsHidden(char32_t character) {
  if (character >= 0x20 && character < 0x7F) return false;
  return std::any_of(std::begin(kHidden), std::end(kHidden), [character](const Range& range) {
    return character >= range.first && character <= range.last;
  });
}

std::string Visible(std::string_view text) { return Escaped(text, VisibleEscape); }

std::string VisibleInMessage(std::string_view text) {
  return Escaped(text, [](char32_t character) {
    return IsHidden(character) ? CharacterEscape(character) : std::string();
  });
}

std::string Output(const std::string& text) {
  if (!IsTerminal(Stream::kOutput)) return text;
  return Escaped(text, [](char32_t character) {
    const bool isLeft = character == U'\r' || character == U'\n' || character == U'\t';
    return isLeft ? std::string() : VisibleEscape(character);
  });
}

std::string Output(const std::wstring& text) { return Output(ToUtf8(text)); }

std::string Hex(std::string_view octets) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  text.reserve(2 * octets.size());
  for (const char octet : octets) {
    text += kDigits[static_cast<unsigned char>(octet) >> 4];
    text += kDigits[octet & 0x0F];
  }
  return text;
}

std::string Hex(const IdentObj& octets) {
  return Hex(std::string_view(reinterpret_cast<const char*>(octets.pbData), octets.cbData));
}

std::string SpacedHex(const IdentObj& bytes) {
  std::wstring text;
  X500NameDecoder::BlobToString(bytes, text);
  return ToUtf8(text);
}

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

int DigitValue(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  return -1;
}

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  while (!line.empty() && IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

std::optional<DWORD> ParseNumber(const std::string& text) {
  // strtoul would take white space and a sign.
  if (text.empty() || text[0] < '0' || text[0] > '9') return std::nullopt;
  char* end = nullptr;
  errno = 0;
  const unsigned long value = std::strtoul(text.c_str(), &end, 0);
  if (errno != 0 || end != text.c_str() + text.size()) return std::nullopt;
  if (value > std::numeric_limits<DWORD>::max()) return std::nullopt;
  return static_cast<DWORD>(value);
}

}  // namespace Example
