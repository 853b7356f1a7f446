// Modules and message texts.

#include "platform/calls.h"
#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

TEST(Modules, TheHostIsAlwaysThere) {
  HMODULE const host = GetModuleHandleA(nullptr);
  ASSERT_NE(host, nullptr);
  char path[512];
  const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
  ASSERT_GT(length, 0u);
  ASSERT_LT(length, sizeof path);
  EXPECT_EQ(std::strlen(path), length);
}

TEST(Modules, APathThatIsCutIsTerminated) {
  if (ThisRealisation() == kWine) GTEST_SKIP() << "Wine leaves out the terminator";
  ExactBlock<char> path(4);
  EXPECT_EQ(GetModuleFileNameA(nullptr, path.data(), 4), 4u);
  EXPECT_EQ(std::strlen(path.data()), 3u);
}

TEST(Modules, NoSuchModule) {
  SetLastError(kUntouched);
  EXPECT_EQ(GetModuleHandleA("no such module.dll"), nullptr);
  ExpectLastError(true, ERROR_MOD_NOT_FOUND);
  SetLastError(kUntouched);
  EXPECT_EQ(LoadLibraryA("no such module.dll"), nullptr);
  ExpectLastError(true, ERROR_MOD_NOT_FOUND);
}

struct MessageRow {
  UINT id;
  const char* text;
};

const MessageRow kMessages[] = {
    {0, "Success"},
    {16, "Out of memory"},
    {131, "Wrong element type"},
    {206, "Corrupt or truncated ASN.1 data"},
    {1041, "The revocation check failed"},
    {12, ""},
    {207, ""},
    {1042, ""},
    {0xFFFF, ""},
};

TEST(LoadString, GivesThisLibrarysMessages) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the host of a static library has no texts";
  for (const MessageRow& row : kMessages) {
    SCOPED_TRACE(row.id);
    char text[64] = "before";
    SetLastError(kUntouched);
    EXPECT_EQ(LoadStringA(OwnModule(), row.id, text, sizeof text),
              static_cast<int>(std::strlen(row.text)));
    EXPECT_STREQ(text, row.text);
    ExpectLastError(row.text[0] == '\0', kAnyError);
  }
}

TEST(LoadString, CutsAndTerminates) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the host of a static library has no texts";
  for (std::size_t room = 1; room <= 9; ++room) {
    ExactBlock<char> text(room);
    const std::size_t length = room > 7 ? 7 : room - 1;
    EXPECT_EQ(LoadStringA(OwnModule(), 0, text.data(), static_cast<int>(room)),
              static_cast<int>(length));
    EXPECT_EQ(std::string(text.data()), std::string("Success").substr(0, length));
  }
}

TEST(LoadString, TheHostHasNoMessages) {
  char text[16] = "";
  EXPECT_EQ(LoadStringA(GetModuleHandleA(nullptr), 206, text, sizeof text), 0);
  EXPECT_STREQ(text, "");
}

}  // namespace
}  // namespace Ortholan::testing
