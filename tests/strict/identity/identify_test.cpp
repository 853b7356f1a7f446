// Whose certificate: verdicts and reasons by rows, and laws that hold for all of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"
#include "tests/support/certificates.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

using ortholan::Identify;
using ortholan::Reference;

Reference ReferenceOf(const VectorRow& row) {
  const std::string& kind = row.text("kind");
  const std::string& text = row.text("reference");
  if (kind == "ip") return Reference::Address(text);
  if (kind == "email") return Reference::Mailbox(text);
  if (kind == "uri") return Reference::Uri(text);
  if (kind == "srv") return Reference::Service(text);
  return Reference::Host(text);
}

std::string CertificateOfRow(const VectorRow& row) {
  const std::string& names = row.text("names");
  if (names == "none") return CertificateOf("");
  return CertificateWithNames(names == "empty" ? "" : row.octets("names"));
}

bool Matches(const std::string& certificate, const Reference& reference) {
  const auto identity = Identify(certificate, reference);
  return identity && identity->matches();
}

// "OTHER_HOST,,OTHER_KIND": of each name in turn, nothing for the one that matched.
std::string Explanation(const ortholan::Identity& identity) {
  std::vector<std::string> reasons;
  for (const ortholan::Mismatch& mismatch : identity.Mismatches()) {
    reasons.push_back(ReasonName(mismatch.reason));
  }
  if (identity.matches()) {
    reasons.insert(reasons.begin() + static_cast<std::ptrdiff_t>(identity.index()), "");
  }
  std::string text;
  for (const std::string& reason : reasons) text += (&reason != reasons.data() ? "," : "") + reason;
  return text;
}

TEST(Identify, AgreesWithPublishedSuites) {
  for (const VectorRow& row : ReadVectors("strict_identity_suites.tsv")) {
    SCOPED_TRACE(row.where() + " " + row.text("reference"));
    EXPECT_EQ(Matches(CertificateOfRow(row), ReferenceOf(row)), row.text("verdict") == "match");
  }
}

TEST(Identify, TellsWhy) {
  for (const VectorRow& row : ReadVectors("strict_identity.tsv")) {
    SCOPED_TRACE(row.where());
    Reference reference = ReferenceOf(row);
    if (row.number("choices") != 0) reference = reference.WithoutUnderscores();
    const std::string certificate = CertificateOfRow(row);
    const auto identity = Identify(certificate, reference);
    if (!identity) {
      EXPECT_EQ(row.text("verdict"), "refused");
      EXPECT_EQ(ReasonName(identity.refusal().reason), row.text("reason"));
      continue;
    }
    const char* const kVerdicts[] = {"cannot tell", "yes", "no"};
    EXPECT_EQ(kVerdicts[static_cast<int>(identity->verdict())], row.text("verdict"));
    EXPECT_EQ(ReasonName(identity->refusal().reason), row.text("reason"));
    if (row.has("why")) {
      EXPECT_EQ(Explanation(*identity), row.text("why"));
    }
    // The place lies in the certificate, which was asked.
    if (identity->verdict() == ortholan::Verdict::kCannotTell) {
      EXPECT_LE(identity->refusal().offset, certificate.size());
    }
  }
}

// The names alone answer as the certificate that holds them does; the case of letters of a host,
// names added, and the whole extension given twice.
TEST(Identify, KeepsItsLaws) {
  for (const VectorRow& row : ReadVectors("strict_identity_suites.tsv")) {
    if (row.text("verdict") != "match") continue;
    SCOPED_TRACE(row.where() + " " + row.text("reference"));
    const std::string names = row.octets("names");
    const auto by_names = ortholan::IdentifyByNames(names, ReferenceOf(row));
    EXPECT_TRUE(by_names && by_names->matches());
    if (row.text("kind") == "host") {
      std::string upper = row.text("reference");
      std::transform(upper.begin(), upper.end(), upper.begin(),
                     [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
      EXPECT_TRUE(Matches(CertificateWithNames(names), Reference::Host(upper)));
    }
    const std::size_t header = names[1] == '\x82' ? 4 : names[1] == '\x81' ? 3 : 2;
    const std::string more = Tlv(0x82, "x.example") + names.substr(header) + Tlv(0x87, "");
    EXPECT_TRUE(Matches(CertificateWithNames(Tlv(0x30, more)), ReferenceOf(row)));
    const std::string twice = AlternativeNamesExtension(names) + AlternativeNamesExtension(names);
    const auto doubted = Identify(CertificateOf(twice), ReferenceOf(row));
    EXPECT_EQ(doubted->verdict(), ortholan::Verdict::kCannotTell);
    EXPECT_EQ(ReasonName(doubted->refusal().reason), "DUPLICATE_EXTENSION");
  }
}

// Every octet of a certificate that is cut off or spoiled leaves a verdict, and nothing else.
TEST(Identify, SurvivesSpoiledCertificates) {
  const std::string whole =
      CertificateWithNames(Tlv(0x30, Tlv(0x82, "*.example.org") + Tlv(0x81, "joe@example.org")));
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const std::vector<uint8_t> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(Identify(cut, Reference::Host("a.example.org"))->verdict(),
              ortholan::Verdict::kCannotTell);
    for (const char spoil : {'\0', '\x7F', '\x80', '\xFF'}) {
      std::string spoiled = whole;
      spoiled[i] = spoil;
      const std::vector<uint8_t> exact(spoiled.begin(), spoiled.end());
      EXPECT_TRUE(Identify(exact, Reference::Host("a.example.org")).has_value());
    }
  }
}

TEST(Identify, RefusesWhatIsNoQuestion) {
  ortholan_identity identity;
  ortholan_refusal refusal;
  ortholan_reference asked = {ORTHOLAN_REFERENCE_HOST, 0, {"a..b", 4}};
  EXPECT_EQ(ortholan_identify({nullptr, 0}, &asked, &identity, &refusal),
            ORTHOLAN_REASON_HOST_EMPTY_LABEL);
  EXPECT_EQ(refusal.offset, 2u);
  asked.text = {nullptr, 1};
  EXPECT_EQ(ortholan_identify({nullptr, 0}, &asked, &identity, nullptr), ORTHOLAN_REASON_ARGUMENT);
  asked = {99, 0, {"a", 1}};
  EXPECT_EQ(ortholan_identify({nullptr, 0}, &asked, &identity, nullptr), ORTHOLAN_REASON_ARGUMENT);
  asked.kind = ORTHOLAN_REFERENCE_HOST;
  EXPECT_EQ(ortholan_identify({nullptr, 1}, &asked, &identity, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_identify({nullptr, 0}, &asked, nullptr, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_identify({nullptr, 0}, nullptr, &identity, nullptr), ORTHOLAN_REASON_ARGUMENT);
}

}  // namespace
}  // namespace Ortholan::testing
