#include "strict/der/output.h"

#include "bytes/hex.h"

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
  for (const uint8_t octet : octets) {
    char digits[2];
    WriteHexOctet(octet, digits);
    out->Put(std::string_view(digits, sizeof digits));
  }
}

}  // namespace Ortholan::strict
