#include "examples/stream/framing.h"

#include <limits>

#include "examples/der.h"
#include "examples/document_file.h"
#include "examples/pem.h"

namespace Example {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

std::size_t BehindLastLine(std::string_view data) { return data.rfind('\n') + 1; }

std::size_t BehindLine(std::string_view data, std::size_t place) {
  const std::size_t end = data.find('\n', place);
  return end == kNowhere ? data.size() : end + 1;
}

bool BeginsLine(std::string_view data, std::size_t place) {
  return place == 0 || data[place - 1] == '\n';
}

// Where a line begins with `start`, from `place` on.
std::size_t FindLine(std::string_view data, std::string_view start, std::size_t place) {
  place = data.find(start, place);
  while (place != kNowhere && !BeginsLine(data, place)) place = data.find(start, place + 1);
  return place;
}

// No line that ends a block is longer.
constexpr std::size_t kMostLine = 256;

std::size_t WholeBlocks(std::string_view data, std::size_t seen) {
  data = data.substr(0, BehindLastLine(data));
  std::size_t whole = 0;
  std::size_t place = FindLine(data, kPemEnd, seen < kMostLine ? 0 : seen - kMostLine);
  for (; place != kNowhere; place = FindLine(data, kPemEnd, whole)) whole = BehindLine(data, place);
  return whole != 0 || HasPemBlock(data) ? whole : data.size();
}

constexpr std::size_t kNoElement = std::numeric_limits<std::size_t>::max();

// Octets of the SEQUENCE that begins here, of which some may be missing; 0 where that much cannot
// be told yet.
std::size_t SequenceSize(std::string_view data) {
  const auto octet = [&data](std::size_t i) { return static_cast<unsigned char>(data[i]); };
  if (!data.empty() && octet(0) != kSequence) return kNoElement;
  if (data.size() < 2) return 0;
  if (octet(1) < 0x80) return std::size_t{2} + octet(1);
  const std::size_t count = octet(1) & 0x7FU;
  if (count == 0 || count > 4) return kNoElement;
  if (data.size() < 2 + count) return 0;
  std::size_t length = 0;
  for (std::size_t i = 0; i < count; ++i) length = length << 8 | octet(2 + i);
  return 2 + count + length;
}

std::size_t WholeElements(std::string_view data) {
  std::size_t whole = 0;
  for (;;) {
    const std::size_t size = SequenceSize(data.substr(whole));
    if (size == kNoElement && whole == 0) return kNowhere;
    if (size == 0 || size > data.size() - whole) return whole;
    whole += size;
  }
}

std::string_view Cut(std::string_view& rest, std::size_t size) {
  const std::string_view cut = rest.substr(0, size);
  rest.remove_prefix(cut.size());
  return cut;
}

std::string_view TakeWholeLine(std::string_view& rest) {
  std::string_view line = Cut(rest, BehindLine(rest, 0));
  if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

// A block of a document, up to behind its last line, or to the next one where that is missing.
bool TakeBlock(std::string_view& rest, std::string_view* block) {
  for (;;) {
    const std::size_t begin = FindLine(rest, kPemBegin, 0);
    if (begin == kNowhere) return false;
    rest.remove_prefix(begin);
    const std::size_t next = FindLine(rest, kPemBegin, 1);
    const std::size_t end = FindLine(rest.substr(0, next), kPemEnd, 0);
    *block = Cut(rest, end == kNowhere ? next : BehindLine(rest, end));
    if (IsDocumentLabel(PemLabel(*block))) return true;
  }
}

}  // namespace

Framing RecogniseFraming(std::string_view start) {
  // The second octet of a document's encoding is a length above 127, and no text.
  if (start.size() > 1 && start[0] == '0' && (start[1] & 0x80) != 0) return Framing::kDer;
  return HasPemBlock(start) ? Framing::kPem : Framing::kLines;
}

std::size_t WholeItems(Framing framing, std::string_view data, std::size_t seen) {
  if (framing == Framing::kPem) return WholeBlocks(data, seen);
  if (framing == Framing::kDer) return WholeElements(data);
  const std::size_t line = BehindLastLine(data.substr(seen));
  return line == 0 ? 0 : seen + line;
}

bool TakeItem(Framing framing, std::string_view& rest, std::string_view* item) {
  if (framing == Framing::kPem) return TakeBlock(rest, item);
  if (rest.empty()) return false;
  if (framing == Framing::kLines) {
    *item = TakeWholeLine(rest);
  } else {
    const std::size_t size = SequenceSize(rest);
    *item = Cut(rest, size == 0 ? kNoElement : size);
  }
  return true;
}

std::size_t RestOfItem(Framing framing, std::string_view data) {
  if (framing == Framing::kDer) return kNowhere;
  if (framing == Framing::kPem) return FindLine(data, kPemBegin, 0);
  const std::size_t end = data.find('\n');
  return end == kNowhere ? end : end + 1;
}

}  // namespace Example
