// DER on its way into the caller's room, written from its end to its front, so that a length is
// known when its header is put. What does not fit is counted and not written.
//
//   BackwardOutput out(buffer, room);
//   const size_t end = out.size();
//   out.Put(content);
//   out.PutHeader(kSequence, out.size() - end);
//   if (!out.MoveToFront()) ... out.size() octets are needed
#ifndef ORTHOLAN_STRICT_DER_BACKWARD_OUTPUT_H_
#define ORTHOLAN_STRICT_DER_BACKWARD_OUTPUT_H_

#include "bytes/byte_view.h"

namespace Ortholan::strict {

class BackwardOutput {
 public:
  // `room` octets at `out`, which may be null where `room` is 0.
  BackwardOutput(void* out, size_t room) : out_(static_cast<uint8_t*>(out)), room_(room) {}

  // Takes `count` octets before those put so far, for the caller to fill; null where they do not
  // fit.
  uint8_t* Take(size_t count) {
    size_ += count;
    return fits() ? front() : nullptr;
  }
  void Put(uint8_t octet) {
    ++size_;
    if (fits()) *front() = octet;
  }
  void Put(ByteView octets) {
    uint8_t* const place = Take(octets.size);
    if (place != nullptr && octets.size != 0) std::memcpy(place, octets.data, octets.size);
  }
  // Identifier and length of the `length` octets that were put last.
  void PutHeader(uint8_t identifier, size_t length) {
    if (length >= 0x80) return PutLongHeader(identifier, length);
    uint8_t* const place = Take(2);
    if (place == nullptr) return;
    place[0] = identifier;
    place[1] = static_cast<uint8_t>(length);
  }

  // Takes back what was put after the first `size` octets.
  void Rewind(size_t size) { size_ = size; }

  size_t size() const { return size_; }
  bool fits() const { return size_ <= room_; }
  // The octet put last; only where everything fits.
  uint8_t* front() { return out_ + (room_ - size_); }
  // Moves what was put to the start of the room; false where it does not fit.
  bool MoveToFront() {
    if (!fits()) return false;
    if (size_ != room_ && size_ != 0) std::memmove(out_, front(), size_);
    return true;
  }

 private:
  void PutLongHeader(uint8_t identifier, size_t length) {
    uint8_t octets = 0;
    for (size_t rest = length; rest != 0; rest >>= 8, ++octets) Put(static_cast<uint8_t>(rest));
    Put(static_cast<uint8_t>(0x80 | octets));
    Put(identifier);
  }

  uint8_t* out_;
  size_t room_;
  size_t size_ = 0;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_BACKWARD_OUTPUT_H_
