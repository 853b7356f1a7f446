#include <gtest/gtest.h>
#include <ortholan/zep_string.h>

#include <string>

#include "platform/calls.h"

namespace Ortholan::testing {
namespace {

std::string Loaded(UINT id, const char* moduleName) {
  CZEPString text("old");
  const bool found = text.LoadString(id, moduleName);
  const std::string result = text.c_str();
  EXPECT_EQ(found, result != "old" && !result.empty()) << result;
  return result;
}

TEST(MessageLoader, FindsTheLibrarysTextsByStatusCode) {
  // A library linked into its program shares the program's resources, and the tests have none.
  const bool hasTexts = OwnModule() != GetModuleHandleA(nullptr);
  for (const UINT id : {0u, 206u, 999u}) {
    const std::string text = id == 0 ? "Success" : "Corrupt or truncated ASN.1 data";
    const std::string expected = hasTexts && id != 999 ? text : "";
    EXPECT_EQ(Loaded(id, "ZEPAK2"), expected);
    EXPECT_EQ(Loaded(id, "zepak2.dll"), expected);
    EXPECT_EQ(Loaded(id, nullptr), "") << "of the program";
    CZEPString formatted;
    formatted.FormatMessage(id);
    EXPECT_EQ(formatted.c_str(), expected);
    formatted.FormatMessage(nullptr, id);
    EXPECT_EQ(formatted.c_str(), expected);
  }
}

TEST(MessageLoader, AModuleThatIsNotFoundChangesNothing) {
  const std::string tooLong(300, 'm');
  for (const char* name : {"", "ZEPAK", "no such module.dll", tooLong.c_str()}) {
    EXPECT_EQ(Loaded(206, name), "old") << name;
  }
  // Nor is the text that stays taken for a format.
  CZEPString text("%s%s%n");
  text.FormatMessage("no such module.dll", 206);
  EXPECT_STREQ(text.c_str(), "%s%s%n");
}

// The program's own file is a module beside the program, where files are modules.
TEST(MessageLoader, LooksBesideTheProgram) {
  char path[1024];
  ASSERT_GT(GetModuleFileNameA(nullptr, path, sizeof path), 0u);
  const std::string file = std::string(path).substr(std::string(path).find_last_of("\\/") + 1);
  EXPECT_EQ(Loaded(206, file.c_str()), GetModuleHandleA(path) != nullptr ? "" : "old");
}

}  // namespace
}  // namespace Ortholan::testing
