// Published cases of name constraints, through the C++ face.

#include "tests/support/vectors.h"

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/support/certificates.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::string OptionalExtension(uint8_t number, const std::string& digits) {
  if (digits.empty()) return {};
  return Extension(number, digits == "-" ? std::string() : Octets(digits));
}

std::string CertificateOfParts(const std::string& parts) {
  const std::vector<std::string> part = Split(parts, ':');
  const std::string subject = Octets(part.at(1));
  const std::string other =
      Tlv(0x30, Tlv(0x31, Tlv(0x30, Tlv(0x06, "\x55\x04\x03") + Tlv(0x0C, "issuer"))));
  return Certificate(part[0] == "=" ? subject : other, subject,
                     OptionalExtension(17, part.at(2)) + OptionalExtension(30, part.at(3)));
}

TEST(NameConstraints, PublishedCases) {
  for (const VectorRow& row : ReadVectors("name_constraints.tsv")) {
    SCOPED_TRACE(row.where());
    std::vector<std::string> chain;
    for (const std::string& parts : Split(row.text("chain"), '/')) {
      chain.push_back(CertificateOfParts(parts));
    }
    const ortholan::Permission permission = ortholan::Permits({chain.begin(), chain.end()});
    EXPECT_EQ(permission ? "yes" : "other", row.text("verdict"));
    EXPECT_EQ(permission.findings.size(), permission ? 0u : 1u);
  }
}

}  // namespace
}  // namespace Ortholan::testing
