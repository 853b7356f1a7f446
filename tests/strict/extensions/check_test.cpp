// What RFC 5280 forbids: rows of documents, and laws that hold for all of them.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <set>
#include <string>
#include <vector>

#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

using ortholan::Check;
using ortholan::Fault;

std::string RulesOf(const ortholan::Result<std::vector<Fault>>& faults) {
  if (!faults) return "refused";
  std::string rules;
  for (const Fault& fault : *faults) rules += (rules.empty() ? "" : ",") + std::string(fault.rule);
  return rules;
}

// A part lies inside of what was asked, and the place of a refusal inside of the part.
void ExpectPlaces(const std::string& der, const std::vector<Fault>& faults) {
  const auto* const first = reinterpret_cast<const uint8_t*>(der.data());
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.rule);
    if (fault.part.data != nullptr) {
      EXPECT_GE(fault.part.data, first);
      EXPECT_LE(fault.part.data + fault.part.size, first + der.size());
    }
    if (fault.refusal.reason != ORTHOLAN_REASON_NONE) {
      EXPECT_LE(fault.refusal.offset, fault.part.size);
    }
    EXPECT_NE(std::string(fault.section), "");
  }
}

TEST(Check, FindsWhatIsForbidden) {
  for (const VectorRow& row : ReadVectors("checks.tsv")) {
    SCOPED_TRACE(row.where());
    const std::string der = row.octets("der");
    const auto faults = Check(der);
    EXPECT_EQ(RulesOf(faults), row.text("faults"));
    if (faults) ExpectPlaces(der, *faults);
  }
}

TEST(Check, HasARowForEachRule) {
  std::set<std::string> broken;
  for (const VectorRow& row : ReadVectors("checks.tsv")) {
    const std::string der = row.octets("der");
    const auto faults = Check(der);
    for (const Fault& fault : faults ? *faults : std::vector<Fault>()) broken.insert(fault.rule);
  }
  std::set<std::string> rules;
  for (const ortholan_check_rule& rule : ortholan::CheckRules()) {
    EXPECT_TRUE(rules.insert(rule.name).second) << rule.name << " twice";
  }
  EXPECT_EQ(broken, rules);
}

// A generic rule has the section of the extension, by the kind of the document.
TEST(Check, TellsSections) {
  std::set<std::string> sections;
  for (const VectorRow& row : ReadVectors("checks.tsv")) {
    const std::string der = row.octets("der");
    const auto faults = Check(der);
    for (const Fault& fault : faults ? *faults : std::vector<Fault>()) {
      if (std::string(fault.rule) == "critical") sections.insert(fault.section);
    }
  }
  EXPECT_EQ(sections, (std::set<std::string>{"4.2.1.1", "4.2.1.15", "4.2.1.2", "4.2.1.8", "4.2.2.1",
                                             "4.2.2.2", "5.2.3", "5.3.1", "5.3.2"}));
}

TEST(Check, CountsBeyondTheRoom) {
  for (const VectorRow& row : ReadVectors("checks.tsv")) {
    if (row.text("faults").find(',') == std::string::npos) continue;
    SCOPED_TRACE(row.where());
    const std::string der = row.octets("der");
    const std::vector<Fault> all = Check(der).value();
    Fault one;
    size_t count = 0;
    EXPECT_EQ(ortholan_check(ortholan::Octets(der), &one, 1, &count, nullptr), 0);
    EXPECT_EQ(count, all.size());
    EXPECT_STREQ(one.rule, all[0].rule);
    EXPECT_EQ(ortholan_check(ortholan::Octets(der), nullptr, 0, &count, nullptr), 0);
    EXPECT_EQ(count, all.size());
  }
}

TEST(Check, RefusesMissingArguments) {
  size_t count = 1;
  Fault fault;
  EXPECT_EQ(ortholan_check({nullptr, 1}, &fault, 1, &count, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(count, 0U);
  EXPECT_EQ(ortholan_check({nullptr, 0}, nullptr, 1, &count, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_check({nullptr, 0}, &fault, 1, nullptr, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_check({nullptr, 0}, &fault, 1, &count, nullptr), ORTHOLAN_REASON_TRUNCATED);
  ortholan_check_rule rule = {"", "", ""};
  EXPECT_EQ(ortholan_check_rule_at(10000, &rule), ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(rule.name, nullptr);
  EXPECT_EQ(ortholan_check_rule_at(0, nullptr), ORTHOLAN_REASON_ARGUMENT);
}

// Octets cut off or spoiled leave faults with places inside, or a refusal.
TEST(Check, SurvivesSpoiledDocuments) {
  size_t number = 0;
  for (const VectorRow& row : ReadVectors("checks.tsv")) {
    const std::string whole = row.octets("der");
    if (whole.size() > 160 || number++ % (2 + ORTHOLAN_TEST_SCALE / 4) != 0) continue;
    SCOPED_TRACE(row.where());
    for (size_t i = 0; i < whole.size(); ++i) {
      const std::string cut(whole, 0, i);
      EXPECT_FALSE(Check(cut)) << i;
      for (const char spoil : {'\0', '\x30', '\x80', '\xFF'}) {
        std::string spoiled = whole;
        spoiled[i] = spoil;
        const auto faults = Check(spoiled);
        if (faults) ExpectPlaces(spoiled, *faults);
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
