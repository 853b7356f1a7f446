#include "strict/der/reader.h"

#include <limits>

#include "bytes/nesting_limit.h"

namespace Ortholan::strict {

// A tag number of 31 and more, in groups of seven bits (X.690 8.1.2.4).
bool Reader::ReadTag(size_t* header) {
  uint64_t number = 0;
  size_t position = 1;
  for (;; ++position) {
    if (position == rest_.size) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
    const uint8_t octet = rest_[position];
    if (position == 1 && octet == 0x80) return RefuseAt(ORTHOLAN_REASON_TAG_FORM, &rest_.data[1]);
    number = number << 7 | (octet & 0x7Fu);
    if (number > std::numeric_limits<uint32_t>::max()) {
      return RefuseAt(ORTHOLAN_REASON_TAG_FORM, &rest_.data[position]);
    }
    if ((octet & 0x80) == 0) break;
  }
  if (number < kLongTag) return RefuseAt(ORTHOLAN_REASON_TAG_FORM, &rest_.data[1]);
  *header = position + 1;
  return true;
}

bool Reader::ReadLength(size_t* header, size_t* length) {
  const size_t start = *header;
  if (start == rest_.size) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
  const uint8_t* const place = rest_.data + start;
  const uint8_t first = *place;
  *header = start + 1;
  *length = first;
  if (first < 0x80) return true;
  if (first == 0x80) return RefuseAt(ORTHOLAN_REASON_INDEFINITE, place);
  if (first == 0xFF) return RefuseAt(ORTHOLAN_REASON_LENGTH_FORM, place);
  const size_t octets = first & 0x7Fu;
  if (octets > rest_.size - *header) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
  uint64_t value = 0;
  for (size_t i = 0; i < octets; ++i) {
    // More than 2^56 octets cannot be there.
    if (value >> 48 != 0) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
    value = value << 8 | rest_[*header + i];
  }
  const bool minimal = value >= 0x80 && rest_[*header] != 0;
  if (!minimal && leniency_ != Leniency::kLenient) {
    return RefuseAt(ORTHOLAN_REASON_LENGTH_FORM, place);
  }
  *header += octets;
  if (value > rest_.size) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
  *length = static_cast<size_t>(value);
  return true;
}

bool Reader::ReadExtent(Extent* extent) {
  if (rest_.empty()) return RefuseHere(ORTHOLAN_REASON_TRUNCATED);
  size_t header = 1;
  size_t length = 0;
  if ((rest_[0] & kLongTag) == kLongTag && !ReadTag(&header)) return false;
  if (!ReadLength(&header, &length)) return false;
  if (length > rest_.size - header) return RefuseAt(ORTHOLAN_REASON_TRUNCATED, rest_.end());
  *extent = {header, length};
  return true;
}

Reader::Extent Reader::ReadExtent(ByteView in, Leniency leniency, Refusal* refusal) {
  // One identifier octet and a length of two or three, in the shortest form and all there.
  if (in.size > 4 && (in[0] & kLongTag) != kLongTag) {
    if (in[1] == 0x81 && in[2] >= 0x80 && in[2] <= in.size - 3) return {3, in[2]};
    const size_t length = size_t{in[2]} << 8 | in[3];
    if (in[1] == 0x82 && in[2] != 0 && length <= in.size - 4) return {4, length};
  }
  Extent extent = {0, 0};
  Reader(in, leniency, refusal).ReadExtent(&extent);
  return extent;
}

bool Reader::EnterIndefinite(ByteView* identifier) {
  size_t header = 1;
  if (rest_.empty() || (rest_[0] & kConstructedBit) == 0) return false;
  if ((rest_[0] & kLongTag) == kLongTag && !ReadTag(&header)) return false;
  if (header == rest_.size || rest_[header] != 0x80) return false;
  *identifier = rest_.First(header);
  rest_ = rest_.From(header + 1);
  return true;
}

bool ReadWhole(ByteView in, uint8_t identifier, Leniency leniency, ByteView* content,
               Refusal* refusal) {
  Reader reader(in, leniency, refusal);
  return reader.Read(identifier, content) && reader.End();
}

// What is open at each level stands in an array: nesting costs no stack.
bool CheckNested(const Element& element, Leniency leniency, Refusal* refusal, ElementCheck check) {
  if (!element.constructed()) return true;
  ByteView open[kMaxNesting];
  size_t depth = 0;
  open[depth++] = element.content;
  while (depth != 0) {
    Reader reader(open[depth - 1], leniency, refusal);
    if (reader.AtEnd()) {
      --depth;
      continue;
    }
    Element child;
    if (!reader.Read(&child)) return false;
    if (check != nullptr && !check(child, leniency, refusal)) return false;
    open[depth - 1] = reader.rest();
    if (!child.constructed()) continue;
    if (depth == kMaxNesting) {
      return Refuse(refusal, ORTHOLAN_REASON_DEPTH, child.bytes.data, child.bytes.size,
                    kMaxNesting);
    }
    open[depth++] = child.content;
  }
  return true;
}

}  // namespace Ortholan::strict
