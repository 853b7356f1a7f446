#include "strict/certificates/pem.h"

#include <algorithm>

namespace Ortholan::strict {
namespace {

constexpr std::string_view kBegin = "-----BEGIN ";
constexpr std::string_view kEnd = "-----END ";
constexpr std::string_view kDashes = "-----";
constexpr std::string_view kBlanks = " \t\r\n\f\v";
constexpr std::string_view kLineEnds = "\r\n";  // either or both
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
  for (const char c : kBlanks) table.values[static_cast<uint8_t>(c)] = kBlank;
  table.values[static_cast<uint8_t>('=')] = kPadding;
  return table;
}

constexpr DigitTable kDigits = MakeDigits();

uint8_t DigitOf(char c) { return kDigits.values[static_cast<uint8_t>(c)]; }

// A line at `start` that is `front`, a label, five dashes and blanks.
bool ReadBoundary(std::string_view text, size_t start, std::string_view front,
                  std::string_view* label, size_t* end) {
  const size_t line_end = std::min(text.find_first_of(kLineEnds, start), text.size());
  std::string_view line = text.substr(start, line_end - start);
  if (line.substr(0, front.size()) != front) return false;
  line.remove_prefix(front.size());
  const size_t dashes = line.find(kDashes);
  if (dashes == std::string_view::npos) return false;
  const std::string_view behind = line.substr(dashes + kDashes.size());
  if (behind.find_first_not_of(kBlanks) != std::string_view::npos) return false;
  *label = line.substr(0, dashes);
  *end = line_end;
  return true;
}

// Where `front` next begins a line; npos for nowhere.
size_t FindLine(std::string_view text, size_t from, std::string_view front) {
  for (;;) {
    const size_t at = text.find(front, from);
    if (at == std::string_view::npos || at == 0) return at;
    if (kLineEnds.find(text[at - 1]) != std::string_view::npos) return at;
    from = at + 1;
  }
}

}  // namespace

bool PemReader::Next(PemBlock* block) {
  size_t begin;
  size_t body;
  std::string_view label;
  for (size_t from = offset_;; from = begin + kBegin.size()) {
    begin = FindLine(text_, from, kBegin);
    if (begin == std::string_view::npos) return false;
    if (ReadBoundary(text_, begin, kBegin, &label, &body)) break;
  }
  const size_t end = FindLine(text_, body, kDashes);
  std::string_view end_label;
  size_t behind;
  if (end == std::string_view::npos) return RefuseAt(ORTHOLAN_REASON_PEM_END, text_.size());
  if (!ReadBoundary(text_, end, kEnd, &end_label, &behind)) {
    return RefuseAt(ORTHOLAN_REASON_PEM_END, end);
  }
  if (end_label != label) return RefuseAt(ORTHOLAN_REASON_PEM_LABEL, end + kEnd.size());
  const std::string_view base64 = text_.substr(body, end - body);
  if (!CheckBase64(base64)) return false;
  *block = {label, base64};
  offset_ = behind;
  return true;
}

bool PemReader::CheckBase64(std::string_view base64) {
  const size_t start = static_cast<size_t>(base64.data() - text_.data());
  size_t digits = 0;
  size_t padding = 0;
  uint8_t last = 0;
  for (size_t i = 0; i < base64.size(); ++i) {
    const uint8_t digit = DigitOf(base64[i]);
    if (digit == kBlank) continue;
    if (digit == kNone || (digit != kPadding && padding != 0)) {
      return RefuseAt(ORTHOLAN_REASON_BASE64, start + i);
    }
    digit == kPadding ? ++padding : ++digits;
    if (digit != kPadding) last = digit;
  }
  // Bits of the last digit that stand for no octet are 0 (RFC 4648 3.5).
  const uint8_t unused = padding == 2 ? 0x0F : padding == 1 ? 0x03 : 0;
  const bool is_whole = (digits + padding) % 4 == 0 && padding <= 2 && (last & unused) == 0;
  return is_whole || RefuseAt(ORTHOLAN_REASON_BASE64, start + base64.size());
}

bool PemReader::RefuseAt(ortholan_reason reason, size_t at) {
  return Refuse(refusal_, reason, reinterpret_cast<const uint8_t*>(text_.data()) + at,
                text_.size() - at);
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
