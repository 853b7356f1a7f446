#include <gtest/gtest.h>
#include <ortholan/ident_obj.h>

#include <utility>

#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

bool IsEmpty(const IdentObj& blob) { return blob.cbData == 0 && blob.pbData == nullptr; }

TEST(IdentObj, BuildsCopiesOrZeros) {
  EXPECT_TRUE(IsEmpty(IdentObj()));
  EXPECT_TRUE(IsEmpty(IdentObj("a", 0)));
  EXPECT_EQ(Hex(IdentObj("ab", 2)), "61 62");
  EXPECT_EQ(Hex(IdentObj(nullptr, 5)), "00 00 00 00 00");
  EXPECT_EQ(Hex(IdentObj(CRYPT_DATA_BLOB{3, nullptr})), "00 00 00");
  EXPECT_EQ(IdentObj().GetObjectSize(), 4u);
  EXPECT_EQ(Blob("01 02 03").GetObjectSize(), 7u);
}

TEST(IdentObj, CopiesAreDeepAndMovesHandOver) {
  IdentObj first = Blob("01 02");
  IdentObj second(first);
  IdentObj third = static_cast<const CRYPT_DATA_BLOB&>(first);
  first.pbData[0] = 9;
  EXPECT_EQ(Hex(second) + Hex(third), "01 0201 02");
  second = first;
  EXPECT_EQ(Hex(second), "09 02");
  const BYTE* const buffer = first.pbData;
  IdentObj taken(std::move(first));
  third = std::move(taken);
  EXPECT_EQ(third.pbData, buffer);
}

// The source may lie in the buffer that the assignment replaces.
TEST(IdentObj, AssignsAlsoFromItself) {
  IdentObj blob;
  blob = "abcd";
  blob = static_cast<const IdentObj&>(blob);
  blob = static_cast<const CRYPT_DATA_BLOB&>(blob);
  blob.Assign(blob.pbData + 1, 3);
  EXPECT_EQ(AsText(blob), "bcd");
  blob = CRYPT_DATA_BLOB{2, blob.pbData + 1};
  EXPECT_EQ(AsText(blob), "cd");
  blob.pbData[1] = 0;
  blob = reinterpret_cast<const char*>(blob.pbData);
  EXPECT_EQ(AsText(blob), "c");
  blob.Assign(nullptr, 2);
  EXPECT_TRUE(IsEmpty(blob));
  blob = CRYPT_DATA_BLOB{2, nullptr};
  EXPECT_EQ(Hex(blob), "00 00");
  blob = static_cast<const char*>(nullptr);
  EXPECT_TRUE(IsEmpty(blob));
}

TEST(IdentObj, ResizesAllocatesAndClears) {
  IdentObj blob = Blob("01 02 03");
  const BYTE* const buffer = blob.pbData;
  blob.Resize(3);
  EXPECT_EQ(blob.pbData, buffer);
  blob.Resize(5);
  ASSERT_EQ(blob.cbData, 5u);
  blob.pbData[3] = blob.pbData[4] = 7;
  EXPECT_EQ(Hex(blob), "01 02 03 07 07");
  blob.Resize(2);
  EXPECT_EQ(Hex(blob), "01 02");
  blob.Allocate(4);
  ASSERT_EQ(blob.cbData, 4u);
  blob.pbData[3] = 1;
  blob.Resize(0);
  EXPECT_TRUE(IsEmpty(blob));
}

TEST(IdentObj, Compares) {
  const char* const kBlobs[] = {"", "00", "01 00", "01 00 02", "01 00 03"};
  for (const char* a : kBlobs) {
    for (const char* b : kBlobs) {
      EXPECT_EQ(Blob(a) == Blob(b), a == b) << a << " and " << b;
      EXPECT_EQ(Blob(a) != Blob(b), a != b) << a << " and " << b;
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
