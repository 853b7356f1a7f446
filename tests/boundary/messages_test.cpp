// The library's message texts, as an application loads them: from the DLL's string table on
// Windows, from the same list elsewhere.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <string>

namespace Ortholan {
namespace {

TEST(Messages, AreLoadedByModule) {
  for (const UINT id : {1u, 16u, 28u, 131u, 205u, 206u}) {
    SCOPED_TRACE(id);
    CZEPString own;
    EXPECT_TRUE(own.LoadString(id));
    EXPECT_GT(own.GetLength(), 0);
    CZEPString named("before");
    EXPECT_TRUE(named.LoadString(id, "zepak2"));
    EXPECT_STREQ(own.c_str(), named.c_str());
  }
  CZEPString host("before");
  EXPECT_FALSE(host.LoadString(206, nullptr));
  EXPECT_STREQ("", host.c_str());
  CZEPString missing("before");
  EXPECT_FALSE(missing.LoadString(206, "no such module.dll"));
  EXPECT_STREQ("before", missing.c_str());
  CZEPString formatted;
  formatted.FormatMessage(206u);
  EXPECT_GT(formatted.GetLength(), 0);
}

}  // namespace
}  // namespace Ortholan
