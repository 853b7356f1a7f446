// Hosts, mailboxes, URIs and other names taken apart.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>

#include "strict/der/refusal.h"
#include "strict/general_names/other_name.h"
#include "tests/strict/reasons.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

std::string Joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += std::string(part) + "|";
  return text;
}

std::string AddressText(const std::vector<uint8_t>& address) {
  return address.empty() ? "" : ortholan::AddressToText(address).value();
}

// The parts of a row's text, or the refusal as "REASON@offset".
std::string PartsOf(const std::string& kind, const std::string& text) {
  ortholan::Refusal refusal;
  if (kind == "mailbox" || kind == "mailbox8") {
    const auto read = ortholan::Mailbox::Read(text, kind == "mailbox8");
    if (read) return Joined({read->local, read->host, AddressText(read->address)});
    refusal = read.refusal();
  } else if (kind == "uri") {
    const auto read = ortholan::Uri::Read(text);
    if (read) {
      return Joined({read->scheme, read->userinfo, read->host, read->port, read->rest,
                     AddressText(read->address)});
    }
    refusal = read.refusal();
  } else {
    const uint32_t choices = kind == "pattern" ? ORTHOLAN_HOST_WILDCARD : 0;
    if (ortholan_host_check(ortholan::ToText(text), choices, &refusal) == 0) return "ok";
  }
  return ReasonName(refusal.reason) + "@" + std::to_string(refusal.offset);
}

TEST(NameParts, AreTakenApart) {
  for (const VectorRow& row : ReadVectors("strict_name_parts.tsv")) {
    EXPECT_EQ(PartsOf(row.text("kind"), row.text("text")), row.text("parts")) << row.where();
  }
}

TEST(GeneralNames, AreTyped) {
  const auto der = ortholan::AlternativeNamesFromText(std::vector<std::string>{
      "DNS:a.example", "UPN:joe@x", "HardwareModule:1.2.3;0A", "EDIParty:a;b"});
  const auto names = ortholan::GeneralNames::Read(*der).value();
  ASSERT_EQ(names.size(), 4u);
  auto name = names.begin();
  EXPECT_EQ(name->kind(), ortholan::NameKind::kDns);
  EXPECT_EQ(name->AsText(), "a.example");
  EXPECT_FALSE(name->AsOther());
  ++name;
  EXPECT_EQ(name->other_kind(), ortholan::OtherNameKind::kUpn);
  EXPECT_EQ(name->AsOther()->text, "joe@x");
  ++name;
  EXPECT_EQ(ortholan::OidToText(name->AsOther()->oid).value(), "1.2.3");
  EXPECT_EQ(name->AsOther()->octets, ortholan::Octets(std::string("\x0A")));
  ++name;
  EXPECT_EQ(name->AsEdiParty()->assigner, ortholan::Octets(std::string("\x0C\x01"
                                                                       "a")));
  EXPECT_EQ(++name, names.end());
}

// Values of other names that are not what their type prescribes.
TEST(GeneralNames, RefuseMalformedOtherNames) {
  const struct {
    const char* text;
    const char* reason;
  } kRows[] = {
      {"otherName:1.3.6.1.4.1.311.20.2.3;IA5:joe", "IDENTIFIER"},
      {"otherName:1.3.6.1.5.5.7.8.7;IA5:imaps.example.org", "SERVICE"},
      {"otherName:1.3.6.1.4.1.311.25.1;#04020102", "OTHER_NAME"},
      {"otherName:1.3.6.1.5.5.7.8.4;#3000", "TRUNCATED"},
      {"otherName:1.3.6.1.5.5.7.8.3;#30060C010106012A", "NAME_CHARACTER"},
      {"otherName:1.3.6.1.5.2.2;#3017A0031B0152A110300EA003020101A10730051B03610A62",
       "NAME_CHARACTER"},
      {"otherName:1.3.6.1.5.2.2;#3010A0031B0152A1093007A003020101A100", "TRUNCATED"},
      {"otherName:1.3.6.1.5.2.2;#3012A0031B0152A10B3009A003020101A1023000", "EMPTY"},
  };
  for (const auto& row : kRows) {
    const auto der = ortholan::GeneralNameFromText(row.text);
    ASSERT_TRUE(der) << row.text;
    const auto name = ortholan::GeneralName::Read(*der, ortholan::Reading::kStructure);
    EXPECT_EQ(ReasonName(name->AsOther().refusal().reason), row.reason) << row.text;
    EXPECT_EQ(name->Text().substr(0, 10), "otherName:") << row.text;
  }
}

}  // namespace
}  // namespace Ortholan::testing
