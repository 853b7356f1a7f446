#include "strict/certificates/pem.h"

#include <algorithm>

#include "strict/certificates/base64.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kBegin = "-----BEGIN ";
constexpr std::string_view kEnd = "-----END ";
constexpr std::string_view kDashes = "-----";
constexpr std::string_view kLineEnds = "\r\n";  // either or both

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
  if (behind.find_first_not_of(kBase64Blanks) != std::string_view::npos) return false;
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
  size_t fault = 0;
  if (!CheckBase64(base64, &fault)) return RefuseAt(ORTHOLAN_REASON_BASE64, body + fault);
  *block = {label, base64};
  offset_ = behind;
  return true;
}

bool PemReader::RefuseAt(ortholan_reason reason, size_t at) {
  return RefuseText(refusal_, reason, text_.substr(at));
}

}  // namespace Ortholan::strict
