#include "strict/der/output.h"

namespace Ortholan::strict {

void PutDecimal(uint64_t number, Output* out, size_t least) {
  char digits[20];
  size_t count = 0;
  do {
    digits[count++] = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0 || count < least);
  while (count != 0) out->Put(digits[--count]);
}

void PutHex(ByteView octets, Output* out) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  for (const uint8_t octet : octets) {
    out->Put(kDigits[octet >> 4]);
    out->Put(kDigits[octet & 0xF]);
  }
}

}  // namespace Ortholan::strict
