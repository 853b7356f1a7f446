#include "foundation/oid_text.h"

#include <charconv>
#include <cstdint>
#include <limits>

#include "bytes/base128.h"

namespace Ortholan {
namespace {

constexpr uint32_t kSecondArcs = 40;
constexpr size_t kMaxArcDigits = 10;
constexpr uint32_t kMaxArc = std::numeric_limits<uint32_t>::max();

void AppendDotAndArc(uint32_t arc, OidText* text) {
  const size_t before = text->size();
  char* const dot = text->Extend(1 + kMaxArcDigits);
  *dot = '.';
  const std::to_chars_result end = std::to_chars(dot + 1, dot + 1 + kMaxArcDigits, arc);
  text->Truncate(before + static_cast<size_t>(end.ptr - dot));
}

// Reads decimal digits from `*at` on. False where there are none or the arc passes 32 bits.
bool ReadArc(const char** at, const char* end, uint32_t* arc) {
  const char* const first = *at;
  const char* next = first;
  uint64_t value = 0;
  for (; next != end; ++next) {
    const unsigned digit = static_cast<unsigned char>(*next) - unsigned{'0'};
    if (digit > 9) break;
    value = value * 10 + digit;
    if (value > kMaxArc) return false;
  }
  *at = next;
  *arc = static_cast<uint32_t>(value);
  return next != first;
}

bool SkipDot(const char** at, const char* end) {
  if (*at == end || **at != '.') return false;
  ++*at;
  return true;
}

}  // namespace

Status FormatOid(ByteView content, OidText* text) {
  text->clear();
  if (content.empty()) return Status::kCorrupt;
  text->push_back(static_cast<char>('0' + content[0] / kSecondArcs));
  uint64_t arc = content[0] % kSecondArcs;
  for (size_t position = 1;;) {
    AppendDotAndArc(static_cast<uint32_t>(arc), text);
    if (position == content.size) return Status::kOk;
    if (ReadBase128(content, kMaxArc, &position, &arc) != Base128Result::kDone) {
      return Status::kCorrupt;
    }
  }
}

Status ParseOid(std::string_view dotted, SmallBuffer<uint8_t, kMaxOidContent>* content) {
  const char* at = dotted.data();
  const char* const end = at + dotted.size();
  uint32_t first = 0;
  uint32_t second = 0;
  if (!ReadArc(&at, end, &first) || !SkipDot(&at, end) || !ReadArc(&at, end, &second)) {
    return Status::kNotEncodable;
  }
  uint8_t* const octets = content->Take(kMaxOidContent);
  uint8_t* out = octets;
  *out++ = static_cast<uint8_t>(first * kSecondArcs + second);
  while (at != end) {
    uint32_t arc = 0;
    if (!SkipDot(&at, end) || !ReadArc(&at, end, &arc)) return Status::kNotEncodable;
    const size_t room = kMaxOidContent - static_cast<size_t>(out - octets);
    if (Base128Size(arc) > room) return Status::kNotEncodable;
    out = WriteBase128(out, arc);
  }
  content->Truncate(static_cast<size_t>(out - octets));
  return Status::kOk;
}

}  // namespace Ortholan
