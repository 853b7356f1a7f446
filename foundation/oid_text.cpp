#include "foundation/oid_text.h"

#include <charconv>
#include <cstdint>
#include <limits>

#include "foundation/ascii.h"

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

// Reads decimal digits at the front of `*rest`. False where there are none or the arc passes 32
// bits.
bool ReadArc(std::string_view* rest, uint32_t* arc) {
  uint64_t value = 0;
  size_t digits = 0;
  for (; digits < rest->size() && IsAsciiDigit((*rest)[digits]); ++digits) {
    value = value * 10 + static_cast<uint64_t>((*rest)[digits] - '0');
    if (value > std::numeric_limits<uint32_t>::max()) return false;
  }
  rest->remove_prefix(digits);
  *arc = static_cast<uint32_t>(value);
  return digits != 0;
}

bool SkipDot(std::string_view* rest) {
  if (rest->empty() || rest->front() != '.') return false;
  rest->remove_prefix(1);
  return true;
}

// Base 128, most significant group first.
void AppendGroups(uint32_t arc, SmallBuffer<BYTE, kMaxOidContent>* content) {
  if (arc < kMoreGroups) {
    *content->Extend(1) = static_cast<BYTE>(arc);
    return;
  }
  size_t groups = 2;
  while (groups < kMaxArcGroups && arc >> (7 * groups) != 0) ++groups;
  BYTE* out = content->Extend(groups);
  while (--groups != 0) *out++ = static_cast<BYTE>(arc >> (7 * groups) | kMoreGroups);
  *out = static_cast<BYTE>(arc & 0x7F);
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
  content->clear();
  uint32_t first = 0;
  uint32_t second = 0;
  if (!ReadArc(&dotted, &first) || !SkipDot(&dotted) || !ReadArc(&dotted, &second)) {
    return Status::kNotEncodable;
  }
  content->push_back(static_cast<BYTE>(first * kSecondArcs + second));
  while (!dotted.empty()) {
    uint32_t arc = 0;
    if (!SkipDot(&dotted) || !ReadArc(&dotted, &arc)) return Status::kNotEncodable;
    AppendGroups(arc, content);
    if (content->size() > kMaxOidContent) return Status::kNotEncodable;
  }
  return Status::kOk;
}

}  // namespace Ortholan
