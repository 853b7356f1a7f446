// CryptEncodeObject and CryptDecodeObject over X509_UNICODE_NAME_VALUE.

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kEncoding = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;
constexpr DWORD kBadTag = static_cast<DWORD>(CRYPT_E_ASN1_BADTAG);
constexpr DWORD kCorrupt = static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT);
constexpr DWORD kNoSuchChoice = static_cast<DWORD>(CRYPT_E_ASN1_CHOICE);
constexpr DWORD kNotText = static_cast<DWORD>(CRYPT_E_NOT_CHAR_STRING);
constexpr DWORD kNotNumeric = static_cast<DWORD>(CRYPT_E_INVALID_NUMERIC_STRING);
constexpr DWORD kNotPrintable = static_cast<DWORD>(CRYPT_E_INVALID_PRINTABLE_STRING);
constexpr DWORD kNotIa5 = static_cast<DWORD>(CRYPT_E_INVALID_IA5_STRING);
constexpr DWORD kNotX500 = static_cast<DWORD>(CRYPT_E_INVALID_X500_STRING);
constexpr unsigned kSystem = kWindows | kWine;

std::string LittleEndian(const std::wstring& text) {
  std::string octets;
  for (const wchar_t c : text) {
    octets += static_cast<char>(c & 0xFF);
    octets += static_cast<char>(static_cast<unsigned>(c) >> 8 & 0xFF);
  }
  return octets;
}

struct Encoded {
  std::string der;  // hex
  DWORD error = 0;
  DWORD position = 0;  // stored in place of the size where text is refused
};

const Encoded kUnreliable = {"", kUntouched};

struct EncodeRow {
  const char* label;
  DWORD type;
  std::wstring text;
  Contract<Encoded> expected;
};

const char kLateCheck[] = "checks while it writes, and then reports no code";
const char kCuts[] = "cuts the upper half off";

const EncodeRow kEncodeRows[] = {
    {"no type", 0, L"a", {{"", kNotText}}},
    {"a whole element", 1, L"a", {{"", kNotText}}},
    {"octets", 2, L"a", {{"", kNotText}}},
    {"NumericString", 3, L"0129", {{"120430313239"}}},
    {"NumericString with a blank",
     3,
     L"1 2",
     {{"1203312032"}, {{kWine, kUnreliable, "takes digits alone"}}}},
    {"NumericString with a letter",
     3,
     L"12a",
     {{"", kNotNumeric, 2}, {{kWine, kUnreliable, kLateCheck}}}},
    {"PrintableString", 4, L"AZaz09 '()+,-./:=?", {{"1312415A617A3039202728292B2C2D2E2F3A3D3F"}}},
    {"PrintableString with @",
     4,
     L"a@",
     {{"", kNotPrintable, 1}, {{kWine, kUnreliable, kLateCheck}}}},
    {"PrintableString with NUL",
     4,
     std::wstring(L"a\0", 2),
     {{"", kNotPrintable, 1}, {{kWine, kUnreliable, kLateCheck}}}},
    {"PrintableString beyond ASCII",
     4,
     L"\x0441",
     {{"", kNotPrintable, 0}, {{kWine, kUnreliable, kLateCheck}}}},
    {"TeletexString", 5, L"a\x00E9", {{"140261E9"}}},
    {"TeletexString beyond an octet",
     5,
     L"a\x0434",
     {{"", kNotX500, 1}, {{kWine, kUnreliable, kCuts}}}},
    {"IA5String", 7, L"a@\x007F\n", {{"160461407F0A"}}},
    {"IA5String beyond ASCII",
     7,
     L"ab\x0080",
     {{"", kNotIa5, 2}, {{kWine, kUnreliable, kLateCheck}}}},
    {"VisibleString", 9, L"~", {{"1A017E"}}},
    {"UniversalString", 11, L"a\x0434", {{"1C080000006100000434"}}},
    {"UniversalString with a pair",
     11,
     L"\xD83D\xDE00",
     {{"1C040001F600"}, {{kWine, kUnreliable, "writes both surrogates"}}}},
    {"BMPString", 12, L"a\x0434\xD83D", {{"1E0600610434D83D"}}},
    {"UTF8String", 13, L"a\x0434\xD83D\xDE00", {{"0C0761D0B4F09F9880"}}},
    {"empty PrintableString", 4, L"", {{"1300"}}},
    {"empty UTF8String", 13, L"", {{"0C00"}}},
    {"type past the table", 14, L"a", {{"", kNoSuchChoice}}},
};

TEST(EncodeUnicodeNameValue, WritesOrRefuses) {
  for (const EncodeRow& row : kEncodeRows) {
    SCOPED_TRACE(row.label);
    const Encoded& expected = row.expected.Here();
    if (expected.error == kUntouched) continue;
    const std::string octets = LittleEndian(row.text);
    auto value = ExactBlock<char>::CopyOf(octets.empty() ? std::string(2, '\0') : octets);
    const CERT_NAME_VALUE in{row.type, {static_cast<DWORD>(octets.size()), AsBytes(value.data())}};
    DWORD size = 0;
    SetLastError(kUntouched);
    const bool sized =
        CryptEncodeObject(kEncoding, X509_UNICODE_NAME_VALUE, &in, nullptr, &size) != FALSE;
    EXPECT_EQ(sized, expected.error == 0);
    ExpectLastError(!sized, expected.error);
    if (!sized) {
      EXPECT_EQ(size, expected.position);
      continue;
    }
    ExactBlock<char> out(size);
    EXPECT_TRUE(
        CryptEncodeObject(kEncoding, X509_UNICODE_NAME_VALUE, &in, AsBytes(out.data()), &size));
    EXPECT_EQ(Hex(std::string(out.data(), out.size())), expected.der);
  }
}

struct Decoded {
  DWORD type;
  std::wstring text;
  DWORD error = 0;
};

struct DecodeRow {
  const char* label;
  const char* der;  // hex
  Contract<Decoded> expected;
};

const char kCountsEnd[] = "counts the terminator of a UTF8String";

const DecodeRow kDecodeRows[] = {
    {"UTF8String",
     "0C 03 41 D0 B4",
     {{13, L"A\x0434"}, {{kWine, {13, std::wstring(L"A\x0434\0", 3)}, kCountsEnd}}}},
    {"PrintableString", "13 02 41 42", {{4, L"AB"}}},
    {"NumericString", "12 02 31 32", {{3, L"12"}}},
    {"TeletexString", "14 02 41 E9", {{5, L"A\x00E9"}}},
    {"IA5String beyond ASCII", "16 02 41 E9", {{7, L"A\x00E9"}}},
    {"VisibleString", "1A 01 41", {{9, L"A"}}},
    {"GeneralString", "1B 01 41", {{10, L"A"}}},
    {"UniversalString",
     "1C 08 00 00 00 41 00 00 04 34",
     {{11, L"A\x0434"}, {{kWine, {0, L"", kUntouched}, "mixes up sizes beyond one character"}}}},
    {"UniversalString with a pair",
     "1C 04 00 01 F6 00",
     {{11, L"\xD83D\xDE00"}, {{kWine, {11, L"\xF600"}, "cuts the upper half off"}}}},
    {"BMPString", "1E 04 00 41 04 34", {{12, L"A\x0434"}}},
    {"inner NUL", "13 03 41 00 42", {{4, std::wstring(L"A\0B", 3)}}},
    {"empty UTF8String", "0C 00", {{13, L""}}},
    {"empty BMPString", "1E 00", {{12, L""}}},
    {"BMPString of odd length",
     "1E 03 00 41 00",
     {{0, L"", kCorrupt}, {{kSystem, {0, L"", kUntouched}, "goes on with half a unit"}}}},
    {"UniversalString of 3 octets",
     "1C 03 00 00 00",
     {{0, L"", kCorrupt}, {{kSystem, {0, L"", kUntouched}, "goes on with half a character"}}}},
    {"OCTET STRING", "04 01 41", {{0, L"", kBadTag}}},
    {"INTEGER", "02 01 01", {{0, L"", kBadTag}}},
    {"constructed", "2C 03 0C 01 41", {{0, L"", kBadTag}}},
    {"nothing", "", {{0, L"", kCorrupt}}},
    {"tag alone", "0C", {{0, L"", kCorrupt}}},
};

TEST(DecodeUnicodeNameValue, ReadsOrRefuses) {
  for (const DecodeRow& row : kDecodeRows) {
    SCOPED_TRACE(row.label);
    const Decoded& expected = row.expected.Here();
    if (expected.error == kUntouched) continue;
    auto der = ExactBlock<char>::CopyOf(Octets(row.der));
    const auto derSize = static_cast<DWORD>(der.size());
    DWORD size = 0;
    SetLastError(kUntouched);
    const bool sized = CryptDecodeObject(kEncoding, X509_UNICODE_NAME_VALUE, AsBytes(der.data()),
                                         derSize, 0, nullptr, &size) != FALSE;
    EXPECT_EQ(sized, expected.error == 0);
    ExpectLastError(!sized, expected.error);
    if (!sized) continue;

    ExactBlock<char> out(size);
    EXPECT_TRUE(CryptDecodeObject(kEncoding, X509_UNICODE_NAME_VALUE, AsBytes(der.data()), derSize,
                                  0, out.data(), &size));
    CERT_NAME_VALUE value;
    std::memcpy(&value, out.data(), sizeof value);
    EXPECT_EQ(value.dwValueType, expected.type);
    const std::string text = LittleEndian(expected.text);
    ASSERT_EQ(value.Value.cbData, text.size());
    if (text.empty()) continue;
    EXPECT_EQ(value.Value.pbData, AsBytes(out.data()) + sizeof value);
    // Terminated behind its size; where Wine counts the terminator, none follows.
    const std::size_t readable = out.size() - sizeof value;
    EXPECT_GE(readable, text.size());
    const std::string rest(out.data() + sizeof value, readable);
    EXPECT_EQ(Hex(rest.substr(0, text.size())), Hex(text));
    EXPECT_EQ(Hex(rest.substr(rest.size() - 2)), "0000");
  }
}

}  // namespace
}  // namespace Ortholan::testing
