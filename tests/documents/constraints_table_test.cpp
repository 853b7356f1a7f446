// The table of name constraints, row by row, against the library.

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tests/documents/page.h"
#include "tests/support/certificates.h"

namespace Ortholan::testing {
namespace {

// The GeneralName of a text; names of characters as they stand, malformed ones too.
std::string General(const std::string& text) {
  constexpr struct {
    std::string_view kind;
    uint8_t tag;
  } kRaw[] = {{"DNS:", 0x82}, {"email:", 0x81}, {"URI:", 0x86}};
  for (const auto& raw : kRaw) {
    if (text.compare(0, raw.kind.size(), raw.kind) == 0) {
      return Tlv(raw.tag, text.substr(raw.kind.size()));
    }
  }
  const std::vector<uint8_t> name = ortholan::GeneralNameFromText(text, true).value();
  return std::string(name.begin(), name.end());
}

std::string Answer(const ortholan::Permission& permission) {
  switch (permission.verdict) {
    case ortholan::Verdict::kYes:
      return "yes";
    case ortholan::Verdict::kNo:
      return "no";
    default:
      return "cannot tell";
  }
}

TEST(ConstraintsPage, HoldsForTheLibrary) {
  const std::vector<TableRow> rows =
      TableRows("docs/constraints.md", "Subtree | Name | Answer | Why");
  ASSERT_FALSE(rows.empty());
  for (const TableRow& row : rows) {
    SCOPED_TRACE(row.label + ": " + row.cells[0].text + ", " + row.cells[1].text);
    const bool is_permitted = row.cells[0].text.find("permitted") == 0;
    const std::string list = Tlv(0x30, General(row.cells[0].Value()));
    const std::string constraints = Tlv(0x30, Tlv(is_permitted ? 0xA0 : 0xA1, list));
    const std::string names = Tlv(0x30, General(row.cells[1].Value()));
    EXPECT_EQ(Answer(ortholan::PermitsNames(constraints, {}, names)), row.cells[2].Value());
  }
}

}  // namespace
}  // namespace Ortholan::testing
