// Names that were written from RFC 4514 text, as OpenSSL reads them.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/differential/posix/openssl_reader.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

std::string TextOf(ortholan::Octets octets) { return {octets.begin(), octets.end()}; }

// OpenSSL's names hold strings, BIT STRINGs that are some, and what is SEQUENCE.
bool IsHeld(const ortholan::Attribute& attribute) {
  constexpr unsigned long kTypes = B_ASN1_PRINTABLE;
  if (attribute.identifier() == V_ASN1_BIT_STRING) {
    return attribute.content().size() > 0 && attribute.content()[0] <= 7;
  }
  return attribute.identifier() < 0x40 &&
         (ASN1_tag2bit(attribute.identifier() & 0x1F) & kTypes) != 0;
}

void ExpectReadAlike(const ortholan::Name& name) {
  const std::vector<ortholan::Attribute> ours = [&name] {
    std::vector<ortholan::Attribute> all;
    for (const ortholan::Attribute& each : name.view()) all.push_back(each);
    return all;
  }();
  bool is_held = true;
  for (const ortholan::Attribute& each : ours) is_held = is_held && IsHeld(each);
  const std::string der(name.der().begin(), name.der().end());
  const auto theirs = openssl::ReadName(der);
  ASSERT_EQ(theirs.value != nullptr, is_held) << theirs.reason;
  if (!is_held) return;
  EXPECT_EQ(theirs.size, der.size());
  const std::vector<openssl::Attribute> read = openssl::Attributes(theirs.value.get());
  ASSERT_EQ(read.size(), ours.size());
  for (size_t i = 0; i < ours.size(); ++i) {
    EXPECT_EQ(static_cast<size_t>(read[i].rdn), ours[i].rdn());
    EXPECT_EQ(openssl::Content(read[i].type), TextOf(ours[i].type()));
    EXPECT_TRUE(openssl::IsEncodingOf(TextOf(ours[i].value()), read[i].value)) << i;
  }
}

TEST(WrittenNames, AreReadByOpenSslAlike) {
  for (const VectorRow& row : ReadVectors("rfc4514_read.tsv")) {
    if (!row.has("der")) continue;
    SCOPED_TRACE(row.where());
    ExpectReadAlike(ortholan::Name::FromText(row.text("text")).value());
  }
  for (const VectorRow& row : ReadVectors("rfc4514_write.tsv")) {
    if (!row.has("text")) continue;
    SCOPED_TRACE(row.where());
    ExpectReadAlike(ortholan::Name::FromText(row.text("text")).value());
    ExpectReadAlike(ortholan::Name::FromText(row.text("exact")).value());
  }
}

}  // namespace
}  // namespace Ortholan::testing
