#include <gtest/gtest.h>
#include <ortholan/general_name.h>

#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr wchar_t kUnknown[] = L"Неизвестный тип имени ";
constexpr wchar_t kWrongLength[] = L"[Неверная длина IP адреса]";

struct TextRow {
  const char* label;
  DWORD tag;
  const char* content;
  std::wstring text;
};

const TextRow kTexts[] = {
    {"other, empty", 0, "", L""},
    {"other, one octet", 0, "41", L"A"},
    {"other, UTF-16", 0, "41 00 2F 04", std::wstring(L"AЯ\0\0", 4)},
    {"other, odd size", 0, "41 00 42", std::wstring(L"AB\0", 3)},
    {"other, element", 0, "30 02 05 00", std::wstring(L"\x0230\x0005\0\0", 4)},
    {"mail", 1, "16 03 61 40 62", L"a@b"},
    {"host, decoded", 2, "82 04 78 2E 72 75", L"x.ru"},
    {"URI, UTF-8", 6, "86 02 D0 AF", L"Я"},
    {"surrogate pair", 6, "86 04 F0 9F 98 80", L"\xD83D\xDE00"},
    {"broken UTF-8", 2, "16 02 FF 41",
     L"\xFFFD"
     L"A"},
    {"any string type", 1, "1E 02 00 41", std::wstring(L"\0A", 2)},
    {"long identifier and length", 2, "9F 02 81 01 41", L"A"},
    {"empty string", 2, "82 00", L""},
    {"octets behind a string", 2, "82 01 41 42", L"A"},
    {"X.400", 3, "30 00", L"[X400Address]"},
    {"X.400, empty", 3, "", L"[X400Address]"},
    {"directory", 4, "A4 02 30 00", L"A4 02 30 00"},
    {"directory, empty", 4, "", L"\"\""},
    {"party, both names", 5, "30 07 A0 01 41 A1 02 D0 91", L"Имя назначено: A\n"},
    {"party alone", 5, "A5 04 A1 02 D0 91", L"Имя партии: Б\n"},
    {"party, primitive", 5, "A5 05 81 03 66 6F 6F", L"Имя партии: foo\n"},
    {"assigner alone", 5, "A5 03 80 01 41", L"Имя назначено: A\n"},
    {"party, empty assigner", 5, "30 05 A0 00 A1 01 41", L"Имя партии: A\n"},
    {"party, last of two", 5, "30 06 81 01 41 81 01 42", L"Имя партии: B\n"},
    {"party, the element within is text", 5, "A5 05 A1 03 0C 01 41",
     L"Имя партии: \x0C\x01"
     L"A\n"},
    {"party, universal children", 5, "30 06 00 01 41 01 01 42", L""},
    {"party, other tags", 5, "30 03 82 01 41", L""},
    {"party, any class", 5, "30 03 41 01 41", L"Имя партии: A\n"},
    {"party, indefinite", 5, "A5 80 81 01 41 00 00", L"Имя партии: A\n"},
    {"party, none", 5, "30 00", L""},
    {"address", 7, "0A 00 00 01", L"10.0.0.1"},
    {"address, largest", 7, "FF FF FF FF", L"255.255.255.255"},
    {"six octets", 7, "FF FF FF FF FF FF", L"255:255:255:255:255:255"},
    {"address, decoded", 7, "87 04 0A 00 00 01", L"135:4:10:0:0:1"},
    {"address, empty", 7, "", kWrongLength},
    {"five octets", 7, "0A 00 00 01 02", kWrongLength},
    {"sixteen octets", 7, "20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01", kWrongLength},
    {"identifier", 8, "06 03 55 04 03", L"2.5.4.3"},
    {"identifier, decoded", 8, "88 03 55 04 03", L"2.5.4.3"},
    {"identifier, string type", 8, "0C 01 41", L"A"},
    {"nine", 9, "30 00", kUnknown},
    {"thirty-one", 31, "", kUnknown},
    {"largest", 0xFFFFFFFF, "", kUnknown},
};

TEST(GeneralNameText, GoesByTheTag) {
  for (const TextRow& row : kTexts) {
    SCOPED_TRACE(row.label);
    GeneralName name(static_cast<GeneralNameTag>(row.tag), Blob(row.content));
    EXPECT_EQ(Hex(name.ToString(0, 0)), Hex(row.text));
    EXPECT_EQ(name.ToString(1, static_cast<size_t>(-1)), row.text) << "arguments count for nothing";
  }
}

TEST(GeneralNameText, OfWhatTheFactoriesMake) {
  const struct {
    const char* label;
    GeneralName name;
    std::wstring text;
  } kRows[] = {
      {"URI", GeneralName::CreateUri(L"http://x/"), L"http://x/"},
      {"party", GeneralName::CreateEdiPartyName({L"A", L"B"}), L"30 06 A0 01 41 A1 01 42"},
      {"identifier", GeneralName::CreateRegisteredId("1.2.3"), L"*\x03"},
      {"default", GeneralName(), L""},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(GeneralName(row.name).ToString(0, 0), row.text) << row.label;
  }
}

TEST(GeneralNameText, RefusesMalformedContent) {
  const struct {
    const char* label;
    DWORD tag;
    const char* content;
    const char* outcome;
  } kRows[] = {
      {"string, empty", 1, "", "206 DerHelper::DecodeUtf8String"},
      {"string, one octet", 2, "16", "206 DerHelper::DecodeUtf8String"},
      {"string cut short", 6, "86 05 41", "206 DerHelper::DecodeUtf8String"},
      {"string, indefinite", 2, "A2 80 16 01 41 00 00", "206 DerHelper::DecodeUtf8String"},
      {"string, identifier never ends", 2, "9F 81", "205 DerHelper::DecodeUtf8String"},
      {"party, empty", 5, "", "206 CASNTBaseRecord::ReadASNInfo"},
      {"party, primitive", 5, "85 03 61 62 63", "205 ASNTGetSequence"},
      {"party, child passes the end", 5, "30 03 A1 05 41", "206 ASNTGetSequence"},
      {"party, no terminator", 5, "30 80 81 01 41", "206 ASNTGetSequence"},
      {"party, child counted", 5, "30 80 81 80 41 00 00 00 00", "206 DerHelper::GetTag"},
      {"party, child indefinite", 5, "30 07 A1 80 0C 01 41 00 00",
       "206 DerHelper::DecodeUtf8String"},
      {"identifier, empty", 8, "", "206 DerHelper::DecodeOid"},
      {"identifier without content", 8, "88 00", "206 DerHelper::DecodeOid"},
      {"identifier, unfinished", 8, "88 02 55 84", "206 DerHelper::DecodeOid"},
      {"identifier above 32 bits", 8, "88 06 2A 90 80 80 80 00", "206 DerHelper::DecodeOid"},
      {"identifier cut short", 8, "06 03 55 04", "206 DerHelper::DecodeOid"},
      {"identifier, no such type", 8, "15 01 41", "205 DerHelper::DecodeOid"},
  };
  for (const auto& row : kRows) {
    GeneralName name(static_cast<GeneralNameTag>(row.tag), Blob(row.content));
    EXPECT_EQ(Thrown([&] { name.ToString(0, 0); }), row.outcome) << row.label;
  }
}

}  // namespace
}  // namespace Ortholan::testing
