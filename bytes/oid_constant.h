// Identifiers that tables have, written as people write them and held as their content octets, by
// the compiler.
//
//   constexpr OidConstant kAnyPolicy("2.5.29.32.0");    // 55 1D 20 00
#ifndef ORTHOLAN_BYTES_OID_CONSTANT_H_
#define ORTHOLAN_BYTES_OID_CONSTANT_H_

#include "bytes/base128.h"

namespace Ortholan {

struct OidConstant {
  uint8_t octets[14] = {};
  uint8_t size = 0;

  // Dotted digits in order, or "" for no identifier; one that does not fit is no constant
  // expression.
  constexpr OidConstant(const char* dotted) {  // NOLINT: tables hold the text alone
    if (*dotted == '\0') return;
    const uint64_t first = NextArc(&dotted);
    Append(first * 40 + NextArc(&dotted));
    while (*dotted != '\0') Append(NextArc(&dotted));
  }
  constexpr ByteView view() const { return {octets, size}; }

 private:
  static constexpr uint64_t NextArc(const char** at) {
    uint64_t arc = 0;
    for (; **at >= '0' && **at <= '9'; ++*at) arc = arc * 10 + static_cast<uint64_t>(**at - '0');
    if (**at == '.') ++*at;
    return arc;
  }
  constexpr void Append(uint64_t number) {
    WriteBase128(octets + size, number);
    size = static_cast<uint8_t>(size + Base128Size(number));
  }
};

}  // namespace Ortholan

#endif  // ORTHOLAN_BYTES_OID_CONSTANT_H_
