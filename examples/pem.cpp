#include "examples/pem.h"

#include <algorithm>
#include <iterator>

#include "examples/text.h"

namespace Example {
namespace {

constexpr std::string_view kBegin = "-----BEGIN ";
constexpr std::string_view kEnd = "-----END ";
constexpr std::string_view kClose = "-----";

// The last holds more octets behind the certificate.
constexpr std::string_view kLabels[] = {"CERTIFICATE", "X509 CERTIFICATE", "TRUSTED CERTIFICATE"};

// Cuts the first line from `rest`, without its end.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  while (!line.empty() && IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

bool StartsWith(std::string_view line, std::string_view prefix) {
  return line.substr(0, prefix.size()) == prefix;
}

// What stands between `prefix` and the closing hyphens.
std::string_view Label(std::string_view line, std::string_view prefix) {
  line.remove_prefix(prefix.size());
  const std::size_t close = line.find(kClose);
  return line.substr(0, close);
}

bool IsCertificate(std::string_view label) {
  return std::find(std::begin(kLabels), std::end(kLabels), label) != std::end(kLabels);
}

// -1 for a character outside the alphabet.
int Base64Value(char character) {
  static constexpr std::string_view kAlphabet =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const std::size_t position = kAlphabet.find(character);
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

bool HasPemBlock(std::string_view file) {
  return StartsWith(file, kBegin) || file.find("\n-----BEGIN ") != std::string_view::npos;
}

std::size_t ForEachPemBlock(std::string_view file, const CertificateFound& found,
                            const CertificateBad& bad) {
  const std::size_t whole = file.size();
  std::size_t number = 0;
  bool inside = false;
  std::string_view label;
  const char* text = nullptr;
  while (!file.empty()) {
    const char* const lineStart = file.data();
    const std::string_view line = TakeLine(file);
    if (StartsWith(line, kBegin)) {
      if (inside && IsCertificate(label)) bad(++number, "a PEM block without an end");
      inside = true;
      label = Label(line, kBegin);
      text = file.data();
    } else if (inside && StartsWith(line, kEnd)) {
      inside = false;
      if (!IsCertificate(label)) continue;
      const auto size = static_cast<std::size_t>(lineStart - text);
      const std::optional<std::string> bytes = FromBase64({text, size});
      ++number;
      if (Label(line, kEnd) != label) {
        bad(number, "a PEM block that ends with another label");
      } else if (!bytes) {
        bad(number, "a PEM block that is no base64");
      } else {
        found(number, *bytes, whole - file.size());
      }
    }
  }
  if (inside && IsCertificate(label)) bad(++number, "a PEM block without an end");
  return number;
}

}  // namespace Example
