// What is told of a text that is no name: the rows of text_errors.tsv.

#include <gtest/gtest.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_text_error.h>

#include <string>

#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

constexpr const char* kFaultNames[] = {
    "None",         "NoText",           "MissingType",    "MissingEquals", "UnknownType",
    "MissingValue", "UnexpectedEquals", "UnexpectedText", "WrongCharacter"};

std::string NameOfFault(NameTextFault fault) {
  const auto number = static_cast<size_t>(fault);
  return number < std::size(kFaultNames) ? kFaultNames[number] : std::to_string(number);
}

bool IsEncoded(const std::wstring& text, DWORD options, bool sort) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  IdentObj der;
  return encoder.Encode(text, der, sort);
}

TEST(NameTextError, TellsWhereAndWhy) {
  for (const VectorRow& row : ReadVectors("text_errors.tsv")) {
    SCOPED_TRACE(row.where());
    const std::wstring text = row.wide("text");
    const auto options = static_cast<DWORD>(row.number("options"));
    const NameTextError error = DescribeNameTextError(text, options);
    EXPECT_EQ(NameOfFault(error.fault), row.text("fault"));
    EXPECT_EQ(error.position, row.number("position"));
    EXPECT_EQ(error.met, row.wide("met"));
    EXPECT_EQ(error.met.size(), error.length);
    EXPECT_FALSE(error.expected.empty());
    EXPECT_NE(std::wstring::npos, error.message.find(error.expected));
    EXPECT_TRUE(!row.has("message") || error.message == row.wide("message"));
    EXPECT_FALSE(IsEncoded(text, options, false));
  }
  EXPECT_EQ(DescribeNameTextError(L"CN=a", 0).message, L"");
}

TEST(NameTextError, ShowsNoMoreThanALine) {
  std::wstring text = L"x";
  for (int i = 0; i < 1000; ++i) text += L"\xD83D\xDE00";
  const NameTextError error = DescribeNameTextError(text, 0);
  EXPECT_EQ(text.size(), error.length);
  EXPECT_EQ(text.substr(0, 39), error.met);
}

// Whatever is cut off or put in, a text is refused exactly where something is found.
TEST(NameTextError, AgreesWithTheEncoder) {
  const std::wstring text =
      L"C=RU; O=\"A \"\"B\"\", C\", SERIALNUMBER=12, E=a@b.c,\r\nCN=\x418\x432 a";
  for (size_t at = 0; at <= text.size(); ++at) {
    for (const wchar_t* put : {L"", L"=", L",", L"\"", L"_", L" ", L"\x416", L"XY="}) {
      for (size_t cut = 0; cut < 3 && at + cut <= text.size(); ++cut) {
        for (const DWORD options : {0u, 0x00040000u, 0x04000000u}) {
          const std::wstring changed = std::wstring(text).replace(at, cut, put);
          const NameTextError error = DescribeNameTextError(changed, options);
          const std::wstring there = changed.substr(error.position, error.met.size());
          ASSERT_EQ(IsEncoded(changed, options, true), error.fault == NameTextFault::kNone)
              << at << " " << cut;
          ASSERT_LE(error.position + error.length, changed.size()) << at << " " << cut;
          ASSERT_EQ(error.met, there) << at << " " << cut;
        }
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
