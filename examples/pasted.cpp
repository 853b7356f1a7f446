#include "examples/pasted.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/pem.h"
#include "examples/text.h"

namespace Example {
namespace {

bool IsMark(char character) { return character == ':' || character == ','; }

bool StartsPrefix(std::string_view text) {
  return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

// Digits and what may stand between them; not whether they come in pairs.
bool IsHexText(std::string_view text) {
  std::size_t digits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (StartsPrefix(text.substr(i))) {
      ++i;
    } else if (DigitValue(text[i]) >= 0) {
      ++digits;
    } else if (!IsBlank(text[i]) && !IsMark(text[i])) {
      return false;
    }
  }
  return digits != 0;
}

// Whether there is nothing in it that a person could not have typed.
bool IsText(std::string_view content) {
  return std::all_of(content.begin(), content.end(), [](char character) {
    return IsBlank(character) || (character >= 0x20 && character < 0x7F);
  });
}

std::string OneBlock(std::string_view text) {
  std::vector<PemBlock> blocks;
  ForEachPemBlock(text, [&blocks](const PemBlock& block) { blocks.push_back(block); });
  if (blocks.size() != 1) {
    Refuse(std::to_string(blocks.size()) + " PEM blocks where one is wanted");
  }
  if (blocks[0].fault != nullptr) Refuse(blocks[0].fault);
  return std::move(blocks[0].octets);
}

// Lines of which each holds an encoding of its own.
std::size_t CountEncodedLines(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.empty()) continue;
    const std::optional<std::string> octets = IsHexText(line) ? FromHex(line) : FromBase64(line);
    if (!octets || OnlyElement(*octets).whole.empty()) return 0;
    ++count;
  }
  return count;
}

[[noreturn]] void RefuseSeveral(std::size_t count) {
  Refuse(std::to_string(count) +
         " encodings where one is wanted; `x509name decode --lines` takes a name a line");
}

}  // namespace

std::optional<std::string> FromHex(std::string_view text) {
  std::string octets;
  octets.reserve(text.size() / 2);
  int high = -1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPrefix = high < 0 && StartsPrefix(text.substr(i));
    if (isPrefix) ++i;
    if (isPrefix || IsBlank(text[i]) || (high < 0 && IsMark(text[i]))) continue;
    const int value = DigitValue(text[i]);
    if (value < 0) return std::nullopt;
    if (high >= 0) octets += static_cast<char>(high * 16 + value);
    high = high < 0 ? value : -1;
  }
  if (high >= 0) return std::nullopt;
  return octets;
}

std::optional<std::string> FromPastedText(std::string_view text) {
  if (HasPemBlock(text)) return OneBlock(text);
  if (!IsHexText(text)) return FromBase64(text);
  std::optional<std::string> octets = FromHex(text);
  if (!octets) Refuse("hexadecimal digits that do not make whole octets");
  return octets;
}

std::string FromPasted(const std::string& content) {
  if (content.empty() || !(IsText(content) || HasPemBlock(content))) return content;
  const std::size_t lines = CountEncodedLines(content);
  if (lines > 1) RefuseSeveral(lines);
  std::optional<std::string> octets = FromPastedText(content);
  if (!octets) Refuse("a text that is neither hexadecimal, base64 nor PEM");
  return *std::move(octets);
}

void RequireOne(std::string_view octets) {
  bool isWhole = false;
  const std::vector<Der> elements = Elements(octets, &isWhole);
  if (elements.empty() || (isWhole && elements.size() == 1)) return;
  if (isWhole) RefuseSeveral(elements.size());
  const std::size_t first = elements[0].whole.size();
  Refuse(LeftOver(octets.size() - first, first));
}

std::string LeftOver(std::size_t count, std::size_t size) {
  return std::to_string(count) + (count == 1 ? " octet is" : " octets are") +
         " left over behind the encoding of " + std::to_string(size);
}

}  // namespace Example
