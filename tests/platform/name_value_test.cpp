// CryptEncodeObject and CryptDecodeObject over X509_NAME_VALUE, and how both treat types and sizes.

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kEncoding = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;
constexpr DWORD kBadTag = static_cast<DWORD>(CRYPT_E_ASN1_BADTAG);
constexpr DWORD kCorrupt = static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT);
constexpr DWORD kCutShort = static_cast<DWORD>(CRYPT_E_ASN1_EOD);
constexpr DWORD kTooLarge = static_cast<DWORD>(CRYPT_E_ASN1_LARGE);
constexpr DWORD kNoSuchChoice = static_cast<DWORD>(CRYPT_E_ASN1_CHOICE);
constexpr DWORD kInvalidArgument = 0x80070057;
constexpr DWORD kAccessViolation = 0xC0000005;

struct Encoded {
  std::string der;  // hex
  DWORD error = 0;
};

struct EncodeRow {
  const char* label;
  DWORD type;
  const char* value;  // hex
  Contract<Encoded> expected;
};

const EncodeRow kEncodeRows[] = {
    {"any type", CERT_RDN_ANY_TYPE, "41", {{"", kInvalidArgument}}},
    {"a whole element", CERT_RDN_ENCODED_BLOB, "0C 01 41", {{"0C0141"}}},
    {"OCTET STRING", CERT_RDN_OCTET_STRING, "00 FF", {{"040200FF"}}},
    {"NumericString", CERT_RDN_NUMERIC_STRING, "31 32", {{"12023132"}}},
    {"PrintableString", CERT_RDN_PRINTABLE_STRING, "41 42", {{"13024142"}}},
    {"PrintableString is not checked", CERT_RDN_PRINTABLE_STRING, "40 E9 00", {{"130340E900"}}},
    {"TeletexString", CERT_RDN_TELETEX_STRING, "41 E9", {{"140241E9"}}},
    {"VideotexString", CERT_RDN_VIDEOTEX_STRING, "41", {{"150141"}}},
    {"IA5String", CERT_RDN_IA5_STRING, "61 40 62", {{"1603614062"}}},
    {"GraphicString", CERT_RDN_GRAPHIC_STRING, "41", {{"190141"}}},
    {"VisibleString", CERT_RDN_VISIBLE_STRING, "41", {{"1A0141"}}},
    {"GeneralString", CERT_RDN_GENERAL_STRING, "41", {{"1B0141"}}},
    {"BMPString", CERT_RDN_BMP_STRING, "34 04 3D D8 00 DE", {{"1E060434D83DDE00"}}},
    {"BMPString keeps NUL", CERT_RDN_BMP_STRING, "41 00 00 00", {{"1E0400410000"}}},
    {"BMPString, odd last octet", CERT_RDN_BMP_STRING, "41 00 42", {{"1E020041"}}},
    {"UTF8String",
     CERT_RDN_UTF8_STRING,
     "41 00 34 04 AC 20 3D D8 00 DE",
     {{"0C0A41D0B4E282ACF09F9880"}}},
    {"UTF8String keeps NUL", CERT_RDN_UTF8_STRING, "41 00 00 00 42 00", {{"0C03410042"}}},
    {"UTF8String, unpaired surrogate", CERT_RDN_UTF8_STRING, "3D D8", {{"0C03EFBFBD"}}},
    {"UTF8String, odd last octet", CERT_RDN_UTF8_STRING, "41 00 42", {{"0C0141"}}},
    {"empty PrintableString", CERT_RDN_PRINTABLE_STRING, "", {{"1300"}}},
    {"empty BMPString", CERT_RDN_BMP_STRING, "", {{"1E00"}}},
    {"empty UTF8String", CERT_RDN_UTF8_STRING, "", {{"0C00"}}},
    {"type past the table", 14, "41", {{"", kNoSuchChoice}}},
    {"type far past the table", 0x10000004, "41", {{"", kNoSuchChoice}}},
};

// Runs a call twice, for the size and into a block of that size; returns the octets' hex.
template <class Call>
Encoded TwoCalls(const Call& call) {
  DWORD size = 0;
  SetLastError(kUntouched);
  if (!call(static_cast<BYTE*>(nullptr), &size)) return {"", GetLastError()};
  ExpectLastError(false, 0);
  std::string out(size, '\x5A');
  ExactBlock<char> block(size);
  const DWORD needed = size;
  EXPECT_TRUE(call(AsBytes(block.data()), &size));
  EXPECT_EQ(size, needed);
  return {Hex(std::string(block.data(), size)), 0};
}

TEST(EncodeNameValue, WritesOrRefuses) {
  for (const EncodeRow& row : kEncodeRows) {
    SCOPED_TRACE(row.label);
    const Encoded& expected = row.expected.Here();
    const std::string octets = Octets(row.value);
    // An empty value that the realisation must not look at still has a place.
    auto value = ExactBlock<char>::CopyOf(octets.empty() ? std::string(2, '\0') : octets);
    const CERT_NAME_VALUE in{row.type, {static_cast<DWORD>(octets.size()), AsBytes(value.data())}};
    const Encoded actual = TwoCalls([&in](BYTE* out, DWORD* size) {
      return CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, out, size);
    });
    EXPECT_EQ(actual.der, expected.der);
    EXPECT_EQ(actual.error, expected.error) << std::hex << actual.error;
  }
}

// The length field's forms, X.690 8.1.3: one octet up to 127, then as few as will do.
TEST(EncodeNameValue, LengthField) {
  const struct {
    std::size_t size;
    const char* header;
  } kRows[] = {{127, "137F"},       {128, "138180"},       {255, "1381FF"},       {256, "13820100"},
               {65535, "1382FFFF"}, {65536, "1383010000"}, {300000, "13830493E0"}};
  for (const auto& row : kRows) {
    std::string text(row.size, 'x');
    const CERT_NAME_VALUE in{CERT_RDN_PRINTABLE_STRING,
                             {static_cast<DWORD>(text.size()), AsBytes(text.data())}};
    const Encoded actual = TwoCalls([&in](BYTE* out, DWORD* size) {
      return CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, out, size);
    });
    EXPECT_EQ(actual.der, row.header + Hex(text)) << row.size;
  }
}

struct Decoded {
  DWORD type;
  std::string value;  // hex
  DWORD error = 0;
};

struct DecodeRow {
  const char* label;
  const char* der;  // hex
  Contract<Decoded> expected;
};

constexpr unsigned kSystem = kWindows | kWine;

const DecodeRow kDecodeRows[] = {
    {"UTF8String", "0C 03 41 D0 B4", {{13, "41003404"}}},
    {"UTF8String beyond the units", "0C 04 F0 9F 98 80", {{13, "3DD800DE"}}},
    {"UTF8String with NUL", "0C 03 41 00 42", {{13, "410000004200"}}},
    {"UTF8String, broken", "0C 03 C3 41 80", {{13, "FDFF4100FDFF"}}},
    {"BMPString", "1E 06 04 34 D8 3D DE 00", {{12, "34043DD800DE"}}},
    {"PrintableString", "13 02 41 42", {{4, "4142"}}},
    {"PrintableString is not checked", "13 03 40 E9 00", {{4, "40E900"}}},
    {"TeletexString", "14 02 41 E9", {{5, "41E9"}}},
    {"IA5String", "16 03 61 40 62", {{7, "614062"}}},
    {"VisibleString", "1A 01 41", {{9, "41"}}},
    {"empty UTF8String", "0C 00", {{13, ""}}},
    {"empty BMPString", "1E 00", {{12, ""}}},
    {"empty PrintableString", "13 00", {{4, ""}}},
    {"long form of a short length", "0C 81 01 41", {{13, "4100"}}},
    {"length in four octets", "0C 84 00 00 00 01 41", {{13, "4100"}}},
    {"what follows is not looked at", "0C 01 41 FF", {{13, "4100"}}},

    {"NumericString", "12 01 31", {{3, "31"}, {{kNative, {0, "", kBadTag}, "six types alone"}}}},
    {"OCTET STRING", "04 01 41", {{2, "41"}, {{kNative, {0, "", kBadTag}, "six types alone"}}}},
    {"GeneralString", "1B 01 41", {{10, "41"}, {{kNative, {0, "", kBadTag}, "six types alone"}}}},
    {"INTEGER", "02 01 41", {{0, "", kBadTag}}},
    {"SEQUENCE", "30 03 0C 01 41", {{0, "", kBadTag}}},
    {"constructed UTF8String", "2C 03 0C 01 41", {{0, "", kBadTag}}},
    {"context class", "8C 01 41", {{0, "", kBadTag}}},
    {"application class", "4C 01 41", {{0, "", kBadTag}}},
    {"high tag form",
     "1F 0C 01 41",
     {{0, "", kBadTag}, {{kWine, {0, "", kCutShort}, "reads the length before the tag"}}}},

    {"nothing", "", {{0, "", kCorrupt}}},
    {"tag alone", "0C", {{0, "", kCorrupt}}},
    {"length missing", "0C 82 01", {{0, "", kCorrupt}}},
    {"content cut short",
     "0C 03 41 42",
     {{0, "", kCorrupt},
      {{kWindows, {0, "", kCutShort}, "tells what is cut short from what is malformed"},
       {kWine, {0, "", kUntouched}, "reads one octet beyond the end"}}}},
    {"content missing",
     "1E 02",
     {{0, "", kCorrupt},
      {{kSystem, {0, "", kCutShort}, "tells what is cut short from what is malformed"}}}},
    {"content of 4 GB", "13 84 FF FF FF FF 41", {{0, "", kCorrupt}}},
    {"length beyond 32 bits",
     "13 88 00 00 00 01 00 00 00 01 41",
     {{0, "", kCorrupt}, {{kSystem, {0, "", kTooLarge}, "has a code of its own"}}}},
    {"length of 9 octets that wraps",
     "13 89 01 00 00 00 00 00 00 00 01 41",
     {{0, "", kCorrupt}, {{kSystem, {0, "", kTooLarge}, "has a code of its own"}}}},
    {"length of 127 octets",
     "13 FF 01",
     {{0, "", kCorrupt}, {{kSystem, {0, "", kTooLarge}, "has a code of its own"}}}},
    {"indefinite length", "0C 80 41 00 00", {{0, "", kCorrupt}}},
    {"BMPString of odd length",
     "1E 03 00 41 00",
     {{0, "", kCorrupt}, {{kSystem, {12, "", kUntouched}, "leaves the last octet unwritten"}}}},
};

TEST(DecodeNameValue, ReadsOrRefuses) {
  for (const DecodeRow& row : kDecodeRows) {
    SCOPED_TRACE(row.label);
    const Decoded& expected = row.expected.Here();
    if (expected.error == kUntouched) continue;  // an answer that nobody may rely on
    auto der = ExactBlock<char>::CopyOf(Octets(row.der));
    const auto derSize = static_cast<DWORD>(der.size());
    const auto decode = [&](void* out, DWORD* size) {
      return CryptDecodeObject(kEncoding, X509_NAME_VALUE, AsBytes(der.data()), derSize, 0, out,
                               size);
    };

    DWORD size = 0;
    SetLastError(kUntouched);
    const bool decoded = decode(nullptr, &size) != FALSE;
    EXPECT_EQ(decoded, expected.error == 0);
    ExpectLastError(!decoded, expected.error);
    if (!decoded) continue;

    EXPECT_EQ(size, sizeof(CERT_NAME_VALUE) + expected.value.size() / 2);
    ExactBlock<char> out(size);
    EXPECT_TRUE(decode(out.data(), &size));
    EXPECT_EQ(size, out.size());
    CERT_NAME_VALUE value;
    std::memcpy(&value, out.data(), sizeof value);
    EXPECT_EQ(value.dwValueType, expected.type);
    if (expected.value.empty()) {
      EXPECT_EQ(value.Value.cbData, 0u);
      EXPECT_EQ(value.Value.pbData, nullptr);
      continue;
    }
    EXPECT_EQ(value.Value.pbData, AsBytes(out.data()) + sizeof value);
    EXPECT_EQ(Hex(std::string(out.data() + sizeof value, value.Value.cbData)), expected.value);
  }
}

TEST(DecodeNameValue, WhatWasWrittenComesBack) {
  for (const EncodeRow& row : kEncodeRows) {
    SCOPED_TRACE(row.label);
    const bool readable = row.type == CERT_RDN_PRINTABLE_STRING ||
                          row.type == CERT_RDN_IA5_STRING || row.type == CERT_RDN_TELETEX_STRING ||
                          row.type == CERT_RDN_VISIBLE_STRING;
    if (!readable) continue;
    std::string der = Octets(row.expected.Here().der);
    DWORD size = 512;
    ExactBlock<char> out(size);
    ASSERT_TRUE(CryptDecodeObject(kEncoding, X509_NAME_VALUE, AsBytes(der.data()),
                                  static_cast<DWORD>(der.size()), 0, out.data(), &size));
    CERT_NAME_VALUE value;
    std::memcpy(&value, out.data(), sizeof value);
    EXPECT_EQ(value.dwValueType, row.type);
    EXPECT_EQ(value.Value.cbData, Octets(row.value).size());
  }
}

struct RoomRow {
  const char* label;
  DWORD room;
  bool fits;
};

TEST(CodecSizes, TooLittleRoomIsRefusedAndTheNeedStored) {
  BYTE text[] = {'A'};
  const CERT_NAME_VALUE value{CERT_RDN_PRINTABLE_STRING, {1, text}};
  for (const RoomRow& row : {RoomRow{"none", 0, false}, RoomRow{"one less", 2, false},
                             RoomRow{"just enough", 3, true}, RoomRow{"more", 9, true}}) {
    SCOPED_TRACE(row.label);
    ExactBlock<char> out(row.room);
    DWORD size = row.room;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &value, AsBytes(out.data()), &size),
              row.fits ? TRUE : FALSE);
    ExpectLastError(!row.fits, ERROR_MORE_DATA);
    EXPECT_EQ(size, 3u);
  }

  if (ThisRealisation() == kWine) return;  // it writes past the room when it decodes
  BYTE der[] = {0x13, 0x01, 'A'};
  for (const RoomRow& row : {RoomRow{"none", 0, false}, RoomRow{"the structure alone", 24, false},
                             RoomRow{"just enough", 25, true}, RoomRow{"more", 40, true}}) {
    SCOPED_TRACE(row.label);
    ExactBlock<char> out(row.room);
    DWORD size = row.room;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptDecodeObject(kEncoding, X509_NAME_VALUE, der, sizeof der, 0, out.data(), &size),
              row.fits ? TRUE : FALSE);
    ExpectLastError(!row.fits, ERROR_MORE_DATA);
    EXPECT_EQ(size, 25u);
  }
}

struct TypeRow {
  const char* label;
  DWORD encoding;
  LPCSTR type;
  bool known;
};

TEST(CodecTypes, AreFoundByEncodingAndType) {
  const TypeRow kRows[] = {
      {"both encodings", kEncoding, X509_NAME_VALUE, true},
      {"X.509 alone", X509_ASN_ENCODING, X509_NAME_VALUE, true},
      {"PKCS #7 alone", PKCS_7_ASN_ENCODING, X509_NAME_VALUE, true},
      {"no encoding", 0, X509_NAME_VALUE, false},
      {"another encoding", 0x00020002, X509_NAME_VALUE, false},
      {"no such constant", kEncoding, reinterpret_cast<LPCSTR>(999), false},
      {"no such identifier", kEncoding, "1.2.3", false},
      {"empty identifier", kEncoding, "", false},
      {"null", kEncoding, nullptr, false},
  };
  BYTE der[] = {0x13, 0x01, 'A'};
  BYTE text[] = {'A'};
  const CERT_NAME_VALUE value{CERT_RDN_PRINTABLE_STRING, {1, text}};
  for (const TypeRow& row : kRows) {
    SCOPED_TRACE(row.label);
    DWORD size = 0;
    SetLastError(kUntouched);
    EXPECT_EQ(CryptDecodeObject(row.encoding, row.type, der, sizeof der, 0, nullptr, &size),
              row.known ? TRUE : FALSE);
    ExpectLastError(!row.known, ERROR_FILE_NOT_FOUND);
    SetLastError(kUntouched);
    EXPECT_EQ(CryptEncodeObject(row.encoding, row.type, &value, nullptr, &size),
              row.known ? TRUE : FALSE);
    ExpectLastError(!row.known, ERROR_FILE_NOT_FOUND);
  }
}

TEST(CodecArguments, NullStructureIsRefused) {
  DWORD size = 0;
  SetLastError(kUntouched);
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, nullptr, nullptr, &size));
  const Contract<DWORD> kError{
      ERROR_INVALID_PARAMETER,
      {{kSystem, kAccessViolation, "runs into the null pointer and catches itself"}}};
  ExpectLastError(true, kError.Here());
}

TEST(CodecArguments, CountedOctetsMustBeThere) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system relies on its caller";
  const CERT_NAME_VALUE in{CERT_RDN_PRINTABLE_STRING, {5, nullptr}};
  DWORD size = 0;
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, nullptr, &size));
  ExpectLastError(true, ERROR_INVALID_PARAMETER);
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &in, nullptr, nullptr));
  EXPECT_FALSE(CryptDecodeObject(kEncoding, X509_NAME_VALUE, nullptr, 5, 0, nullptr, &size));
  ExpectLastError(true, ERROR_INVALID_PARAMETER);

  // The largest value there can be: its element would pass 32 bits.
  BYTE octet = 'A';
  const CERT_NAME_VALUE huge{CERT_RDN_PRINTABLE_STRING, {0xFFFFFFFF, &octet}};
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_NAME_VALUE, &huge, nullptr, &size));
  ExpectLastError(true, kTooLarge);
}

}  // namespace
}  // namespace Ortholan::testing
