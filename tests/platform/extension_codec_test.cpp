// CryptEncodeObject and CryptDecodeObject over the structures of extensions.

#include <algorithm>
#include <cstdint>

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kEncoding = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;
constexpr DWORD kBadTag = static_cast<DWORD>(CRYPT_E_ASN1_BADTAG);
constexpr DWORD kCorrupt = static_cast<DWORD>(CRYPT_E_ASN1_CORRUPT);
constexpr DWORD kCutShort = static_cast<DWORD>(CRYPT_E_ASN1_EOD);
constexpr DWORD kTooLarge = static_cast<DWORD>(CRYPT_E_ASN1_LARGE);
constexpr DWORD kBrokenRule = static_cast<DWORD>(CRYPT_E_ASN1_RULE);
constexpr DWORD kNoIdentifier = static_cast<DWORD>(CRYPT_E_ASN1_ERROR);
constexpr DWORD kNotIa5 = static_cast<DWORD>(CRYPT_E_INVALID_IA5_STRING);
constexpr DWORD kInvalidArgument = 0x80070057;
constexpr unsigned kSystem = kWindows | kWine;

// A decoded structure as text, every pointer in it checked to stay inside the room.
class Description {
 public:
  Description(const void* room, std::size_t size)
      : room_(static_cast<const BYTE*>(room)), size_(size) {}

  std::string Of(const CERT_BASIC_CONSTRAINTS2_INFO& info) {
    std::string text = info.fCA != FALSE ? "CA" : "end entity";
    if (info.fPathLenConstraint == FALSE) return text;
    return text + ", path " + std::to_string(info.dwPathLenConstraint);
  }
  std::string Of(const CRYPT_BIT_BLOB& info) {
    return OctetsAt(info.pbData, info.cbData) + " unused " + std::to_string(info.cUnusedBits);
  }
  std::string Of(const CRYPT_DATA_BLOB& info) { return OctetsAt(info.pbData, info.cbData); }
  std::string Of(const CERT_ENHKEY_USAGE& info) {
    CheckInside(info.rgpszUsageIdentifier, info.cUsageIdentifier * sizeof(LPSTR));
    std::string text;
    for (DWORD i = 0; i < info.cUsageIdentifier; ++i) {
      text += (i != 0 ? " " : "") + TextAt(info.rgpszUsageIdentifier[i]);
    }
    return text;
  }
  std::string Of(const CERT_ALT_NAME_INFO& info) {
    CheckInside(info.rgAltEntry, info.cAltEntry * sizeof(CERT_ALT_NAME_ENTRY));
    std::string text;
    for (DWORD i = 0; i < info.cAltEntry; ++i) {
      text += (i != 0 ? " " : "") + Of(info.rgAltEntry[i]);
    }
    return text;
  }
  std::string Of(const CERT_AUTHORITY_KEY_ID2_INFO& info) {
    return "key " + Of(info.KeyId) + " issuer " + Of(info.AuthorityCertIssuer) + " serial " +
           Of(info.AuthorityCertSerialNumber);
  }

 private:
  std::string Of(const CERT_ALT_NAME_ENTRY& entry) {
    switch (entry.dwAltNameChoice) {
      case CERT_ALT_NAME_OTHER_NAME:
        CheckInside(entry.pOtherName, sizeof(CERT_OTHER_NAME));
        return "other:" + TextAt(entry.pOtherName->pszObjId) + "=" + Of(entry.pOtherName->Value);
      case CERT_ALT_NAME_RFC822_NAME:
        return "mail:" + TextAt(entry.pwszRfc822Name);
      case CERT_ALT_NAME_DNS_NAME:
        return "dns:" + TextAt(entry.pwszDNSName);
      case CERT_ALT_NAME_DIRECTORY_NAME:
        return "name:" + Of(entry.DirectoryName);
      case CERT_ALT_NAME_URL:
        return "url:" + TextAt(entry.pwszURL);
      case CERT_ALT_NAME_IP_ADDRESS:
        return "ip:" + Of(entry.IPAddress);
      case CERT_ALT_NAME_REGISTERED_ID:
        return "id:" + TextAt(entry.pszRegisteredID);
      default:
        return "choice " + std::to_string(entry.dwAltNameChoice);
    }
  }
  std::string OctetsAt(const BYTE* octets, DWORD size) {
    CheckInside(octets, size);
    return size != 0 ? Hex(std::vector<BYTE>(octets, octets + size)) : "none";
  }
  template <class Char>
  std::string TextAt(const Char* text) {
    const std::basic_string<Char> copy = text;
    CheckInside(text, (copy.size() + 1) * sizeof(Char));
    std::string narrow;
    for (const Char c : copy) narrow += static_cast<char>(c);
    return narrow;
  }
  void CheckInside(const void* part, std::size_t size) {
    if (size == 0) return;
    const auto* begin = static_cast<const BYTE*>(part);
    EXPECT_TRUE(begin >= room_ && begin + size <= room_ + size_) << "points out of the room";
  }

  const BYTE* room_;
  std::size_t size_;
};

template <class Info>
std::string Describe(const void* room, std::size_t size) {
  return Description(room, size).Of(*static_cast<const Info*>(room));
}

using Describer = std::string (*)(const void* room, std::size_t size);

struct StructKind {
  const char* name;
  LPCSTR type;
  Describer describe;
};

const StructKind kBasic = {"X509_BASIC_CONSTRAINTS2", X509_BASIC_CONSTRAINTS2,
                           Describe<CERT_BASIC_CONSTRAINTS2_INFO>};
const StructKind kUsage = {"X509_KEY_USAGE", X509_KEY_USAGE, Describe<CRYPT_BIT_BLOB>};
const StructKind kBits = {"X509_BITS", X509_BITS, Describe<CRYPT_BIT_BLOB>};
const StructKind kOctets = {"X509_OCTET_STRING", X509_OCTET_STRING, Describe<CRYPT_DATA_BLOB>};
const StructKind kPurposes = {"X509_ENHANCED_KEY_USAGE", X509_ENHANCED_KEY_USAGE,
                              Describe<CERT_ENHKEY_USAGE>};
const StructKind kNames = {"X509_ALTERNATE_NAME", X509_ALTERNATE_NAME,
                           Describe<CERT_ALT_NAME_INFO>};
const StructKind kAuthority = {"X509_AUTHORITY_KEY_ID2", X509_AUTHORITY_KEY_ID2,
                               Describe<CERT_AUTHORITY_KEY_ID2_INFO>};

struct Decoded {
  std::string text;
  DWORD error = 0;
};

// The answers that a realisation gives where nobody may rely on any.
const Decoded kUnreliable = {"", kUntouched};

struct DecodeRow {
  const StructKind& kind;
  const char* der;  // hex
  Contract<Decoded> expected;
  const char* again = nullptr;  // what writing the structure gives, where it is not `der`
};

const char kOnlyOctet[] = "reads the first octet alone as two arcs";
const char kOtherName[] = "knows no otherName";
const char kEodCode[] = "tells what is cut short from what is malformed";

const DecodeRow kDecodeRows[] = {
    {kBasic, "30 00", {{"end entity"}}},
    {kBasic, "30 03 01 01 FF", {{"CA"}}},
    {kBasic, "30 03 01 01 01", {{"CA"}}, "30 03 01 01 FF"},
    {kBasic, "30 03 01 01 00", {{"end entity"}}, "30 00"},
    {kBasic, "30 06 01 01 FF 02 01 00", {{"CA, path 0"}}},
    {kBasic, "30 03 02 01 05", {{"end entity, path 5"}}},
    {kBasic, "30 07 01 01 FF 02 02 00 80", {{"CA, path 128"}}},
    {kBasic, "30 80 01 01 FF 02 01 05 00 00", {{"CA, path 5"}}, "30 06 01 01 FF 02 01 05"},
    {kBasic,
     "30 0A 01 01 FF 02 05 00 FF FF FF FF",
     {{"CA, path 4294967295"}, {{kWine, {"", kTooLarge}, "keeps it in a signed number"}}}},
    {kBasic, "30 0A 01 01 FF 02 05 01 00 00 00 00", {{"", kTooLarge}}},
    {kBasic, "30 06 01 01 FF 02 01 FF", {{"", kCorrupt}, {{kWine, kUnreliable, "reads it"}}}},
    {kBasic, "30 05 01 01 FF 02 00", {{"", kCorrupt}, {{kWine, kUnreliable, "reads it as 0"}}}},
    {kBasic, "30 06 02 01 05 01 01 FF", {{"", kCorrupt}}},
    {kBasic, "30 06 01 01 FF 04 01 00", {{"", kCorrupt}}},
    {kBasic, "30 04 01 02 00 01", {{"", kCorrupt}}},
    {kBasic, "31 00", {{"", kBadTag}}},
    {kBasic, "30", {{"", kCorrupt}}},
    {kBasic, "30 03 01 01", {{"", kCorrupt}}},

    {kUsage, "03 02 01 06", {{"06 unused 1"}}},
    {kUsage, "03 03 07 00 80", {{"0080 unused 7"}}},
    {kUsage, "03 02 06 FF", {{"C0 unused 6"}}, "03 02 06 C0"},
    {kUsage, "03 01 00", {{"none unused 0"}}},
    {kUsage, "23 04 03 02 01 06", {{"", kBadTag}}},
    {kUsage, "04 02 01 06", {{"", kBadTag}}},
    {kUsage, "03", {{"", kCorrupt}}},
    {kBits, "03 04 00 01 00 FF", {{"0100FF unused 0"}}},
    {kBits, "03 03 00 00 00", {{"0000 unused 0"}}},
    {kBits, "03 00", {{"", kCorrupt}, {{kWine, kUnreliable, "counts below zero"}}}},
    {kBits, "03 01 05", {{"", kCorrupt}, {{kWine, kUnreliable, "keeps what is not there"}}}},
    {kBits, "03 02 08 80", {{"", kCorrupt}, {{kWine, kUnreliable, "takes any count"}}}},

    {kOctets, "04 00", {{"none"}}},
    {kOctets, "04 03 01 02 03", {{"010203"}}},
    {kOctets, "04 81 03 01 02 03", {{"010203"}}, "04 03 01 02 03"},
    {kOctets, "03 03 01 02 03", {{"", kBadTag}}},
    {kOctets, "04 03 01", {{"", kCorrupt}, {{kSystem, {"", kCutShort}, kEodCode}}}},

    {kPurposes, "30 00", {{""}}},
    {kPurposes,
     "30 14 06 08 2B 06 01 05 05 07 03 01 06 08 2B 06 01 05 05 07 03 02",
     {{"1.3.6.1.5.5.7.3.1 1.3.6.1.5.5.7.3.2"}}},
    {kPurposes, "30 06 06 04 55 1D 25 00", {{"2.5.29.37.0"}}},
    {kPurposes, "30 05 06 03 2A 80 01", {{"1.2.1"}}, "30 04 06 02 2A 01"},
    {kPurposes, "30 04 06 02 88 37", {{"2.999"}, {{kWine, {"3.16.55"}, kOnlyOctet}}}},
    {kPurposes, "30 03 06 01 78", {{"2.40"}, {{kWine, {"3.0"}, kOnlyOctet}}}},
    {kPurposes,
     "30 08 06 06 2A 8F FF FF FF 7F",
     {{"1.2.4294967295"}, {{kWine, kUnreliable, "goes wrong above 28 bits"}}}},
    {kPurposes,
     "30 08 06 06 2A 90 80 80 80 00",
     {{"", kTooLarge}, {{kWine, kUnreliable, "goes wrong above 28 bits"}}}},
    {kPurposes, "30 04 06 02 2A 80", {{"", kCorrupt}}},
    {kPurposes, "30 02 06 00", {{"", kCorrupt}, {{kWine, kUnreliable, "reads beyond the end"}}}},
    {kPurposes, "30 07 02 01 01 06 02 2A 03", {{"", kBadTag}}},
    {kPurposes, "04 00", {{"", kBadTag}}},

    {kNames, "30 00", {{""}}},
    {kNames, "30 07 82 05 61 2E 63 6F 6D", {{"dns:a.com"}}},
    {kNames, "30 07 81 05 61 40 62 2E 63", {{"mail:a@b.c"}}},
    {kNames, "30 0A 86 08 68 74 74 70 3A 2F 2F 61", {{"url:http://a"}}},
    {kNames, "30 06 87 04 7F 00 00 01", {{"ip:7F000001"}}},
    {kNames,
     "30 0F A4 0D 30 0B 31 09 30 07 06 03 55 04 03 13 00",
     {{"name:300B3109300706035504031300"}}},
    {kNames, "30 05 88 03 2A 03 04", {{"id:1.2.3.4"}}},
    {kNames,
     "30 10 A0 0E 06 03 2A 03 04 A0 07 0C 05 68 65 6C 6C 6F",
     {{"other:1.2.3.4=0C0568656C6C6F"}, {{kWine, {"", kBadTag}, kOtherName}}}},
    {kNames, "30 0C 82 03 61 2E 62 82 01 63 87 02 01 02", {{"dns:a.b dns:c ip:0102"}}},
    {kNames, "30 02 82 00", {{"dns:"}}},
    {kNames, "30 80 82 01 61 00 00", {{"dns:a"}}, "30 03 82 01 61"},
    {kNames,
     "30 80 A4 80 30 80 00 00 00 00 00 00",
     {{"name:30800000"}, {{kWine, kUnreliable, "does not nest what is of indefinite length"}}},
     "30 06 A4 04 30 80 00 00"},
    {kNames,
     "30 80 A4 80 04 80 00 00 00 00 00 00",
     {{"", kCorrupt}, {{kWine, kUnreliable, "does not nest what is of indefinite length"}}}},
    {kNames, "30 80 82 01 61", {{"", kCorrupt}, {{kWine, kUnreliable, "reads it all the same"}}}},
    {kNames, "30 0B A0 09 06 03 2A 03 04 04 02 05 00", {{"", kBadTag}}},
    {kNames, "30 04 82 02 00 41", {{"", kBrokenRule}}},
    {kNames, "30 04 A3 02 30 00", {{"", kBadTag}}},
    {kNames, "30 04 A5 02 30 00", {{"", kBadTag}}},
    {kNames,
     "30 05 8A 03 61 62 63",
     {{"", kBadTag}, {{kWine, {"", kCorrupt}, "has another code"}}}},
    {kNames,
     "30 03 02 01 01",
     {{"", kBadTag}, {{kWine, kUnreliable, "looks at the number alone"}}}},
    {kNames, "30 03 82 03 61", {{"", kCorrupt}, {{kSystem, {"", kCutShort}, kEodCode}}}},
    {kNames, "30 04 88 02 2A 80", {{"", kCorrupt}}},

    {kAuthority, "30 00", {{"key none issuer  serial none"}}},
    {kAuthority, "30 05 80 03 01 02 03", {{"key 010203 issuer  serial none"}}},
    {kAuthority, "30 04 82 02 00 80", {{"key none issuer  serial 8000"}}},
    {kAuthority, "30 05 82 03 01 02 03", {{"key none issuer  serial 030201"}}},
    {kAuthority,
     "30 0F 80 02 01 02 A1 06 A4 04 30 02 31 00 82 01 05",
     {{"key 0102 issuer name:30023100 serial 05"}}},
    {kAuthority, "30 08 82 01 02 80 03 01 02 03", {{"", kCorrupt}}},
    {kAuthority, "30 06 80 01 01 80 01 02", {{"", kCorrupt}}},
    {kAuthority, "30 03 83 01 01", {{"", kCorrupt}}},
    {kAuthority, "30 02 80 01", {{"", kCorrupt}}},
    {kAuthority, "05 00", {{"", kBadTag}}},
};

std::string EncodeAgain(const DecodeRow& row, const void* info) {
  DWORD size = 0;
  EXPECT_TRUE(CryptEncodeObject(kEncoding, row.kind.type, info, nullptr, &size));
  ExactBlock<char> out(size);
  EXPECT_TRUE(CryptEncodeObject(kEncoding, row.kind.type, info, AsBytes(out.data()), &size));
  return Hex(std::string(out.data(), out.size()));
}

TEST(ExtensionCodecs, ReadAndWriteAgain) {
  for (const DecodeRow& row : kDecodeRows) {
    SCOPED_TRACE(std::string(row.kind.name) + " " + row.der);
    const Decoded& expected = row.expected.Here();
    if (expected.error == kUntouched) continue;
    auto der = ExactBlock<char>::CopyOf(Octets(row.der));
    const auto decode = [&](void* out, DWORD* size) {
      return CryptDecodeObject(kEncoding, row.kind.type, AsBytes(der.data()),
                               static_cast<DWORD>(der.size()), 0, out, size);
    };
    DWORD size = 0;
    SetLastError(kUntouched);
    const bool decoded = decode(nullptr, &size) != FALSE;
    EXPECT_EQ(decoded, expected.error == 0);
    ExpectLastError(!decoded, expected.error);
    if (!decoded || expected.error != 0) continue;

    ExactBlock<char> room(size);
    EXPECT_TRUE(decode(room.data(), &size));
    EXPECT_EQ(row.kind.describe(room.data(), room.size()), expected.text);
    if (expected.text != row.expected.answer.text) continue;
    EXPECT_EQ(EncodeAgain(row, room.data()), Hex(Octets(row.again ? row.again : row.der)));
  }
}

// Natively no cut of a good encoding, and no octet changed in it, leads out of its block.
TEST(ExtensionCodecs, SpoiledEncodingsStayInside) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "not this library's code";
  for (const DecodeRow& row : kDecodeRows) {
    const std::string good = Octets(row.der);
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (const int change : {-1, 0x01, 0x20, 0x7F, 0x80, 0xFF}) {
        std::string spoiled = change < 0 ? good.substr(0, at) : good;
        if (change >= 0) spoiled[at] = static_cast<char>(spoiled[at] ^ change);
        auto der = ExactBlock<char>::CopyOf(spoiled);
        DWORD size = 0;
        if (!CryptDecodeObject(kEncoding, row.kind.type, AsBytes(der.data()),
                               static_cast<DWORD>(der.size()), 0, nullptr, &size)) {
          continue;
        }
        ExactBlock<char> room(size);
        ASSERT_TRUE(CryptDecodeObject(kEncoding, row.kind.type, AsBytes(der.data()),
                                      static_cast<DWORD>(der.size()), 0, room.data(), &size));
        row.kind.describe(room.data(), room.size());
      }
    }
  }
}

TEST(ExtensionCodecs, AreFoundByIdentifier) {
  const struct {
    const char* oid;
    const char* der;  // hex
  } kRows[] = {
      {"2.5.29.7", "30 03 82 01 61"},
      {"2.5.29.8", "30 03 82 01 61"},
      {"2.5.29.14", "04 01 05"},
      {"2.5.29.15", "03 02 01 06"},
      {"2.5.29.17", "30 03 82 01 61"},
      {"2.5.29.18", "30 03 82 01 61"},
      {"2.5.29.19", "30 00"},
      {"2.5.29.35", "30 03 80 01 05"},
      {"2.5.29.37", "30 04 06 02 2A 03"},
  };
  for (const auto& row : kRows) {
    auto der = ExactBlock<char>::CopyOf(Octets(row.der));
    DWORD size = 0;
    EXPECT_TRUE(CryptDecodeObject(kEncoding, row.oid, AsBytes(der.data()),
                                  static_cast<DWORD>(der.size()), 0, nullptr, &size))
        << row.oid;
    ExactBlock<char> room(size);
    EXPECT_TRUE(CryptDecodeObject(kEncoding, row.oid, AsBytes(der.data()),
                                  static_cast<DWORD>(der.size()), 0, room.data(), &size));
    DWORD again = 0;
    EXPECT_TRUE(CryptEncodeObject(kEncoding, row.oid, room.data(), nullptr, &again)) << row.oid;
    EXPECT_EQ(again, der.size()) << row.oid;
  }
}

struct Encoded {
  std::string der;  // hex
  DWORD error = 0;
};

const Encoded kAnyEncoding = {"", kUntouched};

void ExpectEncoding(LPCSTR type, const void* info, const Contract<Encoded>& contract) {
  const Encoded& expected = contract.Here();
  if (expected.error == kUntouched) return;
  DWORD size = 0;
  SetLastError(kUntouched);
  const bool sized = CryptEncodeObject(kEncoding, type, info, nullptr, &size) != FALSE;
  EXPECT_EQ(sized, expected.error == 0);
  ExpectLastError(!sized, expected.error);
  if (!sized) return;
  ExactBlock<char> out(size);
  EXPECT_TRUE(CryptEncodeObject(kEncoding, type, info, AsBytes(out.data()), &size));
  EXPECT_EQ(Hex(std::string(out.data(), out.size())), expected.der);
}

struct BitsRow {
  const char* octets;  // hex
  DWORD unused;
  const char* der;
};

TEST(EncodeBits, UnusedBitsAreDropped) {
  for (const BitsRow& row :
       {BitsRow{"06", 1, "03020106"}, BitsRow{"06", 0, "03020006"}, BitsRow{"FF", 3, "030203F8"},
        BitsRow{"0680", 7, "0303070680"}, BitsRow{"0000", 3, "0303030000"},
        BitsRow{"FFFF", 9, "030201FE"}, BitsRow{"FF", 8, "030100"}, BitsRow{"", 5, "030100"},
        BitsRow{"FF", 0xFFFFFFFF, "030100"}}) {
    SCOPED_TRACE(std::string(row.octets) + " without " + std::to_string(row.unused));
    auto octets = ExactBlock<char>::CopyOf(Octets(row.octets));
    const CRYPT_BIT_BLOB info = {static_cast<DWORD>(octets.size()), AsBytes(octets.data()),
                                 row.unused};
    ExpectEncoding(X509_BITS, &info, {{row.der}});
    ExpectEncoding(X509_KEY_USAGE, &info, {{row.der}});
  }
}

struct IdentifierRow {
  const char* text;
  Contract<Encoded> expected;  // of the SEQUENCE around it
};

TEST(EncodeIdentifiers, ByTheirArcs) {
  const Contract<Encoded> kRefused = {{"", kNoIdentifier}};
  const Contract<Encoded> kRefusedElsewhere = {{"", kNoIdentifier},
                                               {{kWine, kAnyEncoding, "writes something"}}};
  const IdentifierRow kRows[] = {
      {"1.2.3", {{"300406022A03"}}},
      {"1.2.127.128.16383.16384", {{"300B06092A7F8100FF7F818000"}}},
      {"0.39", {{"3003060127"}}},
      {"1.39", {{"300306014F"}}},
      {"2.47", {{"300306017F"}}},
      {"2.999.1", {{"30050603883701"}, {{kWine, kAnyEncoding, "cuts the first arcs to an octet"}}}},
      {"1.2.268435455", {{"300706052AFFFFFF7F"}}},
      {"1.2.4294967295",
       {{"300806062A8FFFFFFF7F"}, {{kWine, kAnyEncoding, "goes wrong above 28 bits"}}}},
      {"1.2.4294967296", kRefusedElsewhere},
      {"1.2.100000000000000000000", kRefusedElsewhere},
      {"1.40", kRefusedElsewhere},
      {"3.1.2", kRefusedElsewhere},
      {"1.2.", kRefusedElsewhere},
      {"-1.2", kRefusedElsewhere},
      {"", kRefused},
      {"1", kRefused},
      {".1.2", kRefused},
      {"1..2", kRefused},
      {"1.2.x", kRefused},
      {"1.2.3 ", kRefused},
  };
  for (const IdentifierRow& row : kRows) {
    SCOPED_TRACE(row.text);
    std::string text = row.text;
    LPSTR usages[] = {text.data()};
    const CERT_ENHKEY_USAGE info = {1, usages};
    ExpectEncoding(X509_ENHANCED_KEY_USAGE, &info, row.expected);
  }
}

CERT_ALT_NAME_ENTRY TextEntry(DWORD choice, const wchar_t* text) {
  CERT_ALT_NAME_ENTRY entry = {};
  entry.dwAltNameChoice = choice;
  entry.pwszDNSName = const_cast<wchar_t*>(text);
  return entry;
}

TEST(EncodeAlternateName, RefusesWhatItsTextCannotHold) {
  CERT_ALT_NAME_ENTRY entries[] = {TextEntry(CERT_ALT_NAME_DNS_NAME, L"a"),
                                   TextEntry(CERT_ALT_NAME_URL, L"bc\x0434"),
                                   TextEntry(CERT_ALT_NAME_RFC822_NAME, L"\x0080")};
  const CERT_ALT_NAME_INFO info = {3, entries};
  DWORD size = 0;
  SetLastError(kUntouched);
  EXPECT_FALSE(CryptEncodeObject(kEncoding, X509_ALTERNATE_NAME, &info, nullptr, &size));
  ExpectLastError(true, kNotIa5);
  EXPECT_EQ(size, 1u << 16 | 2u) << "the second entry's third unit";
}

TEST(EncodeAlternateName, NullTextIsEmptyAndChoicesAreChecked) {
  CERT_ALT_NAME_ENTRY entry = TextEntry(CERT_ALT_NAME_DNS_NAME, nullptr);
  const CERT_ALT_NAME_INFO info = {1, &entry};
  ExpectEncoding(X509_ALTERNATE_NAME, &info, {{"30028200"}});
  for (const DWORD choice : {DWORD{0}, DWORD{4}, DWORD{6}, DWORD{10}}) {
    entry = TextEntry(choice, L"a");
    ExpectEncoding(X509_ALTERNATE_NAME, &info, {{"", kInvalidArgument}});
  }
}

TEST(EncodeAuthorityKeyId, SerialNumbersAreMinimal) {
  const struct {
    const char* octets;  // hex, little-endian
    const char* der;
  } kRows[] = {{"05", "3003820105"},        {"00", "3003820100"},     {"8000", "300482020080"},
               {"010000", "3003820101"},    {"80FFFF", "3003820180"}, {"0080", "300482028000"},
               {"030201", "30058203010203"}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.octets);
    auto octets = ExactBlock<char>::CopyOf(Octets(row.octets));
    CERT_AUTHORITY_KEY_ID2_INFO info = {};
    info.AuthorityCertSerialNumber = {static_cast<DWORD>(octets.size()), AsBytes(octets.data())};
    ExpectEncoding(X509_AUTHORITY_KEY_ID2, &info, {{row.der}});
  }
}

TEST(ExtensionCodecs, CountsWithoutArraysAreRefused) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system relies on its caller";
  const Contract<Encoded> kRefused = {{"", ERROR_INVALID_PARAMETER}};
  const CRYPT_DATA_BLOB blob = {3, nullptr};
  ExpectEncoding(X509_OCTET_STRING, &blob, kRefused);
  const CRYPT_BIT_BLOB bits = {3, nullptr, 0};
  ExpectEncoding(X509_BITS, &bits, kRefused);
  const CERT_ENHKEY_USAGE usage = {1, nullptr};
  ExpectEncoding(X509_ENHANCED_KEY_USAGE, &usage, kRefused);
  LPSTR usages[] = {nullptr};
  const CERT_ENHKEY_USAGE nullUsage = {1, usages};
  ExpectEncoding(X509_ENHANCED_KEY_USAGE, &nullUsage, {{"", kNoIdentifier}});
  const CERT_ALT_NAME_INFO names = {1, nullptr};
  ExpectEncoding(X509_ALTERNATE_NAME, &names, kRefused);
  CERT_ALT_NAME_ENTRY entry = TextEntry(CERT_ALT_NAME_OTHER_NAME, nullptr);
  const CERT_ALT_NAME_INFO other = {1, &entry};
  ExpectEncoding(X509_ALTERNATE_NAME, &other, kRefused);
  CERT_AUTHORITY_KEY_ID2_INFO authority = {};
  authority.AuthorityCertIssuer = {1, nullptr};
  ExpectEncoding(X509_AUTHORITY_KEY_ID2, &authority, kRefused);
  authority = {};
  authority.KeyId = blob;
  ExpectEncoding(X509_AUTHORITY_KEY_ID2, &authority, kRefused);
}

}  // namespace
}  // namespace Ortholan::testing
