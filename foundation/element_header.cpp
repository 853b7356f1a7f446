#include "foundation/element_header.h"

#include <cstring>
#include <limits>

#include "bytes/base128.h"

namespace Ortholan {
namespace {

// Reads the number of a high tag, whose groups begin at `*position`.
Status ReadHighTag(ByteView in, size_t* position, uint32_t* tag) {
  uint64_t number = 0;
  if (ReadBase128(in, std::numeric_limits<uint32_t>::max(), position, &number) !=
      Base128Result::kDone) {
    return Status::kBadTag;
  }
  *tag = static_cast<uint32_t>(number);
  return Status::kOk;
}

// Octets before the first pair of zeros that lies whole in `content`; false where there is none.
bool CountToZeroPair(ByteView content, size_t* count) {
  size_t position = 0;
  while (position + 2 <= content.size) {
    const void* zero = std::memchr(content.data + position, 0, content.size - position - 1);
    if (zero == nullptr) return false;
    position = static_cast<size_t>(static_cast<const uint8_t*>(zero) - content.data);
    if (content[position + 1] == 0) {
      *count = position;
      return true;
    }
    position += 2;
  }
  return false;
}

// Reads the length octets at `position`; fills `length`, `content` and `indefinite`. Lengths wrap
// to 32 bits.
Status FillLength(ByteView in, size_t position, ElementHeader* header) {
  Length length;
  if (!ReadLength(in, &position, &length)) return Status::kCorrupt;
  size_t octets = static_cast<uint32_t>(length.octets);
  header->indefinite = length.indefinite;
  if (length.indefinite && header->constructed == 0 &&
      !CountToZeroPair(in.From(position), &octets)) {
    return Status::kCorrupt;
  }
  const bool is_open = length.indefinite && header->constructed != 0;
  // 0xFFFFFFFF stands for the indefinite form in the header's description.
  if (octets >= kIndefiniteLength) return Status::kCorrupt;
  header->length = is_open ? kIndefiniteLength : static_cast<uint32_t>(octets);
  header->content = in.data + position;
  return Status::kOk;
}

// Whether the zero at the front is the first of a pair.
bool IsPair(ByteView zero) { return zero.size >= 2 && zero[1] == 0; }

Fault MeasurePrimitive(ByteView rest, size_t* length) {
  const void* zero = rest.empty() ? nullptr : std::memchr(rest.data, 0, rest.size);
  if (zero == nullptr) {
    *length = rest.size;
    return {};
  }
  const size_t position = static_cast<size_t>(static_cast<const uint8_t*>(zero) - rest.data);
  if (!IsPair(rest.From(position))) return {Status::kCorrupt, kMeasureFault};
  *length = position + 2;
  return {};
}

// Content octets of a child inside constructed content, 0 for one whose children follow.
Fault SkipContent(const ElementHeader& child, ByteView rest, size_t* length) {
  if (child.indefinite && child.constructed == 0) return MeasurePrimitive(rest, length);
  *length = child.indefinite ? 0 : child.length;
  if (*length > rest.size) return {Status::kCorrupt, kMeasureFault};
  return {};
}

}  // namespace

Status ReadAnyHeader(ByteView in, ElementHeader* header) {
  *header = {};
  if (in.size < 2) return Status::kCorrupt;
  header->constructed = in[0] & kConstructed;
  header->cls = in[0] & kClassMask;
  header->tag = in[0] & kTagMask;
  size_t position = 1;
  if (header->tag == kHighTagNumber) {
    const Status status = ReadHighTag(in, &position, &header->tag);
    if (status != Status::kOk) {
      *header = {};
      return status;
    }
  }
  return FillLength(in, position, header);
}

Status BoundedContent(const uint8_t* content, uint32_t length, const uint8_t* end, ByteView* out) {
  if (content == nullptr || length == kIndefiniteLength) return Status::kCorrupt;
  if (end == nullptr || end < content) return Status::kCorrupt;
  if (length > static_cast<size_t>(end - content)) return Status::kCorrupt;
  *out = {content, length};
  return Status::kOk;
}

// Depth is a counter: nesting costs no stack.
Fault MeasureIndefinite(ByteView rest, bool constructed, size_t* length) {
  if (!constructed) return MeasurePrimitive(rest, length);
  size_t depth = 0;
  size_t position = 0;
  while (position < rest.size) {
    const ByteView left = rest.From(position);
    if (left[0] == 0) {
      if (!IsPair(left)) return {Status::kCorrupt, kMeasureFault};
      position += 2;
      if (depth == 0) break;
      --depth;
      continue;
    }
    ElementHeader child;
    const Status status = ReadHeader(left, &child);
    if (status != Status::kOk) return {status, kHeaderFault};
    position += static_cast<size_t>(child.content - left.data);
    size_t content = 0;
    if (const Fault fault = SkipContent(child, rest.From(position), &content)) return fault;
    position += content;
    if (child.length == kIndefiniteLength) ++depth;
  }
  *length = position;
  return {};
}

}  // namespace Ortholan
