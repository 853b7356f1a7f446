#include <gtest/gtest.h>
#include <ortholan/der_helper.h>

#include <string>
#include <vector>

#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr UINT kUtf8 = 65001;
constexpr UINT kUsAscii = 20127;
constexpr UINT kNoCodePage = 12345;
TEST(DerHelper, TellsTagAndClass) {
  EXPECT_EQ(DerHelper::GetTag(Blob("5F 81 00 7F")), 128u);
  EXPECT_FALSE(DerHelper::IsUniversal(Blob("5F 81 00 7F")));
  EXPECT_TRUE(DerHelper::IsUniversal(Blob("30 00")));
  EXPECT_EQ(Thrown([] { DerHelper::GetTag(Blob("30")); }), "206 DerHelper::GetTag");
  EXPECT_EQ(Thrown([] { DerHelper::GetTag(Blob("1F 81")); }), "205 DerHelper::GetTag");
  EXPECT_EQ(Thrown([] { DerHelper::IsUniversal(IdentObj()); }), "206 DerHelper::GetTag");
  std::string tags;
  for (DWORD tag = 0; tag < 64; ++tag) {
    if (DerHelper::IsStringTag({0x80, 0, tag, 0, nullptr})) tags += std::to_string(tag) + " ";
  }
  EXPECT_EQ(tags, "12 18 19 20 22 26 ");
}

TEST(DerHelper, Encodes) {
  const struct {
    IdentObj element;
    const char* expected;
  } kRows[] = {
      {DerHelper::EncodeOid("2.5.4.3"), "06 03 55 04 03"},
      {DerHelper::EncodeOctetString(Blob("00 FF")), "04 02 00 FF"},
      {DerHelper::EncodeUtf8String(L"\x0416\xD83D\xDE00"), "0C 06 D0 96 F0 9F 98 80"},
      {DerHelper::EncodeUtf8String(L"\xD83D"), "0C 03 EF BF BD"},
      {DerHelper::EncodeIA5String("A\xE9\x80\x7F"), "16 04 41 2E 2E 7F"},
      {DerHelper::EncodeIA5String("A\xE9", 1), "16 01 41"},
      {DerHelper::EncodeIA5String("A\xE9", 3), "16 02 41 2E"},
      {DerHelper::EncodeIA5String(L"a\x0416z", 2), "16 02 61 3F"},
  };
  for (const auto& row : kRows) EXPECT_EQ(Hex(row.element), row.expected);
  EXPECT_EQ(Thrown([] { DerHelper::EncodeOid("CN"); }), "1 ASNTPutElement");
}

TEST(DerHelper, ConvertsText) {
  EXPECT_EQ(DerHelper::ToString(L"", kNoCodePage), "");
  EXPECT_EQ(DerHelper::ToWString("", kNoCodePage), L"");
  const std::wstring wide(L"a\0\x20AC", 3);
  EXPECT_EQ(Hex(DerHelper::ToString(wide, kUtf8)), "61 00 E2 82 AC");
  EXPECT_EQ(Hex(DerHelper::ToWString(Octets("61 00 E2 82 AC"), kUtf8)), Hex(wide));
  EXPECT_EQ(DerHelper::ToString(L"a\x0416", kUsAscii), "a?");
  // One wide character here, two units there.
  EXPECT_EQ(Hex(DerHelper::ToString(L"\U0001F600", kUtf8)), "F0 9F 98 80");
  EXPECT_EQ(Thrown([] { DerHelper::ToString(L"a", kNoCodePage); }),
            "36 DerHelper::ToString WideCharToMultiByte(1)");
  EXPECT_EQ(Thrown([] { DerHelper::ToWString("a", kNoCodePage); }),
            "36 DerHelper::ToWString MultiByteToWideChar(1)");
}

TEST(FixedBuffers, HoldTheTextOrNone) {
  for (int size = -1; size <= 3; ++size) {
    SCOPED_TRACE(size);
    for (const UINT codePage : {kUtf8, kNoCodePage}) {
      const bool fits = size == 3 && codePage == kUtf8;
      const std::string expected = fits ? "ab" : size > 0 ? "" : "x";
      std::vector<char> narrow(size == 3 ? 3 : 2);
      narrow[0] = 'x';
      EXPECT_EQ(WideToNarrow(narrow.data(), L"ab", size, codePage), fits ? narrow.data() : nullptr);
      EXPECT_EQ(narrow.data(), expected);
      std::vector<wchar_t> wide(size == 3 ? 3 : 2);
      wide[0] = L'x';
      EXPECT_EQ(NarrowToWide(wide.data(), "ab", size, codePage), fits ? wide.data() : nullptr);
      EXPECT_EQ(wide.data(), std::wstring(expected.begin(), expected.end()));
    }
  }
  char narrow[] = "x";
  wchar_t wide[] = L"x";
  EXPECT_EQ(WideToNarrow(nullptr, L"a", 2, kUtf8), nullptr);
  EXPECT_EQ(WideToNarrow(narrow, nullptr, 2, kUtf8), nullptr);
  EXPECT_EQ(NarrowToWide(nullptr, "a", 2, kUtf8), nullptr);
  EXPECT_EQ(NarrowToWide(wide, nullptr, 2, kUtf8), nullptr);
  EXPECT_STREQ(narrow, "x");
  EXPECT_STREQ(wide, L"x");
}

}  // namespace
}  // namespace Ortholan::testing
