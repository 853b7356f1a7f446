// The table of rules, row by row, against the library's.

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/documents/page.h"

namespace Ortholan::testing {
namespace {

TEST(ShowPage, ListsEveryRule) {
  const std::vector<TableRow> rows = TableRows("docs/show.md", "Rule | Section | What is wrong");
  const std::vector<ortholan_check_rule> rules = ortholan::CheckRules();
  ASSERT_EQ(rows.size(), rules.size());
  for (size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i].label);
    const std::string section = rules[i].section;
    EXPECT_EQ(rows[i].cells[0].Value(), rules[i].name);
    EXPECT_EQ(rows[i].cells[1].text, section.empty() ? "of the extension" : section);
    EXPECT_EQ(rows[i].cells[2].text, rules[i].sentence);
  }
}

}  // namespace
}  // namespace Ortholan::testing
