// A certificate of nothing but what a test is about: an empty subject, no key worth the name, and
// one extension.
#ifndef ORTHOLAN_TESTS_STRICT_CERTIFICATE_SHELL_H_
#define ORTHOLAN_TESTS_STRICT_CERTIFICATE_SHELL_H_

#include <string>
#include <string_view>

namespace Ortholan::testing {

inline std::string Tlv(char identifier, const std::string& content) {
  std::string length;
  for (std::size_t rest = content.size(); rest != 0; rest >>= 8) {
    length.insert(length.begin(), static_cast<char>(rest & 0xFF));
  }
  if (content.size() >= 0x80) {
    length.insert(length.begin(), static_cast<char>(0x80 | length.size()));
  } else if (length.empty()) {
    length = std::string(1, '\0');
  }
  return identifier + length + content;
}

// `extensions`: the SEQUENCE OF Extension, or nothing.
inline std::string CertificateOf(const std::string& extensions) {
  const std::string algorithm = Tlv('\x30', Tlv('\x06', "\x2A\x03"));
  const std::string time = Tlv('\x17', "260101000000Z");
  const std::string bits = Tlv('\x03', std::string(1, '\0'));
  const std::string body = Tlv('\xA0', Tlv('\x02', "\x02")) + Tlv('\x02', "\x01") + algorithm +
                           Tlv('\x30', "") + Tlv('\x30', time + time) + Tlv('\x30', "") +
                           Tlv('\x30', algorithm + bits) +
                           (extensions.empty() ? "" : Tlv('\xA3', extensions));
  return Tlv('\x30', Tlv('\x30', body) + algorithm + bits);
}

inline std::string AlternativeNamesExtension(const std::string& value) {
  return Tlv('\x30', Tlv('\x06', "\x55\x1D\x11") + Tlv('\x04', value));
}
inline std::string CertificateWithNames(const std::string& value) {
  return CertificateOf(Tlv('\x30', AlternativeNamesExtension(value)));
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_STRICT_CERTIFICATE_SHELL_H_
