// Certificates made for tests, fuzz targets and benchmarks: names and extensions as given,
// everything else a stand-in.
#ifndef ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_
#define ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_

#include <string>

#include "tests/support/der.h"

namespace Ortholan::testing {

// The Extension with the identifier 2.5.29.`number`.
inline std::string Extension(unsigned number, const std::string& value) {
  const std::string oid = {'\x55', '\x1D', static_cast<char>(number)};
  return Tlv(0x30, Tlv(0x06, oid) + Tlv(0x04, value));
}

inline std::string AlternativeNamesExtension(const std::string& value) {
  return Extension(17, value);
}

// A certificate with the given Names and Extensions, one behind the other.
inline std::string Certificate(const std::string& issuer, const std::string& subject,
                               const std::string& extensions) {
  const std::string algorithm = Tlv(0x30, Tlv(0x06, "\x2A\x03"));
  const std::string time = Tlv(0x17, "260101000000Z");
  const std::string bits = Tlv(0x03, std::string(1, '\0'));
  std::string body = Tlv(0xA0, Tlv(0x02, "\x02")) + Tlv(0x02, "\x01") + algorithm + issuer +
                     Tlv(0x30, time + time) + subject + Tlv(0x30, algorithm + bits);
  if (!extensions.empty()) body += Tlv(0xA3, Tlv(0x30, extensions));
  return Tlv(0x30, Tlv(0x30, body) + algorithm + bits);
}

// The same without names.
inline std::string CertificateOf(const std::string& extensions) {
  return Certificate(Tlv(0x30, ""), Tlv(0x30, ""), extensions);
}
inline std::string CertificateWithNames(const std::string& value) {
  return CertificateOf(AlternativeNamesExtension(value));
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_
