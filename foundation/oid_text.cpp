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

bool ReadArc(std::string_view* rest, uint32_t* arc) {
  const char* const end = rest->data() + rest->size();
  const std::from_chars_result read = std::from_chars(rest->data(), end, *arc);
  if (read.ec != std::errc()) return false;
  rest->remove_prefix(static_cast<size_t>(read.ptr - rest->data()));
  return true;
}

bool SkipDot(std::string_view* rest) {
  if (rest->empty() || rest->front() != '.') return false;
  rest->remove_prefix(1);
  return true;
}

// Base 128, most significant group first.
void AppendGroups(uint32_t arc, SmallBuffer<BYTE, kMaxOidContent>* content) {
  BYTE groups[kMaxArcGroups];
  size_t count = 0;
  do {
    groups[count++] = static_cast<BYTE>(arc & 0x7F);
    arc >>= 7;
  } while (arc != 0);
  while (count > 1) content->push_back(groups[--count] | kMoreGroups);
  content->push_back(groups[0]);
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
