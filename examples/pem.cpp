#include "examples/pem.h"

#include "examples/text.h"

namespace Example {
namespace {

constexpr std::string_view kClose = "-----";
constexpr std::string_view kBase64 =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

bool StartsWith(std::string_view line, std::string_view prefix) {
  return line.substr(0, prefix.size()) == prefix;
}

// What stands between `prefix` and the closing hyphens.
std::string_view Label(std::string_view line, std::string_view prefix) {
  line.remove_prefix(prefix.size());
  const std::size_t close = line.find(kClose);
  return line.substr(0, close);
}

// -1 for a character outside the alphabet.
int Base64Value(char character) {
  const std::size_t position = kBase64.find(character);
  return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

}  // namespace

std::optional<std::string> FromBase64(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3);
  unsigned long bits = 0;
  std::size_t digits = 0;
  std::size_t padding = 0;
  for (const char character : text) {
    if (IsBlank(character)) continue;
    if (character == '=') {
      ++padding;
      continue;
    }
    const int value = Base64Value(character);
    if (value < 0 || padding != 0) return std::nullopt;
    bits = bits << 6 | static_cast<unsigned long>(value);
    if (++digits % 4 == 0) {
      for (const int shift : {16, 8, 0}) bytes += static_cast<char>(bits >> shift & 0xFF);
      bits = 0;
    }
  }
  const std::size_t left = digits % 4;
  if (left == 1 || padding != (4 - left) % 4) return std::nullopt;
  if (left >= 2) bytes += static_cast<char>(bits >> (left == 2 ? 4 : 10) & 0xFF);
  if (left == 3) bytes += static_cast<char>(bits >> 2 & 0xFF);
  return bytes;
}

std::string Base64Lines(std::string_view octets) {
  constexpr std::size_t kLineOctets = 48;  // 64 characters
  constexpr std::size_t kGroup = 3;
  std::string text;
  for (std::size_t i = 0; i < octets.size(); i += kGroup) {
    const std::string_view group = octets.substr(i, kGroup);
    unsigned long bits = 0;
    for (std::size_t at = 0; at < kGroup; ++at) {
      bits = bits << 8 | (at < group.size() ? static_cast<unsigned char>(group[at]) : 0u);
    }
    for (std::size_t digit = 0; digit <= kGroup; ++digit) {
      text += digit <= group.size() ? kBase64[bits >> (18 - 6 * digit) & 63] : '=';
    }
    const bool endsLine = (i + kGroup) % kLineOctets == 0 || i + kGroup >= octets.size();
    if (endsLine) text += '\n';
  }
  return text;
}

std::string_view PemLabel(std::string_view block) { return Label(block, kPemBegin); }

bool HasPemBlock(std::string_view text) {
  return StartsWith(text, kPemBegin) || text.find("\n-----BEGIN ") != std::string_view::npos;
}

namespace {

// A block whose lines end here, with what its closing line says.
PemBlock Closed(std::string_view label, std::string_view lines, std::string_view closing) {
  PemBlock block{label, {}, nullptr, 0};
  std::optional<std::string> octets = FromBase64(lines);
  if (Label(closing, kPemEnd) != label) {
    block.fault = "a PEM block that ends with another label";
  } else if (!octets) {
    block.fault = "a PEM block that is no base64";
  } else {
    block.octets = *std::move(octets);
  }
  return block;
}

}  // namespace

void ForEachPemBlock(std::string_view text, const std::function<void(const PemBlock&)>& found) {
  std::string_view rest = text;
  bool isInside = false;
  std::string_view label;
  const char* lines = nullptr;
  const auto report = [&](PemBlock block) {
    block.end = text.size() - rest.size();
    found(block);
  };
  const auto unclosed = [&] { report({label, {}, "a PEM block without an end", 0}); };
  while (!rest.empty()) {
    const char* const lineStart = rest.data();
    const std::string_view line = TakeLine(rest);
    if (StartsWith(line, kPemBegin)) {
      if (isInside) unclosed();
      isInside = true;
      label = Label(line, kPemBegin);
      lines = rest.data();
    } else if (isInside && StartsWith(line, kPemEnd)) {
      isInside = false;
      report(Closed(label, {lines, static_cast<std::size_t>(lineStart - lines)}, line));
    }
  }
  if (isInside) unclosed();
}

}  // namespace Example
