// The table of extensions, row by row, against the library.

#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <set>
#include <string>
#include <vector>

#include "tests/documents/page.h"

namespace Ortholan::testing {
namespace {

TEST(ExtensionsPage, HoldsForTheLibrary) {
  std::set<std::string> seen;
  for (const TableRow& row : TableRows("docs/extensions.md", "Extension | Identifier | JSON")) {
    const std::string name = row.cells[0].Value();
    const std::string json = row.cells[2].Value();
    SCOPED_TRACE(row.label + ": " + name);
    const std::vector<uint8_t> oid = ortholan::OidFromText(row.cells[1].Value()).value();
    EXPECT_EQ(ortholan::FindExtensionType(oid)->name, name);
    const std::vector<uint8_t> der = ortholan::ExtensionFromJson(name, json).value();
    EXPECT_EQ(ortholan::ExtensionJson(oid, der).value(), json);
    seen.insert(name);
  }
  EXPECT_EQ(seen.size(), ortholan::KnownExtensions().size());
}

}  // namespace
}  // namespace Ortholan::testing
