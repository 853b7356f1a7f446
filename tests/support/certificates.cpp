#include "tests/support/certificates.h"

#include <cstddef>

namespace Ortholan::testing {

std::string Der(uint8_t identifier, const std::string& content) {
  std::string length;
  for (size_t rest = content.size(); rest != 0; rest >>= 8) {
    length.insert(length.begin(), static_cast<char>(rest & 0xFF));
  }
  if (content.size() < 0x80) {
    length.assign(1, static_cast<char>(content.size()));
  } else {
    length.insert(length.begin(), static_cast<char>(0x80 | length.size()));
  }
  return static_cast<char>(identifier) + length + content;
}

std::string Extension(uint8_t number, const std::string& value) {
  const std::string oid = {'\x55', '\x1D', static_cast<char>(number)};
  return Der(0x30, Der(0x06, oid) + Der(0x04, value));
}

std::string Certificate(const std::string& issuer, const std::string& subject,
                        const std::string& extensions) {
  const std::string algorithm = Der(0x30, Der(0x06, "\x2A\x03"));
  const std::string time = Der(0x17, "260101000000Z");
  std::string body = Der(0xA0, Der(0x02, "\x02")) + Der(0x02, "\x01") + algorithm + issuer +
                     Der(0x30, time + time) + subject + Der(0x30, "");
  if (!extensions.empty()) body += Der(0xA3, Der(0x30, extensions));
  return Der(0x30, Der(0x30, body) + algorithm + Der(0x03, std::string(1, '\0')));
}

}  // namespace Ortholan::testing
