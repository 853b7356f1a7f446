// Names compared, subtrees, keys and prepared text, by the rows of tests/data/vectors/ and by the
// laws that hold between all names of those rows.
#include <gtest/gtest.h>

#include <map>
#include <ortholan/strict.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/calls.h"
#include "tests/support/vectors.h"

namespace {

using ortholan::IsWithin;
using ortholan::kAnyOrder;
using ortholan::kRfc5280;
using ortholan::Match;
using ortholan::MatchKey;
using ortholan::MatchNames;
using ortholan::MatchRule;
using ortholan::Verdict;
using Ortholan::testing::Call;
using Ortholan::testing::ReadVectors;
using Ortholan::testing::RunCalls;
using Ortholan::testing::VectorRow;

const std::map<ortholan_reason, std::string> kReasons = {
    {ORTHOLAN_REASON_TRUNCATED, "TRUNCATED"},
    {ORTHOLAN_REASON_LEFT_OVER, "LEFT_OVER"},
    {ORTHOLAN_REASON_INDEFINITE, "INDEFINITE"},
    {ORTHOLAN_REASON_RDN_COUNT, "RDN_COUNT"},
    {ORTHOLAN_REASON_RDN_SIZE, "RDN_SIZE"},
    {ORTHOLAN_REASON_ATTRIBUTE_TYPE, "ATTRIBUTE_TYPE"},
    {ORTHOLAN_REASON_VALUE, "VALUE"},
    {ORTHOLAN_REASON_RDN, "RDN"},
    {ORTHOLAN_REASON_VALUE_TYPE, "VALUE_TYPE"},
    {ORTHOLAN_REASON_VALUE_TEXT, "VALUE_TEXT"},
    {ORTHOLAN_REASON_VALUE_UNDEFINED, "VALUE_UNDEFINED"},
    {ORTHOLAN_REASON_VALUE_TELETEX, "VALUE_TELETEX"},
};

// The verdict with its reason and place, as the rows write it.
std::string Told(const Match& match, const VectorRow& row) {
  if (match.is_yes()) return "yes";
  std::string told = match.verdict() == Verdict::kNo ? "no" : "cannot tell";
  if (row.text("out") == "no") return "no";  // the reason is not told there
  told += ": " + kReasons.at(match.reason());
  const ortholan_match& details = match.details();
  if (details.type.size != 0) told += ", RDN " + std::to_string(details.first.rdn);
  const bool is_unmatched = details.type.size == 0 && details.refusal.reason == 0;
  if (details.side != 0 && !is_unmatched) told += ", name " + std::to_string(details.side);
  return told;
}

template <const MatchRule& kRule>
std::string Names(const VectorRow& row) {
  return Told(MatchNames(row.octets("first"), row.octets("second"), kRule), row);
}
std::string AnyOrder(const VectorRow& row) {
  return Told(MatchNames(row.octets("first"), row.octets("second"), kRfc5280 | kAnyOrder), row);
}
std::string Within(const VectorRow& row) {
  return Told(IsWithin(row.octets("first"), row.octets("second")), row);
}

TEST(Matching, OfNames) {
  RunCalls("matching.tsv", {{"names", Names<kRfc5280>},
                            {"any-order", AnyOrder},
                            {"ascii-case", Names<ortholan::kAsciiCase>},
                            {"octets", Names<ortholan::kOctets>},
                            {"within", Within}});
}

TEST(Matching, AsOtherProjectsTestIt) {
  RunCalls("published_names.tsv", {{"names", Names<kRfc5280>}, {"within", Within}});
}

TEST(Matching, OfPreparedText) {
  const auto prepare = [](const VectorRow& row) {
    const auto prepared = ortholan::PrepareText(row.text("in"));
    return prepared ? *prepared : "undefined " + std::to_string(prepared.refusal().offset);
  };
  RunCalls("preparation.tsv", {{"", prepare}});
}

// Names of the rows that can be read, all but in a slow build: their pairs are asked for.
std::vector<std::string> AllNames() {
  std::set<std::string> names;
  size_t number = 0;
  for (const VectorRow& row : ReadVectors("matching.tsv")) {
    if (number++ % (1 + ORTHOLAN_TEST_SCALE / 4) != 0) continue;
    for (const char* column : {"first", "second"}) {
      if (MatchKey::Of(row.octets(column))) names.insert(row.octets(column));
    }
  }
  return {names.begin(), names.end()};
}

TEST(Matching, IsWhatKeysAre) {
  const std::vector<std::string> names = AllNames();
  for (const MatchRule rule : {kRfc5280, ortholan::kAsciiCase, ortholan::kOctets,
                               kRfc5280 | kAnyOrder, ortholan::kOctets | kAnyOrder}) {
    std::vector<MatchKey> keys;
    for (const std::string& name : names) keys.push_back(MatchKey::Of(name, rule).value());
    for (size_t a = 0; a < names.size(); ++a) {
      for (size_t b = 0; b < names.size(); ++b) {
        const Match match = MatchNames(names[a], names[b], rule);
        const Match reverse = MatchNames(names[b], names[a], rule);
        const bool same = keys[a] == keys[b];
        ASSERT_EQ(match.is_yes(), same) << a << ", " << b << ", rule " << rule.word();
        ASSERT_EQ(match.verdict(), reverse.verdict()) << a << ", " << b << ": " << match.Sentence();
        ASSERT_TRUE(!same || keys[a].Hash() == keys[b].Hash());
      }
    }
  }
}

TEST(Matching, OfSubtreesIsARangeOfKeys) {
  const std::vector<std::string> names = AllNames();
  std::set<MatchKey> keys;
  for (const std::string& name : names) keys.insert(MatchKey::Of(name).value());
  for (const std::string& subtree : names) {
    const MatchKey least = MatchKey::Of(subtree).value();
    std::set<MatchKey> within;
    for (const std::string& name : names) {
      const bool is_within = IsWithin(subtree, name).is_yes();
      if (is_within) within.insert(MatchKey::Of(name).value());
      ASSERT_EQ(MatchKey::Of(name).value().IsWithin(least), is_within);
    }
    EXPECT_EQ(within, std::set<MatchKey>(keys.lower_bound(least), keys.upper_bound(least.Bound())));
  }
}

// Keys are stored: rule, then RDNs with their number of attributes, each as type, kind and value.
TEST(Matching, KeysDoNotChange) {
  const auto key = [](const VectorRow& row) {
    const MatchKey of = MatchKey::Of(row.octets("in")).value();
    std::string digits;
    for (const uint8_t octet : ortholan::Octets(of.octets())) {
      digits += {"0123456789ABCDEF"[octet >> 4], "0123456789ABCDEF"[octet & 0xF]};
    }
    return digits + " " + std::to_string(of.Hash());
  };
  RunCalls("match_keys.tsv", {{"", key}});
}

TEST(Matching, Sentences) {
  const auto sentence = [](const VectorRow& row) {
    return MatchNames(row.octets("first"), row.octets("second")).Sentence();
  };
  RunCalls("match_sentences.tsv", {{"", sentence}});
}

TEST(Matching, RefusesWrongArguments) {
  const uint8_t empty[] = {0x30, 0};
  const ortholan_octets name = {empty, sizeof empty};
  ortholan_match match;
  const auto names = [&](ortholan_octets first, int32_t rule) {
    return ortholan_match_names(first, name, rule, &match) == ORTHOLAN_VERDICT_CANNOT_TELL &&
           match.reason == ORTHOLAN_REASON_ARGUMENT;
  };
  EXPECT_TRUE(names({nullptr, 2}, ORTHOLAN_MATCH_RFC5280));
  EXPECT_TRUE(names(name, 3));
  EXPECT_TRUE(names(name, -1));
  EXPECT_TRUE(names(name, 3 | ORTHOLAN_MATCH_ANY_ORDER));
  EXPECT_EQ(ortholan_name_within(name, name, ORTHOLAN_MATCH_ANY_ORDER, nullptr),
            ORTHOLAN_VERDICT_CANNOT_TELL);
  EXPECT_EQ(ortholan_match_names(name, name, ORTHOLAN_MATCH_RFC5280, nullptr),
            ORTHOLAN_VERDICT_YES);
  uint8_t room[1];
  size_t size = 0;
  EXPECT_EQ(ortholan_match_key(name, 3, room, 1, &size, nullptr), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_match_key(name, ORTHOLAN_MATCH_RFC5280, nullptr, 0, &size, nullptr),
            ORTHOLAN_REASON_ROOM);
  EXPECT_EQ(size, 1U);
  EXPECT_EQ(ortholan_prepare_text({nullptr, 1}, nullptr, 0, &size, nullptr),
            ORTHOLAN_REASON_ARGUMENT);
}

}  // namespace
