// General names as text: both ways, against encodings of others.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

using ortholan::AlternativeNames;
using ortholan::GeneralNameFromText;
using ortholan::GeneralNameText;

std::string AsOctets(const std::vector<uint8_t>& octets) { return {octets.begin(), octets.end()}; }

TEST(GeneralNameText, IsWrittenAndRead) {
  for (const VectorRow& row : ReadVectors("strict_general_names.tsv")) {
    SCOPED_TRACE(row.where());
    const auto name = GeneralNameFromText(row.text("text"), true);
    if (row.has("reason")) {
      ASSERT_FALSE(name);
      EXPECT_EQ(ReasonName(name.refusal().reason), row.text("reason"));
      EXPECT_EQ(name.refusal().offset, row.number("offset"));
      continue;
    }
    ASSERT_TRUE(name) << name.refusal().Sentence();
    EXPECT_EQ(AsOctets(*name), row.octets("der"));
    const std::string shown = GeneralNameText(row.octets("der"));
    EXPECT_EQ(shown, row.text(row.has("shown") ? "shown" : "text"));
    // What is shown is read as the same name.
    EXPECT_EQ(AsOctets(GeneralNameFromText(shown, true).value()), row.octets("der"));
  }
}

TEST(GeneralNameText, BuildsExtensions) {
  for (const VectorRow& row : ReadVectors("strict_alternative_names.tsv")) {
    SCOPED_TRACE(row.where());
    std::vector<std::string> texts(1);
    for (const char c : row.text("names")) c == '|' ? texts.emplace_back() : texts.back() += c;
    const auto form =
        row.has("critical") ? AlternativeNames::kCritical : AlternativeNames::kExtension;
    EXPECT_EQ(AsOctets(ortholan::AlternativeNamesFromText(texts, form).value()), row.octets("der"));
    // The first of the texts that are wrong is named.
    std::size_t wrong = 0;
    texts[1] = "IP:192.0.2.0/24";
    texts.push_back("DNS:");
    const auto refused = ortholan::AlternativeNamesFromText(texts, form, &wrong);
    EXPECT_EQ(ReasonName(refused.refusal().reason), "ADDRESS_RANGE");
    EXPECT_EQ(wrong, 1u);
    EXPECT_EQ(refused.refusal().offset, 3u);
  }
  const auto none = ortholan::AlternativeNamesFromText(std::vector<std::string>());
  EXPECT_EQ(ReasonName(none.refusal().reason), "EMPTY");
}

// Names made to pass for others, or for two, in what people read.
TEST(GeneralNameText, CannotBeForged) {
  const struct {
    const char* der;
    std::size_t size;
    const char* text;
  } kRows[] = {
      {"\x82\x03"
       "a\0b",
       5, "DNS:a\\00b"},
      {"\x82\x05"
       "a\nIP:",
       7, "DNS:a\\0AIP:"},
      {"\x82\x03"
       "\xC3\xBC"
       "a",
       5, "DNS:\\C3\\BCa"},
      {"\x82\x03"
       " a ",
       5, "DNS:\\20a\\20"},
      {"\x82\x04"
       "a\\0A",
       6, "DNS:a\\\\0A"},
      {"\x87\x03"
       "abc",
       5, "IP:#616263"},
      {"\x88\x01"
       "\x80",
       3, "RID:#80"},
      {"\xA0\x00", 2, "otherName:#"},
      {"\xA4\x02\x31\x00", 4, "dirName:#3100"},
      {"\xA5\x02\xA1\x00", 4, "EDIParty:#A100"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(GeneralNameText(std::string(row.der, row.size)), row.text);
  }
}

}  // namespace
}  // namespace Ortholan::testing
