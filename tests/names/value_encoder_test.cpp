// Alphabets, the choice of a value's string type, and the string's octets.

#include <set>

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kUtf8 = CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG;
constexpr DWORD kAlways = 0x00100000;

std::string EncodedText(const std::wstring& text, DWORD options) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return Encoded(kEmptied, [&](IdentObj& der) { return encoder.Encode(text, der, false); });
}

std::set<wchar_t> SetOf(const std::wstring& text) { return {text.begin(), text.end()}; }

const std::set<wchar_t> kPrintable =
    SetOf(L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 '()+,-./:?\r\n");

std::set<wchar_t> Ascii() {
  std::set<wchar_t> ascii = {L'\r', L'\n'};
  for (wchar_t c = L' '; c <= L'~'; ++c) ascii.insert(c);
  return ascii;
}

TEST(Alphabets, AreTheSets) {
  EXPECT_EQ(X500NameEncoder::PrintableString.size(), 75u);
  EXPECT_EQ(SetOf(X500NameEncoder::PrintableString), kPrintable);
  EXPECT_EQ(X500NameEncoder::IA5String.size(), 97u);
  EXPECT_EQ(SetOf(X500NameEncoder::IA5String), Ascii());
}

// The value's tag, or the refusal. Its quotes guard delimiters, its "x" white space.
std::string TagOf(const std::wstring& type, wchar_t c) {
  const std::wstring value = c == L'"' ? L"\"\"" : std::wstring(1, c);
  const std::string der = EncodedText(type + L"=\"x" + value + L"x\"", 0);
  const std::string octets = Octets(der);
  // SEQUENCE, SET, SEQUENCE, OBJECT IDENTIFIER, each with a short length.
  return der.front() == '3' ? Hex(octets.substr(8 + static_cast<size_t>(octets[7]), 1)) : der;
}

TEST(Alphabets, DecideTheStringType) {
  for (wchar_t c = 0; c <= 0x180; ++c) {
    const bool printable = kPrintable.count(c) != 0;
    EXPECT_EQ(TagOf(L"CN", c), printable ? "13" : "1E") << c;
    EXPECT_EQ(TagOf(L"C", c), printable ? "13" : kRefused) << c;
    EXPECT_EQ(TagOf(L"SERIALNUMBER", c), printable ? "13" : kRefused) << c;
    EXPECT_EQ(TagOf(L"E", c), Ascii().count(c) != 0 ? "16" : kRefused) << c;
  }
}

struct Row {
  std::wstring text;
  std::string attribute;  // identifier and value, or the refusal
  DWORD options = 0;
};

const char kOrg[] = "06 03 55 04 0A 13 03 4F 72 67";

const Row kRows[] = {
    {L"CN=Alpha", "06 03 55 04 03 13 05 41 6C 70 68 61"},
    {L"CN=A=1", "06 03 55 04 03 1E 06 00 41 00 3D 00 31"},
    {L"CN=A=1", "06 03 55 04 03 0C 03 41 3D 31", kUtf8},
    {L"O=Org", kOrg, kUtf8},
    {L"O=Org", kOrg, kAlways},
    {L"O=Org", "06 03 55 04 0A 0C 03 4F 72 67", kUtf8 | kAlways},
    {L"C=RU", "06 03 55 04 06 13 02 52 55", kUtf8 | kAlways},
    {L"E=a@b", "06 09 2A 86 48 86 F7 0D 01 09 01 16 03 61 40 62", kUtf8 | kAlways},
    {L"DEPARTMENT=a", "06 0A 2A 86 48 86 F7 14 01 02 81 0D 13 01 61"},
    {L"C=Ru_s", kRefused},
    {L"SERIALNUMBER=\x0416", kRefused, kUtf8 | kAlways},
    {L"E=\x0416@b", kRefused, kUtf8 | kAlways},

    {L"CN=\x0416\x044F", "06 03 55 04 03 1E 04 04 16 04 4F"},
    {L"CN=\x0416\x044F", "06 03 55 04 03 0C 04 D0 96 D1 8F", kUtf8},
    {L"CN=\xD83D\xDE00", "06 03 55 04 03 1E 04 D8 3D DE 00"},
    {L"CN=\xD83D\xDE00", "06 03 55 04 03 0C 04 F0 9F 98 80", kUtf8},
    {L"CN=\xDE00\xD83D_", "06 03 55 04 03 0C 07 EF BF BD EF BF BD 5F", kUtf8},
    {L"CN=\x7F\x80\x7FF\x800\xFFFF", "06 03 55 04 03 0C 0B 7F C2 80 DF BF E0 A0 80 EF BF BF",
     kUtf8},
    {std::wstring(L"CN=a\0b", 6), "06 03 55 04 03 1E 06 00 61 00 00 00 62"},
    {std::wstring(L"CN=a\0b", 6), "06 03 55 04 03 0C 03 61 00 62", kUtf8},
    {L"CN=\"\r\"", "06 03 55 04 03 13 01 0D"},
    // White space that is cut off does not count.
    {L"CN=\ta", "06 03 55 04 03 13 01 61"},
    {L"CN=\"a\t\"", "06 03 55 04 03 13 01 61"},

    // Addresses are lines; other values keep their line ends.
    {L"POSTALADDRESS=\"Line 1\nLine 2\"",
     "06 03 55 04 10 30 10 13 06 4C 69 6E 65 20 31 13 06 4C 69 6E 65 20 32"},
    {L"POSTALADDRESS=\"a\r\n\r\n\nb\"", "06 03 55 04 10 30 06 13 01 61 13 01 62"},
    {L"POSTALADDRESS=a", "06 03 55 04 10 30 03 13 01 61"},
    {L"2.5.4.16=\"a \r \t b\"",
     "06 03 55 04 10 30 10 1E 04 00 61 00 20 1E 08 00 20 00 09 00 20 00 62"},
    {L"POSTALADDRESS=\"a\n\x0416\"", "06 03 55 04 10 30 08 1E 02 00 61 1E 02 04 16"},
    {L"POSTALADDRESS=\"a\n\x0416\"", "06 03 55 04 10 30 07 0C 01 61 0C 02 D0 96", kUtf8},
    {L"POSTALADDRESS=\"\r\n\"", "06 03 55 04 10 30 03 13 01 0D"},
    {L"O=\"a\r\nb\"", "06 03 55 04 0A 13 04 61 0D 0A 62"},
};

TEST(Value, IsEncoded) {
  for (const Row& row : kRows) {
    const bool refused = row.attribute == kRefused;
    EXPECT_EQ(EncodedText(row.text, row.options),
              refused ? kRefused : Hex(NameOf(Octets(row.attribute))))
        << Shown(row.text) << row.options;
  }
}

TEST(Value, TakesCharactersBeyondTheUnits) {
  if (sizeof(wchar_t) == 2) GTEST_SKIP() << "a wide character is a unit";
  const std::wstring text = L"CN=" + std::wstring(1, static_cast<wchar_t>(0x1F600));
  EXPECT_EQ(EncodedText(text, 0), Hex(CommonName(Octets("1E 04 D8 3D DE 00"))));
  EXPECT_EQ(EncodedText(text, kUtf8), Hex(CommonName(Octets("0C 04 F0 9F 98 80"))));
}

// Where a length field grows: of the name, the RDN, the attribute, the value.
TEST(Value, HasMinimalLengths) {
  const std::pair<size_t, const char*> rows[] = {
      {116, "30 7F 31 7D 30 7B 06 03 55 04 03 13 74"},
      {117, "30 81 80 31 7E 30 7C 06 03 55 04 03 13 75"},
      {119, "30 81 83 31 81 80 30 7E 06 03 55 04 03 13 77"},
      {121, "30 81 86 31 81 83 30 81 80 06 03 55 04 03 13 79"},
      {128, "30 81 8E 31 81 8B 30 81 88 06 03 55 04 03 13 81 80"},
      {256, "30 82 01 11 31 82 01 0D 30 82 01 09 06 03 55 04 03 13 82 01 00"},
      {65536, "30 83 01 00 14 31 83 01 00 0F 30 83 01 00 0A 06 03 55 04 03 13 83 01 00 00"},
  };
  for (const auto& [count, start] : rows) {
    EXPECT_EQ(EncodedText(L"CN=" + std::wstring(count, L'a'), 0),
              Hex(Octets(start) + std::string(count, 'a')));
  }
}

}  // namespace
}  // namespace Ortholan::testing
