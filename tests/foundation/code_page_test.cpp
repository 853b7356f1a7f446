#include "foundation/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "bytes/ascii.h"
#include "bytes/utf16.h"
#include "foundation/blob_view.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

TEST(CodePage, ReplacesAppendsOrChangesNothing) {
  constexpr UINT kNoCodePage = 12345;
  std::string narrow = "old";
  EXPECT_EQ(Narrow(L"ab", kNoCodePage, &narrow), Conversion::kSizeFailed);
  EXPECT_EQ(narrow, "old");
  EXPECT_EQ(Narrow(L"ab", kCodePageUtf8, &narrow), Conversion::kDone);
  EXPECT_EQ(narrow, "ab");
  EXPECT_EQ(Narrow(L"", kNoCodePage, &narrow), Conversion::kDone);
  EXPECT_EQ(narrow, "");
  std::wstring wide = L"old";
  EXPECT_EQ(Widen("a", kCodePageUtf8, &wide), Conversion::kDone);
  EXPECT_FALSE(AppendWidened("\x80", kNoCodePage, &wide));
  EXPECT_TRUE(AppendWidened(std::string("b\0", 2), kCodePageUtf8, &wide));
  EXPECT_TRUE(AppendWidened("\xD0\x96", kCodePageUtf8, &wide));
  EXPECT_EQ(Hex(wide), "0061 0062 0000 0416");
}

// Runs of every length, the first other character at every place.
TEST(CodePage, TellsAsciiFromTheRest) {
  for (size_t size = 0; size < 40; ++size) {
    std::string text(size, '\x7F');
    EXPECT_TRUE(IsAscii(text)) << size;
    for (size_t place = size; place-- != 0;) {
      text[place] = '\x80';
      const IdentObj exact = ExactCopy(text);
      ASSERT_FALSE(IsAscii(AsText(exact))) << size << ", " << place;
      text[place] = '\x7F';
    }
  }
}

TEST(Utf16, IsCountedWrittenAndRead) {
  const struct {
    const char* label;
    std::wstring text;
    const char* bytes;
    uint64_t utf8;
  } kRows[] = {
      {"first and last of one octet", std::wstring(L"\0\x7F", 2), "00 00 7F 00", 2},
      {"of two", L"\x0080\x07FF", "80 00 FF 07", 4},
      {"of three", L"\x0800\xFFFF", "00 08 FF FF", 6},
      {"of four", L"\xD800\xDC00\xDBFF\xDFFF", "00 D8 00 DC FF DB FF DF", 8},
      {"the same, where one character holds them", L"\U00010000\U0010FFFF",
       "00 D8 00 DC FF DB FF DF", 8},
      {"halves in the wrong order", L"\xDE00\xD83D", "00 DE 3D D8", 6},
      {"half a pair before a pair", L"\xD83D\xD83D\xDE00", "3D D8 3D D8 00 DE", 7},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.label);
    EXPECT_EQ(CountUtf8(row.text), row.utf8);
    IdentObj bytes(nullptr, static_cast<DWORD>(2 * CountUnits(row.text)));
    EXPECT_EQ(WriteUtf16Le(row.text, bytes.pbData), bytes.pbData + bytes.cbData);
    EXPECT_EQ(Hex(bytes), row.bytes);
    std::wstring read = L"x";
    AppendUtf16Le(ViewOf(bytes), &read);
    EXPECT_EQ(CountUtf8(read), 1 + row.utf8);
    WriteUtf16Le(read.substr(1), bytes.pbData);
    EXPECT_EQ(Hex(bytes), row.bytes);
  }
  EXPECT_EQ(CountUtf8(std::wstring_view(L"\xD83D\xDE00", 1)), 3u) << "half of a pair";
  std::wstring read;
  AppendUtf16Le(ViewOf(Blob("61 00 62")), &read);
  EXPECT_EQ(read, L"a") << "an odd last octet is left";
}

}  // namespace
}  // namespace Ortholan::testing
