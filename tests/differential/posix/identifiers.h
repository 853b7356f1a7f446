// Where the library reads the content of an OBJECT IDENTIFIER otherwise than X.690 8.19 has it.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_IDENTIFIERS_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_IDENTIFIERS_H_

#include <cstdint>
#include <string>

namespace Ortholan::testing {

// The first octet is 40 * first + second arc, whatever it is: 8.19.4 has at most 2 for the first
// arc, and lets the sum take several octets.
inline constexpr char kFirstOctetReason[] =
    "X.690 8.19.4; here it is 40 * first + second arc whatever it is";
inline bool HasOtherFirstArc(const std::string& content) {
  return !content.empty() && static_cast<unsigned char>(content[0]) >= 120;
}

// An arc that starts with 80, and a first octet of which OpenSSL misses the next, are tolerated.
inline constexpr char kPaddedReason[] = "X.690 8.19.2; tolerated here, and of the first octet";
inline bool HasPaddedArc(const std::string& content) {
  bool start = true;
  for (const char c : content) {
    const auto octet = static_cast<unsigned char>(c);
    if (start && octet == 0x80) return true;
    start = octet < 0x80;
  }
  return content.size() == 1 && !start;
}

// An arc behind the first octet that takes more than 32 bits is refused.
inline constexpr char kLongArcReason[] = "a number that wraps could pass for another type";
inline bool HasLongArc(const std::string& content) {
  uint64_t arc = 0;
  for (size_t i = 1; i < content.size(); ++i) {
    const auto octet = static_cast<unsigned char>(content[i]);
    arc = arc << 7 | (octet & 0x7F);
    if (arc > 0xFFFFFFFF) return true;
    if (octet < 0x80) arc = 0;
  }
  return false;
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_IDENTIFIERS_H_
