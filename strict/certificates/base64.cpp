#include "strict/certificates/base64.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kPadding = 64;
constexpr uint8_t kBlank = 65;
constexpr uint8_t kNone = 0xFF;

struct DigitTable {
  uint8_t values[256];
};

constexpr DigitTable MakeDigits() {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  DigitTable table = {};
  for (uint8_t& value : table.values) value = kNone;
  for (size_t i = 0; i < kDigits.size(); ++i) {
    table.values[static_cast<uint8_t>(kDigits[i])] = static_cast<uint8_t>(i);
  }
  for (const char c : kBase64Blanks) table.values[static_cast<uint8_t>(c)] = kBlank;
  table.values[static_cast<uint8_t>('=')] = kPadding;
  return table;
}

constexpr DigitTable kDigits = MakeDigits();

uint8_t DigitOf(char c) { return kDigits.values[static_cast<uint8_t>(c)]; }

}  // namespace

bool CheckBase64(std::string_view base64, size_t* fault) {
  size_t digits = 0;
  size_t padding = 0;
  uint8_t last = 0;
  for (size_t i = 0; i < base64.size(); ++i) {
    const uint8_t digit = DigitOf(base64[i]);
    if (digit == kBlank) continue;
    *fault = i;
    if (digit == kNone || (digit != kPadding && padding != 0)) return false;
    digit == kPadding ? ++padding : ++digits;
    if (digit != kPadding) last = digit;
  }
  *fault = base64.size();
  // Bits of the last digit that stand for no octet are 0 (RFC 4648 3.5).
  const uint8_t unused = padding == 2 ? 0x0F : padding == 1 ? 0x03 : 0;
  return (digits + padding) % 4 == 0 && padding <= 2 && (last & unused) == 0;
}

void PutBase64Octets(std::string_view base64, Output* out) {
  uint32_t bits = 0;
  unsigned count = 0;
  for (const char c : base64) {
    const uint8_t digit = DigitOf(c);
    if (digit >= kPadding) continue;
    bits = bits << 6 | digit;
    count += 6;
    if (count < 8) continue;
    count -= 8;
    out->Put(static_cast<uint8_t>(bits >> count));
  }
}

}  // namespace Ortholan::strict
