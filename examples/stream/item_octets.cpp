#include "examples/stream/item_octets.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "examples/failure.h"
#include "examples/pasted.h"

namespace Example {
namespace {

constexpr std::size_t kStep = 64;

// The values of digits of either case, each character of `text` for itself; false where one is no
// digit. Without branches and tables, so that the compiler takes many at once.
bool ReadDigits(const char* text, std::size_t size, unsigned char* digits) {
  unsigned char faults = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const auto decimal = static_cast<unsigned char>(text[i] - '0');
    const auto letter = static_cast<unsigned char>((text[i] | 0x20) - 'a');
    digits[i] = static_cast<unsigned char>(decimal < 10 ? decimal : letter + 10);
    faults |= static_cast<unsigned char>(decimal >= 10 && letter >= 6 ? 1 : 0);
  }
  return faults == 0;
}

void JoinDigits(const unsigned char* digits, std::size_t size, char* out) {
  for (std::size_t i = 0; i < size / 2; ++i) {
    out[i] = static_cast<char>(digits[2 * i] << 4 | digits[2 * i + 1]);
  }
}

// Pairs of digits alone.
bool ReadHex(std::string_view text, std::string& buffer) {
  if (text.empty() || text.size() % 2 != 0) return false;
  buffer.resize(text.size() / 2);
  unsigned char digits[kStep];
  if (text.size() < kStep) {
    if (!ReadDigits(text.data(), text.size(), digits)) return false;
    JoinDigits(digits, text.size(), buffer.data());
    return true;
  }
  // The last block may lie over the one before.
  const std::size_t last = text.size() - kStep;
  for (std::size_t i = 0;; i = std::min(i + kStep, last)) {
    if (!ReadDigits(text.data() + i, kStep, digits)) return false;
    JoinDigits(digits, kStep, buffer.data() + i / 2);
    if (i == last) return true;
  }
}

constexpr unsigned char kNoDigit = 0xFF;

// The value of each character as a digit of base64.
constexpr std::array<unsigned char, 256> Base64Digits() {
  constexpr std::string_view kAlphabet =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::array<unsigned char, 256> digits{};
  for (unsigned char& digit : digits) digit = kNoDigit;
  for (std::size_t i = 0; i < kAlphabet.size(); ++i) {
    digits[static_cast<unsigned char>(kAlphabet[i])] = static_cast<unsigned char>(i);
  }
  return digits;
}

constexpr std::array<unsigned char, 256> kBase64 = Base64Digits();

// Groups of four digits alone, without padding, that could not be hexadecimal: the first octet of a
// SEQUENCE makes an M in front.
bool ReadBase64(std::string_view text, std::string& buffer) {
  if (text.size() % 4 != 0 || text.substr(0, 1) != "M") return false;
  buffer.resize(text.size() / 4 * 3);
  char* out = buffer.data();
  unsigned faults = 0;
  for (std::size_t i = 0; i < text.size(); i += 4) {
    unsigned bits = 0;
    for (std::size_t k = 0; k < 4; ++k) {
      const unsigned digit = kBase64[static_cast<unsigned char>(text[i + k])];
      faults |= digit;
      bits = bits << 6 | digit;
    }
    for (const unsigned shift : {16U, 8U, 0U}) *out++ = static_cast<char>(bits >> shift);
  }
  return faults <= 0x3F;
}

ortholan_octets View(const std::string& buffer) {
  return {reinterpret_cast<const uint8_t*>(buffer.data()), buffer.size()};
}

}  // namespace

ortholan_octets OctetsOfText(std::string_view text, std::string& buffer) {
  if (ReadHex(text, buffer) || ReadBase64(text, buffer)) return View(buffer);
  std::optional<std::string> octets = FromPastedText(text);
  if (!octets) Refuse("a text that is neither hexadecimal, base64 nor PEM");
  buffer = *std::move(octets);
  return View(buffer);
}

ortholan_octets OctetsOf(const Item& item, std::string& buffer) {
  if (item.framing != Framing::kDer) return OctetsOfText(item.text, buffer);
  return {reinterpret_cast<const uint8_t*>(item.text.data()), item.text.size()};
}

bool TakeColumn(std::string_view& rest, std::string_view* column) {
  if (rest.empty()) return false;
  *column = rest.substr(0, rest.find('\t'));
  rest.remove_prefix(column->size());
  if (!rest.empty()) rest.remove_prefix(1);
  return true;
}

void SplitColumns(const Item& item, std::string_view* columns, std::size_t count) {
  std::string_view rest = item.text;
  std::size_t found = 0;
  for (std::string_view column; TakeColumn(rest, &column); ++found) {
    if (found < count) columns[found] = column;
  }
  if (item.framing != Framing::kLines) Refuse("columns are wanted, and this is one certificate");
  if (found != count) {
    Refuse(std::to_string(count) + " columns are wanted, separated by tabs; there is " +
           std::to_string(found));
  }
}

}  // namespace Example
