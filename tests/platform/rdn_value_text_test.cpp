// CertRDNValueToStrA, CertRDNValueToStrW.

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

// Neither text nor size: the type has no text here.
const char* const kNoText = nullptr;

struct TextRow {
  const char* label;
  DWORD type;
  const char* value;             // hex
  Contract<const char*> narrow;  // ASCII, or hex of the text where `isHex`
  Contract<const wchar_t*> wide;
};

constexpr unsigned kSystem = kWindows | kWine;
constexpr char kNoHex[] = "gives an empty text for what is no text";

const TextRow kRows[] = {
    {"any type",
     CERT_RDN_ANY_TYPE,
     "41",
     {kNoText, {{kSystem, "", kNoHex}}},
     {nullptr, {{kSystem, L"", kNoHex}}}},
    {"a whole element",
     CERT_RDN_ENCODED_BLOB,
     "0C 01 AF",
     {"#0C01AF", {{kSystem, "", kNoHex}}},
     {L"#0C01AF", {{kSystem, L"", kNoHex}}}},
    {"octets",
     CERT_RDN_OCTET_STRING,
     "00 7F FF",
     {"#007FFF", {{kSystem, "", kNoHex}}},
     {L"#007FFF", {{kSystem, L"", kNoHex}}}},
    {"no octets",
     CERT_RDN_OCTET_STRING,
     "",
     {"#", {{kSystem, "", kNoHex}}},
     {L"#", {{kSystem, L"", kNoHex}}}},
    {"NumericString", CERT_RDN_NUMERIC_STRING, "31 32", {"12"}, {L"12"}},
    {"PrintableString", CERT_RDN_PRINTABLE_STRING, "41 2C 42", {"A,B"}, {L"A,B"}},
    {"TeletexString", CERT_RDN_TELETEX_STRING, "41 42", {"AB"}, {L"AB"}},
    {"VideotexString", CERT_RDN_VIDEOTEX_STRING, "41", {"A"}, {L"A"}},
    {"IA5String", CERT_RDN_IA5_STRING, "61 40 62", {"a@b"}, {L"a@b"}},
    {"GraphicString", CERT_RDN_GRAPHIC_STRING, "41", {"A"}, {L"A"}},
    {"VisibleString", CERT_RDN_VISIBLE_STRING, "41", {"A"}, {L"A"}},
    {"GeneralString", CERT_RDN_GENERAL_STRING, "41", {"A"}, {L"A"}},
    {"empty PrintableString", CERT_RDN_PRINTABLE_STRING, "", {""}, {L""}},
    {"UniversalString",
     CERT_RDN_UNIVERSAL_STRING,
     "00 00 00 41",
     {kNoText, {{kSystem, "", kNoHex}}},
     {nullptr, {{kSystem, L"", kNoHex}}}},
    {"BMPString", CERT_RDN_BMP_STRING, "41 00 42 00", {"AB"}, {L"AB"}},
    {"BMPString, odd last octet", CERT_RDN_BMP_STRING, "41 00 42", {"A"}, {L"A"}},
    {"UTF8String", CERT_RDN_UTF8_STRING, "41 00 42 00", {"AB"}, {L"AB"}},
    {"empty UTF8String", CERT_RDN_UTF8_STRING, "", {""}, {L""}},
    {"type past the table",
     14,
     "41 00",
     {kNoText, {{kSystem, "", kNoHex}}},
     {nullptr, {{kSystem, L"", kNoHex}}}},
    {"type with flags",
     0x40000004,
     "41",
     {kNoText, {{kSystem, "", kNoHex}}},
     {nullptr, {{kSystem, L"", kNoHex}}}},
};

DWORD ToStr(DWORD type, CERT_RDN_VALUE_BLOB* value, char* out, DWORD room) {
  return CertRDNValueToStrA(type, value, out, room);
}

DWORD ToStr(DWORD type, CERT_RDN_VALUE_BLOB* value, wchar_t* out, DWORD room) {
  return CertRDNValueToStrW(type, value, out, room);
}

template <class Char>
void ExpectText(const TextRow& row, const Char* expected) {
  auto octets = ExactBlock<char>::CopyOf(Octets(row.value));
  CERT_RDN_VALUE_BLOB value{static_cast<DWORD>(octets.size()), AsBytes(octets.data())};
  const std::basic_string<Char> text = expected != nullptr ? expected : std::basic_string<Char>();
  const DWORD size = expected != nullptr ? static_cast<DWORD>(text.size() + 1) : 0;

  EXPECT_EQ(ToStr(row.type, &value, static_cast<Char*>(nullptr), 0), size);
  Char place{};
  EXPECT_EQ(ToStr(row.type, &value, &place, 0), size) << "room 0 asks for the size";
  ExactBlock<Char> out(size);
  EXPECT_EQ(ToStr(row.type, &value, out.data(), size), size);
  if (expected != nullptr) {
    EXPECT_EQ(Hex(std::basic_string<Char>(out.data(), size)), Hex(text + Char{}));
  }
}

TEST(CertRDNValueToStr, ByType) {
  for (const TextRow& row : kRows) {
    SCOPED_TRACE(row.label);
    ExpectText<char>(row, row.narrow.Here());
    ExpectText<wchar_t>(row, row.wide.Here());
  }
}

struct ForeignRow {
  const char* label;
  DWORD type;
  const char* value;   // hex
  const char* narrow;  // UTF-8
  Contract<std::wstring> wide;
};

// Text outside ASCII: natively 8-bit text is UTF-8, on the system its code page decides.
const ForeignRow kForeignRows[] = {
    {"BMPString", CERT_RDN_BMP_STRING, "34 04 AC 20", "\xD0\xB4\xE2\x82\xAC", {L"\x0434\x20AC"}},
    {"UTF8String, pair",
     CERT_RDN_UTF8_STRING,
     "3D D8 00 DE",
     "\xF0\x9F\x98\x80",
     {L"\xD83D\xDE00"}},
    {"BMPString, unpaired",
     CERT_RDN_BMP_STRING,
     "3D D8 41 00",
     "\xEF\xBF\xBD"
     "A",
     {L"\xD83D"
      L"A"}},
    {"text ends at NUL",
     CERT_RDN_BMP_STRING,
     "41 00 00 00 42 00",
     "A",
     {L"A", {{kSystem, std::wstring(L"A\0B", 3), "takes every unit"}}}},
    {"8-bit text",
     CERT_RDN_TELETEX_STRING,
     "D0 B4 41",
     "\xD0\xB4"
     "A",
     {L"\x0434"
      L"A",
      {{kSystem,
        L"\x00D0\x00B4"
        L"A",
        "widens each octet"}}}},
    {"8-bit text, broken",
     CERT_RDN_PRINTABLE_STRING,
     "E9 41",
     "\xE9"
     "A",
     {L"\xFFFD"
      L"A",
      {{kSystem,
        L"\x00E9"
        L"A",
        "widens each octet"}}}},
};

TEST(CertRDNValueToStr, OutsideAscii) {
  for (const ForeignRow& row : kForeignRows) {
    SCOPED_TRACE(row.label);
    auto octets = ExactBlock<char>::CopyOf(Octets(row.value));
    CERT_RDN_VALUE_BLOB value{static_cast<DWORD>(octets.size()), AsBytes(octets.data())};
    const std::wstring& wide = row.wide.Here();
    ExactBlock<wchar_t> out(wide.size() + 1);
    EXPECT_EQ(CertRDNValueToStrW(row.type, &value, nullptr, 0), out.size());
    EXPECT_EQ(CertRDNValueToStrW(row.type, &value, out.data(), static_cast<DWORD>(out.size())),
              out.size());
    EXPECT_EQ(Hex(std::wstring(out.data(), wide.size())), Hex(wide));
    if (ThisRealisation() != kNative) continue;

    const std::string narrow = row.narrow;
    ExactBlock<char> bytes(narrow.size() + 1);
    EXPECT_EQ(CertRDNValueToStrA(row.type, &value, nullptr, 0), bytes.size());
    EXPECT_EQ(CertRDNValueToStrA(row.type, &value, bytes.data(), static_cast<DWORD>(bytes.size())),
              bytes.size());
    EXPECT_EQ(Hex(std::string(bytes.data(), narrow.size())), Hex(narrow));
  }
}

TEST(CertRDNValueToStr, TooLittleRoomGivesAnEmptyText) {
  BYTE octets[] = {'a', 'b', 'c'};
  CERT_RDN_VALUE_BLOB value{3, octets};
  for (DWORD room = 1; room < 4; ++room) {
    ExactBlock<char> narrow(room);
    SetLastError(kUntouched);
    EXPECT_EQ(CertRDNValueToStrA(CERT_RDN_PRINTABLE_STRING, &value, narrow.data(), room), 1u);
    EXPECT_EQ(narrow[0], '\0');
    ExactBlock<wchar_t> wide(room);
    EXPECT_EQ(CertRDNValueToStrW(CERT_RDN_PRINTABLE_STRING, &value, wide.data(), room), 1u);
    EXPECT_EQ(wide[0], L'\0');
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
  }
}

}  // namespace
}  // namespace Ortholan::testing
