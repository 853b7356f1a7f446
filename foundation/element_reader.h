// The children of one constructed element, as views into its bytes.
//
//   ElementReader reader(element);
//   for (Element child; reader.Next(&child);) Use(child.bytes);
//   if (reader.fault()) ...
//
// A failure sticks: Next stays false and fault() tells why. No child is copied.
#ifndef ORTHOLAN_FOUNDATION_ELEMENT_READER_H_
#define ORTHOLAN_FOUNDATION_ELEMENT_READER_H_

#include <algorithm>

#include "bytes/byte_view.h"
#include "foundation/element_header.h"
#include "foundation/status_code.h"

namespace Ortholan {

struct Element {
  ByteView bytes;  // header and content; for an indefinite form its end-of-contents octets too
  ElementHeader header;
};

class ElementReader {
 public:
  // Reads the header of the element at the front of `buffer`, which has to be constructed. What
  // follows the element is not looked at, except that a child's header may be read from there
  // before the child is refused for passing its parent's end.
  explicit ElementReader(ByteView buffer);
  // The same for a child that another reader found: its header is known and its size measured.
  explicit ElementReader(const Element& element);

  // The next child; false after the last one and on failure.
  bool Next(Element* child) {
    if (position_ >= end_ || AtTerminator()) return Finish();
    const ByteView rest = buffer_.From(position_);
    const Status status = ReadHeader(rest, &child->header);
    if (status != Status::kOk) return Fail(status, kHeaderFault);
    size_t size = static_cast<size_t>(child->header.content - rest.data);
    if (child->header.length != kIndefiniteLength) {
      size += child->header.length;
    } else if (!AddIndefiniteContent(rest, &size)) {
      return false;
    }
    if (size > end_ - position_ || size > rest.size) return Fail(Status::kCorrupt, kSplitFault);
    child->bytes = rest.First(size);
    position_ += size;
    return true;
  }

  const Fault& fault() const { return fault_; }
  // Octets consumed, counted from the start of the outer element.
  size_t position() const { return position_; }
  // Octets of the outer element that are still to come, as far as the buffer has them.
  size_t rest() const { return std::min(end_, buffer_.size) - position_; }

 private:
  static constexpr const char* kSplitFault = "ASNTGetSequence";

  bool AtTerminator() const {
    return indefinite_ && buffer_.size - position_ >= 2 && buffer_[position_] == 0 &&
           buffer_[position_ + 1] == 0;
  }
  bool AddIndefiniteContent(ByteView rest, size_t* size);
  // Consumes the end-of-contents octets that an indefinite form must have.
  bool Finish();
  bool Fail(Status status, const char* where);

  ByteView buffer_;
  size_t position_ = 0;
  size_t end_ = 0;
  bool indefinite_ = false;
  Fault fault_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_ELEMENT_READER_H_
