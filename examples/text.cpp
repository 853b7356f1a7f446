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

namespace {

struct Range {
  wchar_t first, last;
};
// Controls, line and paragraph separators, embeddings, overrides and isolates.
constexpr Range kHidden[] = {
    {0x0000, 0x001F}, {0x007F, 0x009F}, {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};

}  // namespace

bool IsHidden(wchar_t unit) {
  return std::any_of(std::begin(kHidden), std::end(kHidden), [unit](const Range& range) {
    return unit >= range.first && unit <= range.last;
  });
}

std::wstring UnitEscape(wchar_t unit) {
  const auto value = static_cast<unsigned>(unit);
  return L"\\u" + X500NameDecoder::ToHex(static_cast<unsigned char>(value >> 8)) +
         X500NameDecoder::ToHex(static_cast<unsigned char>(value & 0xFF));
}

namespace {

template <typename IsEscaped>
std::string Escaped(const std::wstring& text, IsEscaped isEscaped) {
  std::wstring shown;
  shown.reserve(text.size());
  for (const wchar_t unit : text) {
    if (isEscaped(unit)) {
      shown += UnitEscape(unit);
    } else {
      shown += unit;
    }
  }
  return ToUtf8(shown);
}

}  // namespace

std::string Visible(const std::wstring& text) { return Escaped(text, IsHidden); }

std::string Output(const std::wstring& text) {
  if (!IsTerminal(Stream::kOutput)) return ToUtf8(text);
  return Escaped(text, [](wchar_t unit) {
    return unit != L'\r' && unit != L'\n' && unit != L'\t' && IsHidden(unit);
  });
}

std::string Hex(const IdentObj& bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  text.reserve(std::size_t{2} * bytes.cbData);
  for (DWORD i = 0; i < bytes.cbData; ++i) {
    text += kDigits[bytes.pbData[i] >> 4];
    text += kDigits[bytes.pbData[i] & 0x0F];
  }
  return text;
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
