// Elements of DER written by X.690 alone, so that they can judge what the library writes: the one
// writer of tests, fuzz targets and benchmarks.
//
//   Tlv(0x30, Tlv(0x06, "\x55\x1D\x11") + Tlv(0x04, value))
#ifndef ORTHOLAN_TESTS_SUPPORT_DER_H_
#define ORTHOLAN_TESTS_SUPPORT_DER_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace Ortholan::testing {

// The octets of a length in the shortest definite form (10.1).
inline std::string LengthOctets(std::size_t length) {
  if (length < 0x80) return std::string(1, static_cast<char>(length));
  std::string octets;
  for (; length != 0; length >>= 8) octets.insert(octets.begin(), static_cast<char>(length & 0xFF));
  return static_cast<char>(0x80 | octets.size()) + octets;
}

// An element with an identifier of one octet.
inline std::string Tlv(unsigned identifier, std::string_view content) {
  std::string element(1, static_cast<char>(identifier));
  return element.append(LengthOctets(content.size())).append(content);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_DER_H_
