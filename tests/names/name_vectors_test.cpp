// Names from text and back, by the rows that the other interfaces are asked too.

#include "tests/names/name_answers.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

TEST(NameVectors, FromTextAndBack) {
  for (const VectorRow& row : ReadVectors("name_text.tsv")) {
    SCOPED_TRACE(row.where());
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(static_cast<DWORD>(row.number("options")));
    IdentObj der;
    EXPECT_EQ(encoder.Encode(row.wide("text"), der, row.has("sort")), !row.has("code"));
    EXPECT_EQ(Hex(der), Hex(row.octets("der")));
    if (row.has("code")) continue;
    EXPECT_EQ(Rendered(der, static_cast<DWORD>(row.number("style"))), Shown(row.wide("rendered")));
  }
}

}  // namespace
}  // namespace Ortholan::testing
