// Writes DER from its end to its front, so that each length is known when its turn comes. Without a
// room it only counts, in whatever order.
//
//   const std::size_t mark = out->size();
//   out->PutOctet(0xFF);
//   out->PutHeader(kTagBoolean, mark);  // 01 01 FF

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_DER_WRITER_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_DER_WRITER_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <cstring>

#include "bytes/byte_view.h"
#include "bytes/der_length.h"

namespace Ortholan::posix {

class DerWriter {
 public:
  explicit DerWriter(BYTE* end = nullptr) : end_(end) {}

  bool counts_only() const { return end_ == nullptr; }
  std::size_t size() const { return size_; }
  // The first octet written so far.
  BYTE* front() { return end_ - size_; }

  void PutOctet(BYTE octet) {
    ++size_;
    if (!counts_only()) *front() = octet;
  }
  void PutOctets(ByteView octets) {
    BYTE* const out = Take(octets.size);
    if (out != nullptr) WriteBytes(out, octets);
  }
  // Room for `count` octets that the caller writes; null where they are only counted.
  BYTE* Take(std::size_t count) {
    size_ += count;
    return counts_only() ? nullptr : front();
  }
  // Makes an element of what was written since `mark`, a former size().
  void PutHeader(BYTE tag, std::size_t mark) {
    const std::size_t content = size_ - mark;
    BYTE* const out = Take(static_cast<std::size_t>(ElementSize(content)) - content);
    if (out != nullptr) WriteHeader(out, tag, content);
  }

  // Refuses a text for its unit at `position`. On the way out of the structure the places of what
  // the text lies in are added. The caller of the codec gets the sum in the place of a size.
  DWORD RefuseText(DWORD code, std::size_t position) {
    fault_ = static_cast<DWORD>(position);
    refuses_text_ = true;
    return code;
  }
  void AddPlace(DWORD place) {
    if (refuses_text_) fault_ |= place;
  }
  DWORD fault() const { return fault_; }

 private:
  BYTE* end_;
  std::size_t size_ = 0;
  DWORD fault_ = 0;
  bool refuses_text_ = false;
};

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_DER_WRITER_H_
