// Octets or text on their way into the caller's room. What does not fit is counted and not written,
// so that one pass both writes and tells the size.
//
//   Output out(buffer, room);
//   out.Put("CN=");
//   if (!out.fits()) ... out.size() octets are needed
#ifndef ORTHOLAN_STRICT_DER_OUTPUT_H_
#define ORTHOLAN_STRICT_DER_OUTPUT_H_

#include <string_view>

#include "bytes/byte_view.h"

namespace Ortholan::strict {

class Output {
 public:
  // `room` octets at `out`, which may be null where `room` is 0.
  Output(void* out, size_t room) : out_(static_cast<uint8_t*>(out)), room_(room) {}

  void Put(uint8_t octet) {
    if (size_ < room_) out_[size_] = octet;
    ++size_;
  }
  void Put(char character) { Put(static_cast<uint8_t>(character)); }
  void Put(ByteView octets) {
    if (size_ <= room_ && octets.size <= room_ - size_ && octets.size != 0) {
      std::memcpy(out_ + size_, octets.data, octets.size);
    }
    size_ += octets.size;
  }
  void Put(std::string_view text) { Put(AsBytes(text.data(), text.size())); }

  // Takes back what was put after the first `size` octets.
  void Rewind(size_t size) { size_ = size; }

  // Octets put so far, whether they fitted or not.
  size_t size() const { return size_; }
  bool fits() const { return size_ <= room_; }

 private:
  uint8_t* out_;
  size_t room_;
  size_t size_ = 0;
};

// Decimal digits, at least `least` of them.
void PutDecimal(uint64_t number, Output* out, size_t least = 1);
// Two upper-case hexadecimal digits an octet.
void PutHex(ByteView octets, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_OUTPUT_H_
