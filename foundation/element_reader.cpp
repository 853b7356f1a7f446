#include "foundation/element_reader.h"

namespace Ortholan {

ElementReader::ElementReader(ByteView buffer) : buffer_(buffer) {
  ElementHeader outer;
  const Status status = ReadHeader(buffer, &outer);
  if (status != Status::kOk) {
    Fail(status, kHeaderFault);
    return;
  }
  if (outer.constructed == 0) {
    Fail(Status::kBadTag, kSplitFault);
    return;
  }
  position_ = static_cast<size_t>(outer.content - buffer.data);
  if (outer.length != kIndefiniteLength) {
    end_ = position_ + outer.length;
    return;
  }
  size_t length = 0;
  if (const Fault fault = MeasureIndefinite(buffer.From(position_), true, &length)) {
    Fail(fault.status, fault.where);
    return;
  }
  end_ = position_ + length;
  indefinite_ = true;
}

ElementReader::ElementReader(const Element& element) : buffer_(element.bytes) {
  const ElementHeader& header = element.header;
  if (header.constructed == 0) {
    // The terminator of a primitive indefinite form is no part of its own bytes.
    const bool alone = !header.indefinite;
    Fail(alone ? Status::kBadTag : Status::kCorrupt, alone ? kSplitFault : kHeaderFault);
    return;
  }
  position_ = static_cast<size_t>(header.content - buffer_.data);
  end_ = buffer_.size;
  indefinite_ = header.indefinite;
}

bool ElementReader::AddIndefiniteContent(ByteView rest, size_t* size) {
  size_t length = 0;
  if (const Fault fault = MeasureIndefinite(rest.From(*size), true, &length)) {
    return Fail(fault.status, fault.where);
  }
  *size += length;
  return true;
}

bool ElementReader::Finish() {
  if (indefinite_) {
    if (!AtTerminator()) return Fail(Status::kCorrupt, kSplitFault);
    position_ += 2;
    indefinite_ = false;
  }
  end_ = position_;
  return false;
}

bool ElementReader::Fail(Status status, const char* where) {
  fault_ = {status, where};
  end_ = position_;
  indefinite_ = false;
  return false;
}

}  // namespace Ortholan
