#include "foundation/oid_text.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace Ortholan {
namespace {

constexpr uint32_t kSecondArcs = 40;
constexpr BYTE kMoreGroups = 0x80;
constexpr size_t kMaxArcDigits = 10;
constexpr size_t kMaxArcGroups = 5;

void AppendArc(uint32_t arc, OidText* text) {
  const size_t before = text->size();
  char* first = text->Extend(kMaxArcDigits);
  const std::to_chars_result end = std::to_chars(first, first + kMaxArcDigits, arc);
  text->Truncate(before + static_cast<size_t>(end.ptr - first));
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
    if (value > std::numeric_limits<uint32_t>::max()) return false;
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

// Base 128, most significant group first. False where there is no room before `end`.
bool WriteGroups(uint32_t arc, const BYTE* end, BYTE** out) {
  size_t groups = 1;
  while (groups < kMaxArcGroups && arc >> (7 * groups) != 0) ++groups;
  if (groups > static_cast<size_t>(end - *out)) return false;
  while (--groups != 0) *(*out)++ = static_cast<BYTE>(arc >> (7 * groups) | kMoreGroups);
  *(*out)++ = static_cast<BYTE>(arc & 0x7F);
  return true;
}

}  // namespace

Status FormatOid(ByteView content, OidText* text) {
  text->clear();
  if (content.empty()) return Status::kCorrupt;
  AppendArc(content[0] / kSecondArcs, text);
  text->push_back('.');
  AppendArc(content[0] % kSecondArcs, text);
  uint32_t arc = 0;
  bool unfinished = false;
  for (const BYTE octet : content.From(1)) {
    if (arc > (std::numeric_limits<uint32_t>::max() >> 7)) return Status::kCorrupt;
    arc = arc << 7 | (octet & 0x7Fu);
    unfinished = (octet & kMoreGroups) != 0;
    if (unfinished) continue;
    text->push_back('.');
    AppendArc(arc, text);
    arc = 0;
  }
  return unfinished ? Status::kCorrupt : Status::kOk;
}

Status ParseOid(std::string_view dotted, SmallBuffer<BYTE, kMaxOidContent>* content) {
  const char* at = dotted.data();
  const char* const end = at + dotted.size();
  uint32_t first = 0;
  uint32_t second = 0;
  if (!ReadArc(&at, end, &first) || !SkipDot(&at, end) || !ReadArc(&at, end, &second)) {
    return Status::kNotEncodable;
  }
  BYTE* const octets = content->Take(kMaxOidContent);
  BYTE* out = octets;
  *out++ = static_cast<BYTE>(first * kSecondArcs + second);
  while (at != end) {
    uint32_t arc = 0;
    if (!SkipDot(&at, end) || !ReadArc(&at, end, &arc)) return Status::kNotEncodable;
    if (!WriteGroups(arc, octets + kMaxOidContent, &out)) return Status::kNotEncodable;
  }
  content->Truncate(static_cast<size_t>(out - octets));
  return Status::kOk;
}

}  // namespace Ortholan
