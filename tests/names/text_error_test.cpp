#include <gtest/gtest.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_text_error.h>

#include <string>

namespace Ortholan::testing {
namespace {

constexpr DWORD kCommaOnly = 0x04000000;
constexpr DWORD kUtf8 = 0x00040000;

struct Row {
  const char* mistake;
  const wchar_t* text;
  DWORD options;
  NameTextFault fault;
  size_t position;
  const wchar_t* met;
};

constexpr Row kRows[] = {
    {"empty", L"", 0, NameTextFault::kNoText, 0, L""},
    {"blanks", L" \t ", 0, NameTextFault::kNoText, 1, L""},
    {"a delimiter first", L" ,CN=a", 0, NameTextFault::kMissingType, 1, L","},
    {"an equals sign first", L"=a, CN=b", 0, NameTextFault::kMissingType, 0, L"="},
    {"an equals sign alone", L"=", 0, NameTextFault::kMissingType, 0, L"="},
    {"a type forgotten", L"CN=a, =b", 0, NameTextFault::kMissingType, 6, L"="},
    {"two delimiters apart", L"CN=a, ; O=b", 0, NameTextFault::kMissingType, 6, L";"},
    {"a word alone", L"Alpha", 0, NameTextFault::kMissingEquals, 0, L"Alpha"},
    {"a comma in a value", L"O=Alpha, Inc, C=RU", 0, NameTextFault::kMissingEquals, 9, L"Inc"},
    {"an escaped comma", L"O=Alpha\\, Inc., C=RU", 0, NameTextFault::kMissingEquals, 10, L"Inc."},
    {"a comma in the last value", L"C=RU, O=Alpha, Inc.", 0, NameTextFault::kMissingEquals, 15,
     L"Inc."},
    {"a line end in a value", L"C=RU\nO=Alpha\nBeta", 0, NameTextFault::kMissingEquals, 13,
     L"Beta"},
    {"a plus for a set", L"CN=a, OU+O=b", 0, NameTextFault::kUnknownType, 6, L"OU+O"},
    {"an unknown keyword", L"CN=a, FOO=b", 0, NameTextFault::kUnknownType, 6, L"FOO"},
    {"an unknown keyword as long as others", L"CN=a, XY=b, O=c", 0, NameTextFault::kUnknownType, 6,
     L"XY"},
    {"an unknown keyword, the last one", L"CN=a, XY=b", 0, NameTextFault::kUnknownType, 6, L"XY"},
    {"an unknown keyword without a value", L"XY=, CN=a", 0, NameTextFault::kUnknownType, 0, L"XY"},
    {"a type that is read and not written", L"CN=a, STREET=b", 0, NameTextFault::kUnknownType, 6,
     L"STREET"},
    {"an identifier that is not written", L"2.5.4.9=a", 0, NameTextFault::kUnknownType, 0,
     L"2.5.4.9"},
    {"no value", L"CN=, O=b", 0, NameTextFault::kMissingValue, 3, L","},
    {"no value at the end", L"O=b, CN=", 0, NameTextFault::kMissingValue, 8, L""},
    {"no value and blanks", L"O=b, CN=  ", 0, NameTextFault::kMissingValue, 8, L""},
    {"an empty quoted value", L"CN=\"\", O=b", 0, NameTextFault::kMissingValue, 4, L""},
    {"two equals signs", L"CN==a, O=b", 0, NameTextFault::kUnexpectedEquals, 3, L"="},
    {"a stray quote", L"CN=\"a\"b\", O=c", 0, NameTextFault::kUnexpectedText, 6, L"b\", O"},
    {"text behind a quote at the end", L"CN=\"a\" b", 0, NameTextFault::kUnexpectedText, 7, L"b"},
    {"an equals sign behind a quote", L"CN=\"a\"=b", 0, NameTextFault::kUnexpectedText, 6, L"="},
    {"the wrong delimiter", L"CN=\"a\";O=b", kCommaOnly, NameTextFault::kUnexpectedText, 6, L";O"},
    {"an underscore in a country", L"CN=a, C=R_U", 0, NameTextFault::kWrongCharacter, 9, L"_"},
    {"an equals sign in a serial number", L"SERIALNUMBER=1=2", kUtf8,
     NameTextFault::kWrongCharacter, 14, L"="},
    {"a Cyrillic e-mail", L"E=a@\x43F.\x440\x444", kUtf8, NameTextFault::kWrongCharacter, 4,
     L"\x43F"},
    {"behind doubled quotes", L"E=\"\"\"a\"\" \x43F\", C=RU", 0, NameTextFault::kWrongCharacter, 9,
     L"\x43F"},
    {"a doubled quote", L"C=\" a\"\"\"", 0, NameTextFault::kWrongCharacter, 5, L"\""},
    {"the first of two", L"C=R_, FOO=b", 0, NameTextFault::kUnknownType, 6, L"FOO"},
};

TEST(NameTextError, TellsWhereAndWhy) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.mistake);
    const NameTextError error = DescribeNameTextError(row.text, row.options);
    EXPECT_EQ(row.fault, error.fault);
    EXPECT_EQ(row.position, error.position);
    EXPECT_EQ(row.met, error.met);
    EXPECT_EQ(error.met.size(), error.length);
    EXPECT_FALSE(error.expected.empty());
    EXPECT_NE(std::wstring::npos, error.message.find(error.expected));
    IdentObj der;
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(row.options);
    EXPECT_FALSE(encoder.Encode(row.text, der, false));
  }
}

TEST(NameTextError, IsASentence) {
  struct {
    const wchar_t* text;
    const wchar_t* message;
  } const rows[] = {
      {L"C=R_U",
       L"\"_\" at character 4: expected letters, digits, blank and '()+,-./:? alone in the value "
       L"of C"},
      {L"E=\x416",
       L"\"\x416\" at character 3: expected printing ASCII characters alone in the value of E"},
      {L"O=b, CN=", L"end of the text at character 9: expected a value"},
      {L"CN=\"\", O=b", L"nothing at character 5: expected a value"},
      {L"O=Alpha\\, Inc., C=RU",
       L"\"Inc.\" at character 11: expected \"=\" and a value behind the type; a value that holds "
       L"a "
       L"delimiter has to stand in double quotes, and a backslash escapes nothing"},
      {L"CN=a, FOO=b",
       L"\"FOO\" at character 7: expected one of the types that are written: C, E, L, O, S, T, CN, "
       L"OU, EMAIL, TITLE, PSEUDONYM, DEPARTMENT, SERIALNUMBER, POSTALADDRESS or an identifier of "
       L"theirs"},
      {L"CN=a", L""},
  };
  for (const auto& row : rows) EXPECT_EQ(row.message, DescribeNameTextError(row.text, 0).message);
}

TEST(NameTextError, ShowsNoMoreThanALine) {
  const std::wstring pair = L"\xD83D\xDE00";
  std::wstring text = L"x";
  for (int i = 0; i < 1000; ++i) text += pair;
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
        for (const DWORD options : {DWORD{0}, kUtf8, kCommaOnly}) {
          const std::wstring changed = std::wstring(text).replace(at, cut, put);
          X500NameEncoder encoder;
          encoder.SetEncoderOptions(options);
          IdentObj der;
          const NameTextError error = DescribeNameTextError(changed, options);
          ASSERT_EQ(encoder.Encode(changed, der, true), error.fault == NameTextFault::kNone)
              << at << " " << cut;
          ASSERT_LE(error.position + error.length, changed.size()) << at << " " << cut;
          ASSERT_EQ(error.met, changed.substr(error.position, error.met.size()))
              << at << " " << cut;
        }
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
