// What RFC 5280 forbids in the names and extensions of a certificate, a request or a CRL: every
// rule of check_rules.h held against every part that it is about.
//
//   Faults faults(room, size);
//   if (!Check(der, &faults, &refusal)) ...   // none of the three
//   if (faults.count() == 0) ...
#ifndef ORTHOLAN_STRICT_EXTENSIONS_CHECK_H_
#define ORTHOLAN_STRICT_EXTENSIONS_CHECK_H_

#include <ortholan/strict/check.h>

#include "bytes/byte_view.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

// The caller's room for faults, and how many there are, be it more than that.
class Faults {
 public:
  Faults(ortholan_fault* room, size_t size) : room_(room), size_(size) {}

  void Add(const ortholan_fault& fault) {
    if (count_ < size_) room_[count_] = fault;
    ++count_;
  }
  size_t count() const { return count_; }

 private:
  ortholan_fault* room_;
  size_t size_;
  size_t count_ = 0;
};

// False where `der` cannot be told apart into names and extensions. Throws std::bad_alloc.
bool Check(ByteView der, Faults* faults, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_CHECK_H_
