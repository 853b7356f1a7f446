// MultiByteToWideChar, WideCharToMultiByte, lstrlenA, lstrlenW.

#include <climits>
#include <vector>

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr UINT kUsAscii = 20127;

struct ArgumentRow {
  const char* label;
  UINT codePage;
  bool hasText;  // "ab", terminated
  int length;
  bool hasOut;
  int room;
  int result;
  DWORD error = 0;
};

const ArgumentRow kArgumentRows[] = {
    {"null text", CP_UTF8, false, 2, true, 8, 0, ERROR_INVALID_PARAMETER},
    {"length 0", CP_UTF8, true, 0, true, 8, 0, ERROR_INVALID_PARAMETER},
    {"room without a place", CP_UTF8, true, 2, false, 8, 0, ERROR_INVALID_PARAMETER},
    {"negative room", CP_UTF8, true, 2, true, -1, 0, ERROR_INVALID_PARAMETER},
    {"terminated text, size only", CP_UTF8, true, -1, false, 0, 3, 0},
    {"terminated text", CP_UTF8, true, -1, true, 3, 3, 0},
    {"terminated text, no room for its end", CP_UTF8, true, -1, true, 2, 0,
     ERROR_INSUFFICIENT_BUFFER},
    {"room for one of two", CP_UTF8, true, 2, true, 1, 0, ERROR_INSUFFICIENT_BUFFER},
    {"size only, although a place is given", CP_UTF8, true, 2, true, 0, 2, 0},
    {"US-ASCII, terminated", kUsAscii, true, -1, true, 3, 3, 0},
    {"US-ASCII, size only", kUsAscii, true, -1, false, 0, 3, 0},
    {"US-ASCII, room for one of two", kUsAscii, true, 2, true, 1, 0, ERROR_INSUFFICIENT_BUFFER},
};

TEST(Conversions, CheckTheirArguments) {
  for (const ArgumentRow& row : kArgumentRows) {
    SCOPED_TRACE(row.label);
    ExactBlock<wchar_t> wide(row.room > 0 ? static_cast<std::size_t>(row.room) : 0);
    SetLastError(kUntouched);
    EXPECT_EQ(MultiByteToWideChar(row.codePage, 0, row.hasText ? "ab" : nullptr, row.length,
                                  row.hasOut ? wide.data() : nullptr, row.room),
              row.result);
    ExpectLastError(row.result == 0, row.error);

    ExactBlock<char> narrow(row.room > 0 ? static_cast<std::size_t>(row.room) : 0);
    SetLastError(kUntouched);
    EXPECT_EQ(WideCharToMultiByte(row.codePage, 0, row.hasText ? L"ab" : nullptr, row.length,
                                  row.hasOut ? narrow.data() : nullptr, row.room, nullptr, nullptr),
              row.result);
    ExpectLastError(row.result == 0, row.error);
  }
}

TEST(WideCharToMultiByte, ReplacesWhatIsBeyondUnicode) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "a wide character has two bytes";
  const std::wstring text(1, static_cast<wchar_t>(0x110000));
  char out[4] = {};
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, text.data(), 1, nullptr, 0, nullptr, nullptr), 3);
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, text.data(), 1, out, 3, nullptr, nullptr), 3);
  EXPECT_STREQ(out, "\xEF\xBF\xBD");
}

TEST(Conversions, NativeCodePagesAreUtf8) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system's settings decide";
  for (const auto codePage : {UINT{CP_ACP}, UINT{CP_THREAD_ACP}}) {
    wchar_t wide[4] = {};
    EXPECT_EQ(MultiByteToWideChar(codePage, 0, "\xD0\xB4", 2, wide, 4), 1);
    EXPECT_EQ(wide[0], L'\x0434');
    char narrow[4] = {};
    EXPECT_EQ(WideCharToMultiByte(codePage, 0, wide, 1, narrow, 4, nullptr, nullptr), 2);
    EXPECT_STREQ(narrow, "\xD0\xB4");
  }
}

TEST(Conversions, SayWhetherTheSubstituteWasUsed) {
  char out[4] = {};
  BOOL used = TRUE;
  EXPECT_EQ(WideCharToMultiByte(kUsAscii, 0, L"ab", 2, out, 4, "#", &used), 2);
  EXPECT_EQ(used, FALSE);
  EXPECT_EQ(WideCharToMultiByte(kUsAscii, 0, L"a\x0434", 2, out, 4, "#", &used), 2);
  EXPECT_EQ(used, TRUE);
  EXPECT_EQ(std::string(out, 2), "a#");
}

std::wstring Utf16(std::uint32_t scalar) {
  if (scalar < 0x10000) return std::wstring(1, static_cast<wchar_t>(scalar));
  return {static_cast<wchar_t>(0xD7C0 + (scalar >> 10)),
          static_cast<wchar_t>(0xDC00 + (scalar & 0x3FF))};
}

std::wstring FromUtf8(const std::string& bytes) {
  std::vector<wchar_t> out(bytes.size());
  const int units = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()),
                                        out.data(), static_cast<int>(out.size()));
  return {out.data(), static_cast<std::size_t>(units)};
}

std::string ToUtf8(const std::wstring& text) {
  std::vector<char> out(4 * text.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                       out.data(), static_cast<int>(out.size()), nullptr, nullptr);
  return {out.data(), static_cast<std::size_t>(size)};
}

// Every character survives the way to UTF-8 and back, wherever ASCII text stands beside it: in
// front of it, behind it, in runs of any length.
TEST(Conversions, EveryCharacterComesBack) {
  for (std::uint32_t scalar = 1; scalar <= 0x10FFFF; scalar += scalar < 0x3000 ? 1 : 0x3F) {
    if (scalar >= 0xD800 && scalar <= 0xDFFF) continue;
    const std::wstring text =
        std::wstring(scalar % 19, L'x') + Utf16(scalar) + std::wstring(scalar % 11, L'y');
    ASSERT_EQ(Hex(FromUtf8(ToUtf8(text))), Hex(text)) << scalar;
  }
}

template <typename Text>
Text Around(const Text& odd, std::size_t before, const Text& usual) {
  Text text;
  for (std::size_t i = 0; i < 16; ++i) text += i == before ? odd : usual;
  return text;
}

// A run of one kind is what its parts are one by one, whatever stands at any place in it: the first
// and the last character of each length, and what is no character.
TEST(Conversions, RunsAreTheirPartsOneByOne) {
  const std::string kUsual[] = {"a", "\xD0\xB6", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80"};
  const std::string kOdd[] = {
      "\x7F",         "\xC2\x80",     "\xDF\xBF",         "\xE0\xA0\x80",
      "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF",     "\xF4\x8F\xBF\xBF",
      "\xC1\xBF",     "\xE0\x9F\xBF", "\xED\xA0\x80",     "\xED\xBF\xBF",
      "\xE4\xB8",     "\xD0",         "\xF4\x90\x80\x80", "\x80"};
  for (const std::string& usual : kUsual) {
    for (const std::string& odd : kOdd) {
      for (std::size_t before = 0; before < 16; ++before) {
        EXPECT_EQ(Hex(FromUtf8(Around(odd, before, usual))),
                  Hex(Around(FromUtf8(odd), before, FromUtf8(usual))));
      }
    }
  }
  const wchar_t kOddUnits[] = {0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xD800, 0xDFFF, 0xE000, 0xFFFF};
  for (const std::string& usual : kUsual) {
    for (const wchar_t odd : kOddUnits) {
      const std::wstring unit(1, odd);
      for (std::size_t before = 0; before < 16; ++before) {
        EXPECT_EQ(ToUtf8(Around(unit, before, FromUtf8(usual))),
                  Around(ToUtf8(unit), before, usual));
      }
    }
  }
}

// With any room less than what is needed the call fails and stays inside the room.
TEST(Conversions, TooLittleRoomIsRefused) {
  const std::wstring wide = L"12345678abcdefgh\x00E9\x20AC\xD83D\xDE00 12345678";
  const std::string narrow = "12345678abcdefgh\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80 12345678";
  for (std::size_t room = 1; room < narrow.size(); ++room) {
    ExactBlock<char> out(room);
    SetLastError(kUntouched);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()),
                                  out.data(), static_cast<int>(room), nullptr, nullptr),
              0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER)) << room;
  }
  for (std::size_t room = 1; room < wide.size(); ++room) {
    ExactBlock<wchar_t> out(room);
    SetLastError(kUntouched);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, narrow.data(), static_cast<int>(narrow.size()),
                                  out.data(), static_cast<int>(room)),
              0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER)) << room;
  }
}

TEST(Lengths, CountUnitsBeforeTheTerminator) {
  EXPECT_EQ(lstrlenA(""), 0);
  EXPECT_EQ(lstrlenA("a\xC3\xA9"), 3);
  EXPECT_EQ(lstrlenA(nullptr), 0);
  EXPECT_EQ(lstrlenW(L"a\x00E9"), 2);
  EXPECT_EQ(lstrlenW(nullptr), 0);
}

}  // namespace
}  // namespace Ortholan::testing
