// TrimLeftRight, and DevideIntoElements: tokens, their sequence, and what a broken text leaves.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kComma = CERT_NAME_STR_COMMA_FLAG;
constexpr DWORD kSemicolon = CERT_NAME_STR_SEMICOLON_FLAG;
constexpr DWORD kCrLf = CERT_NAME_STR_CRLF_FLAG;

// "type=value;type=value;" or the refusal.
std::string Divided(X500NameEncoder& encoder, const std::wstring& text) {
  std::list<X500NameEncoder::X500NAME_ELEM> elements(1);
  SetLastError(kUntouched);
  const bool divided = encoder.DevideIntoElements(text, elements);
  EXPECT_TRUE(divided || elements.empty());
  std::string shown = divided ? "" : Refusal();
  for (const auto& element : elements) shown += Shown(element.type + L"=" + element.value) + ';';
  return shown;
}

TEST(TrimLeftRight, CutsFourCharacters) {
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"", L""},
      {L" \t\r\na \t b\r\n\t ", L"a \t b"},
      {L"\r\n\t ", L"\r"},  // white space alone keeps its first character
      {L"\t  ", L"\t"},
      {L" ", L" "},
      {L"\v\f\x00A0\x2003", L"\v\f\x00A0\x2003"},
      {std::wstring(L" \0 ", 3), std::wstring(1, L'\0')},
  };
  for (const auto& [text, trimmed] : rows) {
    std::wstring cut = text;
    TrimLeftRight(cut);
    EXPECT_EQ(Shown(cut), Shown(trimmed));
  }
}

struct Row {
  const char* label;
  std::wstring text;
  std::string elements;
  DWORD options = 0;
};

const std::string kA = "2.5.4.3=a;";
const std::string kAB = "2.5.4.3=a;2.5.4.10=b;";

const Row kRows[] = {
    {"nothing", L"", ""},
    {"a blank is not nothing", L"  ", kRefused},
    {"any delimiter", L"CN=a, O=b;C=c\nOU=d\rL=e", kAB + "2.5.4.6=c;2.5.4.11=d;2.5.4.7=e;"},
    {"tabs and line ends too", L"CN\t=\t a\t,\tO\r=b", kAB},
    {"equals sign and quotes in a value", L"CN=a=\"b\"", "2.5.4.3=a=\"b\";"},
    {"no plus, no backslash, no hash", L"CN=#a+O\\=b", "2.5.4.3=#a+O\\=b;"},
    {"a backslash guards nothing", L"CN=a\\,b, O=c", kRefused},
    {"characters beyond ASCII", L"CN=\x0416\xD83D, O=b", "2.5.4.3=<0416><D83D>;2.5.4.10=b;"},

    {"no equals sign", L"CN", kRefused},
    {"no type", L"=a", kRefused},
    {"two equals signs", L"CN==a", kRefused},
    {"empty last value", L"CN=a, O= ", "2.5.4.3=a;2.5.4.10=;"},
    {"empty value inside", L"CN=, O=a", kRefused},
    {"tab as a value", L"CN=\t\t, O=b", "2.5.4.3=<0009>;2.5.4.10=b;"},

    {"delimiter first", L",CN=a", kRefused},
    {"delimiters last", L"CN=a;, ", kA},
    {"a run of delimiters", L"CN=a,;\r\nO=b", kAB},
    {"a blank parts delimiters", L"CN=a, ,O=b", kRefused},

    {"quoted delimiters", L"CN=\"=a, b;\r\nc\", O=d", "2.5.4.3==a, b;<000D><000A>c;2.5.4.10=d;"},
    {"doubled quotes", L"CN=\"say \"\"hi\"\"\", O=\"\"\"\"", "2.5.4.3=say \"hi\";2.5.4.10=\";"},
    {"two doubled quotes", L"CN=\"a\"\"\"\"b\", O=b", "2.5.4.3=a\"\"b;2.5.4.10=b;"},
    {"no closing quote", L"CN=\"a, O=b", "2.5.4.3=a, O=b;"},
    {"opening quote alone", L"CN=\"", "2.5.4.3=;"},
    {"quoted empty value inside", L"CN=\"\", O=a", "2.5.4.3=;2.5.4.10=a;"},
    {"quotes do not guard white space", L"CN=\" a\t\"", kA},
    {"quoted blanks", L"CN=\"  \"", "2.5.4.3= ;"},
    {"blanks behind the closing quote", L"CN=\"a\"  , O=b", kAB},
    {"text behind the closing quote", L"CN=\"a\"b, O=c", kRefused},
    {"equals sign behind it", L"CN=\"a\"=O=b", kRefused},

    {"unknown type at the end", L"CN=a, ABCDE=b", kA + "=;"},
    {"unknown type before an element", L"ABCDE=b, CN=a", kRefused},
    {"unknown type without a value", L"ABCDE=", "=;"},

    {"NUL behind a value ends the text", std::wstring(L"CN=\"a\"\0, O=b", 12), kA},
    {"NUL in front of a type seen before", std::wstring(L"O=a, \0O=b", 9), kRefused},
    {"NUL for a value", std::wstring(L"CN=\0a", 5), kRefused},
    {"NUL inside a value", std::wstring(L"CN=a\0b,O=b", 10), "2.5.4.3=a<0000>b;2.5.4.10=b;"},
    {"NUL behind a blank", std::wstring(L"CN= \0a", 6), "2.5.4.3=<0000>a;"},

    {"comma alone", L"CN=a;\nb, O=b", "2.5.4.3=a;<000A>b;2.5.4.10=b;", kComma},
    {"semicolon alone", L"CN=a,\nb; O=b", "2.5.4.3=a,<000A>b;2.5.4.10=b;", kSemicolon},
    {"line ends alone part", L"CN=a,;b\r\nO=b\nL=c", "2.5.4.3=a,;b;2.5.4.10=b;2.5.4.7=c;", kCrLf},
    {"comma counts first", L"CN=a;\nb,O=b", "2.5.4.3=a;<000A>b;2.5.4.10=b;", ~DWORD{0}},
    {"semicolon next", L"CN=a,\nb;O=b", "2.5.4.3=a,<000A>b;2.5.4.10=b;", kSemicolon | kCrLf},
    {"other options part nothing", L"CN=a;O=b", kAB, ~(kComma | kSemicolon | kCrLf)},
};

// Encode reads the same elements: its answer is compared where each can be encoded.
TEST(DevideIntoElements, FollowsTheGrammar) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.label);
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(row.options);
    EXPECT_EQ(Divided(encoder, row.text), row.elements);
    X500NameEncoder writer;
    writer.SetEncoderOptions(row.options);
    IdentObj der;
    const bool complete = row.elements.find("=;") == std::string::npos;
    const bool encodable = row.elements != kRefused && !row.elements.empty() && complete;
    ASSERT_EQ(writer.Encode(row.text, der, false), encodable);
    if (encodable) {
      EXPECT_EQ(Listed(der, 2), row.elements);
    }
  }
}

// More elements, and longer texts, than any scratch space on the stack holds.
TEST(DevideIntoElements, TakesLongTexts) {
  std::wstring text;
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    text += (i == 0 ? L"" : L",") + std::wstring(L"CN=\"") + std::wstring(50, L'x') + L"\"\"y\"";
    expected += "2.5.4.3=" + std::string(50, 'x') + "\"y;";
  }
  X500NameEncoder encoder;
  EXPECT_EQ(Divided(encoder, text), expected);
  IdentObj der;
  ASSERT_TRUE(encoder.Encode(text, der, false));
  EXPECT_EQ(Listed(der, 2), expected);
}

TEST(DevideIntoElements, TakesItsTextFromTheList) {
  std::list<X500NameEncoder::X500NAME_ELEM> elements = {{L"", L"CN=a, O=b"}};
  X500NameEncoder encoder;
  ASSERT_TRUE(encoder.DevideIntoElements(elements.front().value, elements));
  ASSERT_EQ(elements.size(), 2u);
  EXPECT_EQ(Shown(elements.back().type), "2.5.4.10");
}

// A text that breaks off between a type and its value leaves the type behind, which makes the next
// text begin with a value; copies take it along.
TEST(DevideIntoElements, LeavesATypeBehind) {
  const std::pair<const wchar_t*, bool> rows[] = {
      {L"CN=, O=a", true}, {L"CN==a", true},          {L"CN=a, O=,", true}, {L"XYZ=a", false},
      {L"CN", false},      {L"ABCDE=a, O=b", false},  {L",CN=a", false},    {L"CN=a, O=", false},
      {L"CN=a, ,", false}, {L"CN=\"a\"b, O=c", false}};
  for (const auto& [broken, leaves] : rows) {
    SCOPED_TRACE(Shown(broken));
    const std::string good = leaves ? kRefused : kA;
    X500NameEncoder encoder;
    X500NameEncoder writer;
    IdentObj der;
    Divided(encoder, broken);
    writer.Encode(broken, der, false);
    const X500NameEncoder copy(encoder);
    for (X500NameEncoder again : {encoder, writer, copy}) {
      EXPECT_EQ(Divided(again, L""), "");
      EXPECT_EQ(Divided(again, L"CN=a"), good);
      EXPECT_EQ(Divided(again, L"CN=a"), good);
      EXPECT_EQ(again.Encode(L"CN=a", der, false), !leaves);
      again = X500NameEncoder();
      EXPECT_EQ(Divided(again, L"CN=a"), kA);
    }
  }
}

TEST(EncoderOptions, AreKeptAndCopied) {
  X500NameEncoder encoder;
  EXPECT_EQ(encoder.GetEncoderOptions(1), 0u);
  encoder.SetEncoderOptions(0xF00000F1);
  encoder.AddEncoderOption(0x0000000E);
  encoder.RemoveEncoderOption(0x30000001);
  EXPECT_EQ(encoder.GetEncoderOptions(0), 0xC00000FEu);
  const X500NameEncoder copy(encoder);
  EXPECT_EQ(copy.GetEncoderOptions(0), 0xC00000FEu);
}

}  // namespace
}  // namespace Ortholan::testing
