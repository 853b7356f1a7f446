// CryptEncodeObject and CryptDecodeObject over the structures of extensions.

#include <algorithm>

#include "tests/platform/contract.h"
#include "tests/platform/structure_text.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kNoIdentifier = static_cast<DWORD>(CRYPT_E_ASN1_ERROR);
constexpr DWORD kNotIa5 = static_cast<DWORD>(CRYPT_E_INVALID_IA5_STRING);
constexpr DWORD kNotPrintable = static_cast<DWORD>(CRYPT_E_INVALID_PRINTABLE_STRING);
constexpr DWORD kNoTime = static_cast<DWORD>(CRYPT_E_BAD_ENCODE);
constexpr DWORD kNoCodec = ERROR_FILE_NOT_FOUND;
constexpr DWORD kInvalidArgument = 0x80070057;

struct CodecAnswer {
  DWORD error = 0;  // 0 for success, kUntouched where nobody may rely on any answer
  std::string text;
  bool is_elsewhere = false;
};

// What a row of platform_structures.tsv expects of this realisation.
CodecAnswer AnswerHere(const VectorRow& row) {
  const bool elsewhere = ThisRealisation() == kWine || row.text("where") == "the system";
  if (ThisRealisation() != kNative && row.has("where") && elsewhere) {
    const std::string& cell = row.text("elsewhere");
    if (cell == "any") return {kUntouched, "", true};
    if (cell.compare(0, 2, "0x") != 0) return {0, cell, true};
    return {static_cast<DWORD>(row.number("elsewhere")), "", true};
  }
  return {static_cast<DWORD>(row.number("error")), row.text("shows"), false};
}

// One structure, in a block of exactly the size that the call asks for.
struct Decoded {
  DWORD error = 0;
  std::string text;
  std::vector<char> room;
};

Decoded Decode(const StructureKind& kind, LPCSTR type, const std::string& octets) {
  auto der = ExactBlock<char>::CopyOf(octets);
  const auto decode = [&](void* out, DWORD* size) {
    return CryptDecodeObject(kEncoding, type, AsBytes(der.data()), static_cast<DWORD>(der.size()),
                             0, out, size);
  };
  DWORD size = 0;
  SetLastError(kUntouched);
  const bool sized = decode(nullptr, &size) != FALSE;
  ExpectLastError(!sized, kAnyError);
  if (!sized) return {GetLastError(), "", {}};
  Decoded decoded;
  decoded.room.resize(size);
  decoded.room.shrink_to_fit();
  EXPECT_TRUE(decode(decoded.room.data(), &size));
  decoded.text = kind.describe(decoded.room.data(), decoded.room.size());
  return decoded;
}

struct Encoded {
  std::string der;  // hex
  DWORD error = 0;
  DWORD position = 0;  // stored in place of the size where a text is refused
};

Encoded Encode(LPCSTR type, const void* info) {
  DWORD size = 0;
  SetLastError(kUntouched);
  const bool sized = CryptEncodeObject(kEncoding, type, info, nullptr, &size) != FALSE;
  ExpectLastError(!sized, kAnyError);
  if (!sized) return {"", GetLastError(), size};
  ExactBlock<char> out(size);
  EXPECT_TRUE(CryptEncodeObject(kEncoding, type, info, AsBytes(out.data()), &size));
  return {Hex(std::string(out.data(), size)), 0, 0};
}

const StructureKind& KindOf(const VectorRow& row) {
  const StructureKind* const kind = FindStructureKind(row.text("structure"));
  EXPECT_NE(kind, nullptr) << row.where();
  return kind != nullptr ? *kind : *FindStructureKind("X509_BITS");
}

TEST(ExtensionCodecs, ReadAndWriteAgain) {
  for (const VectorRow& row : ReadVectors("platform_structures.tsv")) {
    SCOPED_TRACE(row.where());
    const CodecAnswer expected = AnswerHere(row);
    if (expected.error == kUntouched) continue;
    const StructureKind& kind = KindOf(row);
    const Decoded decoded = Decode(kind, kind.type, row.octets("der"));
    EXPECT_EQ(decoded.error, expected.error) << std::hex << decoded.error;
    EXPECT_EQ(decoded.text, expected.text);
    if (decoded.error != 0 || expected.is_elsewhere) continue;
    const Encoded again = Encode(kind.type, decoded.room.data());
    if (row.text("again") == "none") {
      EXPECT_EQ(again.error, kInvalidArgument);
    } else {
      EXPECT_EQ(again.der, Hex(row.octets(row.has("again") ? "again" : "der")));
    }
  }
}

// Natively no cut of a good encoding, and no octet changed in it, leads out of its block.
TEST(ExtensionCodecs, SpoiledEncodingsStayInside) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "not this library's code";
  for (const VectorRow& row : ReadVectors("platform_structures.tsv")) {
    SCOPED_TRACE(row.where());
    const StructureKind& kind = KindOf(row);
    const std::string good = row.octets("der");
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (const int change : {-1, 0x01, 0x20, 0x7F, 0x80, 0xFF}) {
        std::string spoiled = change < 0 ? good.substr(0, at) : good;
        if (change >= 0) spoiled[at] = static_cast<char>(spoiled[at] ^ change);
        const Decoded decoded = Decode(kind, kind.type, spoiled);
        ASSERT_TRUE(decoded.text.empty() || decoded.text.back() != '!') << Hex(spoiled);
        if (decoded.error == 0) Encode(kind.type, decoded.room.data());
      }
    }
  }
}

TEST(ExtensionCodecs, AreFoundByIdentifier) {
  const std::vector<VectorRow> samples = ReadVectors("platform_structures.tsv");
  for (const VectorRow& row : ReadVectors("platform_identifiers.tsv")) {
    SCOPED_TRACE(row.where());
    const auto sample = std::find_if(samples.rbegin(), samples.rend(), [&](const VectorRow& each) {
      return each.text("structure") == row.text("structure") && each.has("shows") &&
             !each.has("again") && (ThisRealisation() == kNative || !each.has("where"));
    });
    const std::string wine = ThisRealisation() == kWine ? row.text("wine") : "";
    if (wine == "lacks it") {
      const StructureKind& kind = KindOf(row);
      EXPECT_EQ(Decode(kind, row.text("identifier").c_str(), "\x30").error, kNoCodec);
      continue;
    }
    ASSERT_NE(sample, samples.rend());
    const char* const identifier = row.text("identifier").c_str();
    const Decoded decoded = Decode(KindOf(row), identifier, sample->octets("der"));
    EXPECT_EQ(decoded.text, sample->text("shows"));
    if (wine == "reads alone") continue;
    EXPECT_EQ(Encode(identifier, decoded.room.data()).der, Hex(sample->octets("der")));
  }
}

void ExpectEncoding(LPCSTR type, const void* info, const Contract<Encoded>& contract) {
  const Encoded& expected = contract.Here();
  if (expected.error == kUntouched) return;
  const Encoded encoded = Encode(type, info);
  EXPECT_EQ(encoded.error, expected.error) << std::hex << encoded.error;
  EXPECT_EQ(encoded.der, expected.der);
  EXPECT_EQ(encoded.position, expected.position);
}

const Encoded kAnyEncoding = {"", kUntouched};

TEST(EncodeBits, UnusedBitsAreDropped) {
  const struct {
    const char* octets;  // hex
    DWORD unused;
    const char* der;
  } kRows[] = {{"06", 1, "03020106"},     {"06", 0, "03020006"},     {"FF", 3, "030203F8"},
               {"0680", 7, "0303070680"}, {"0000", 3, "0303030000"}, {"FFFF", 9, "030201FE"},
               {"FF", 8, "030100"},       {"", 5, "030100"},         {"FF", 0xFFFFFFFF, "030100"}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::string(row.octets) + " without " + std::to_string(row.unused));
    auto octets = ExactBlock<char>::CopyOf(Octets(row.octets));
    const CRYPT_BIT_BLOB info = {static_cast<DWORD>(octets.size()), AsBytes(octets.data()),
                                 row.unused};
    ExpectEncoding(X509_BITS, &info, {{row.der}});
    ExpectEncoding(X509_KEY_USAGE, &info, {{row.der}});
  }
}

TEST(EncodeIdentifiers, ByTheirArcs) {
  const Contract<Encoded> kRefused = {{"", kNoIdentifier}};
  const Contract<Encoded> kRefusedElsewhere = {{"", kNoIdentifier},
                                               {{kWine, kAnyEncoding, "writes something"}}};
  const struct {
    const char* text;
    Contract<Encoded> expected;  // of the SEQUENCE around it
  } kRows[] = {
      {"1.2.3", {{"300406022A03"}}},
      {"1.2.127.128.16383.16384", {{"300B06092A7F8100FF7F818000"}}},
      {"0.39", {{"3003060127"}}},
      {"1.39", {{"300306014F"}}},
      {"2.47", {{"300306017F"}}},
      {"2.999.1", {{"30050603883701"}, {{kWine, kAnyEncoding, "cuts the first arcs to an octet"}}}},
      {"1.2.268435455", {{"300706052AFFFFFF7F"}}},
      {"1.2.4294967295",
       {{"300806062A8FFFFFFF7F"}, {{kWine, kAnyEncoding, "goes wrong above 28 bits"}}}},
      {"1.2.00000000004294967295",
       {{"300806062A8FFFFFFF7F"}, {{kWine, kAnyEncoding, "goes wrong above 28 bits"}}}},
      {"2.4294967295",
       {{"30070605908080804F"}, {{kWine, kAnyEncoding, "goes wrong above 28 bits"}}}},
      {"1.2.4294967296", kRefusedElsewhere},
      {"1.2.10000000000", kRefusedElsewhere},
      {"0.40", kRefusedElsewhere},
      {"1.2./", kRefusedElsewhere},
      {"1.2.:", kRefusedElsewhere},
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
  for (const auto& row : kRows) {
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

// The place of a refused text, as the macros of the system's header take it apart.
TEST(EncodeText, RefusalsTellThePlace) {
  CERT_ALT_NAME_ENTRY entries[] = {TextEntry(CERT_ALT_NAME_DNS_NAME, L"a"),
                                   TextEntry(CERT_ALT_NAME_URL, L"bc\x0434"),
                                   TextEntry(CERT_ALT_NAME_RFC822_NAME, L"\x0080")};
  const CERT_ALT_NAME_INFO names = {3, entries};
  ExpectEncoding(X509_ALTERNATE_NAME, &names, {{"", kNotIa5, 1u << 16 | 2}});

  const auto expect = [](LPCSTR type, const void* info, DWORD code, DWORD position) {
    ExpectEncoding(type, info,
                   {{"", code, position},
                    {{kWine, kAnyEncoding, "tells the place in the innermost structure alone"}}});
  };
  CRL_DIST_POINT points[2] = {};
  points[1].CRLIssuer = names;
  const CRL_DIST_POINTS_INFO list = {2, points};
  const DWORD kIssuer = 1u << 31;
  expect(X509_CRL_DIST_POINTS, &list, kNotIa5, kIssuer | 1u << 24 | 1u << 16 | 2);

  CERT_GENERAL_SUBTREE subtrees[2] = {{entries[0], 0, FALSE, 0}, {entries[1], 0, FALSE, 0}};
  CERT_NAME_CONSTRAINTS_INFO constraints = {2, subtrees, 0, nullptr};
  expect(X509_NAME_CONSTRAINTS, &constraints, kNotIa5, 1u << 16 | 2);
  constraints = {0, nullptr, 2, subtrees};
  const DWORD kExcluded = 1u << 31;
  expect(X509_NAME_CONSTRAINTS, &constraints, kNotIa5, kExcluded | 1u << 16 | 2);

  char method[] = "1.2.3";
  CERT_ACCESS_DESCRIPTION accesses[] = {{method, entries[0]}, {method, entries[1]}};
  const CERT_AUTHORITY_INFO_ACCESS access = {2, accesses};
  expect(X509_AUTHORITY_INFO_ACCESS, &access, kNotIa5, 1u << 16 | 2);

  BYTE text[] = {'a', 0, '@', 0};
  CERT_RDN_ATTR attrs[] = {{method, CERT_RDN_PRINTABLE_STRING, {2, text}},
                           {method, CERT_RDN_PRINTABLE_STRING, {4, text}}};
  CERT_RDN rdns[] = {{1, attrs}, {2, attrs}};
  const CERT_NAME_INFO name = {2, rdns};
  expect(X509_UNICODE_NAME, &name, kNotPrintable, 1u << 22 | 1u << 16 | 1);
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

TEST(EncodeNumbers, AreMinimal) {
  const Contract<Encoded> kNothing = {{"020100"}, {{kWine, kAnyEncoding, "writes no octet"}}};
  const struct {
    LPCSTR type;
    const char* octets;  // hex, least significant first
    Contract<Encoded> expected;
  } kRows[] = {
      {X509_MULTI_BYTE_INTEGER, "05", {{"020105"}}},
      {X509_MULTI_BYTE_INTEGER, "00", {{"020100"}}},
      {X509_MULTI_BYTE_INTEGER, "8000", {{"02020080"}}},
      {X509_MULTI_BYTE_INTEGER, "010000", {{"020101"}}},
      {X509_MULTI_BYTE_INTEGER, "80FFFF", {{"020180"}}},
      {X509_MULTI_BYTE_INTEGER, "0080", {{"02028000"}}},
      {X509_MULTI_BYTE_INTEGER, "030201", {{"0203010203"}}},
      {X509_MULTI_BYTE_INTEGER, "", kNothing},
      {X509_MULTI_BYTE_UINT, "80FFFF", {{"020400FFFF80"}}},
      {X509_MULTI_BYTE_UINT, "010000", {{"020101"}}},
      {X509_MULTI_BYTE_UINT, "", kNothing},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.octets);
    auto octets = ExactBlock<char>::CopyOf(Octets(row.octets));
    const CRYPT_DATA_BLOB blob = {static_cast<DWORD>(octets.size()), AsBytes(octets.data())};
    ExpectEncoding(row.type, &blob, row.expected);
  }
}

TEST(EncodeTime, UtcTimeEndsWith2049) {
  const auto ticks = [](WORD year) {
    const SYSTEMTIME time = {year, 1, 0, 2, 3, 4, 5, 999};
    FILETIME file_time = {};
    EXPECT_TRUE(SystemTimeToFileTime(&time, &file_time));
    return file_time;
  };
  for (const WORD year : {WORD{1949}, WORD{2050}, WORD{10000}}) {
    const FILETIME time = ticks(year);
    const Contract<Encoded> kRefused = {{"", kNoTime},
                                        {{kWine, kAnyEncoding, "takes 2050, and five digits"}}};
    ExpectEncoding(PKCS_UTC_TIME, &time, kRefused);
    if (year == 10000) ExpectEncoding(X509_CHOICE_OF_TIME, &time, kRefused);
  }
  const FILETIME time = ticks(2049);
  ExpectEncoding(PKCS_UTC_TIME, &time, {{"170D3439303130323033303430355A"}});
}

TEST(ExtensionCodecs, CountsWithoutArraysAreRefused) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system relies on its caller";
  // A count, or an octet count, without what it counts, at each place of a structure that has one.
  const struct {
    const char* structure;
    std::size_t count;  // offset
  } kRows[] = {
      {"X509_OCTET_STRING", 0},       {"X509_BITS", 0},
      {"X509_ENHANCED_KEY_USAGE", 0}, {"X509_ALTERNATE_NAME", 0},
      {"X509_AUTHORITY_KEY_ID2", 0},  {"X509_AUTHORITY_KEY_ID2", 16},
      {"X509_AUTHORITY_KEY_ID2", 32}, {"X509_NAME", 0},
      {"X509_EXTENSIONS", 0},         {"X509_NAME_CONSTRAINTS", 16},
      {"X509_CRL_DIST_POINTS", 0},    {"X509_ISSUING_DIST_POINT", 32},
      {"X509_MULTI_BYTE_UINT", 0},    {"X509_MULTI_BYTE_INTEGER", 0},
      {"X509_SEQUENCE_OF_ANY", 0},    {"X509_CROSS_CERT_DIST_POINTS", 4},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::string(row.structure) + " " + std::to_string(row.count));
    alignas(8) BYTE info[64] = {};
    info[row.count] = 3;
    ExpectEncoding(FindStructureKind(row.structure)->type, info, {{"", ERROR_INVALID_PARAMETER}});
  }
  const Decoded none = Decode(*FindStructureKind("X509_ENHANCED_KEY_USAGE"),
                              X509_ENHANCED_KEY_USAGE, Octets("30 00"));
  CERT_ENHKEY_USAGE empty;
  std::memcpy(&empty, none.room.data(), sizeof empty);
  EXPECT_EQ(empty.rgpszUsageIdentifier, nullptr);
  // The last number that is not read as the address of an identifier.
  ExpectEncoding(reinterpret_cast<LPCSTR>(0xFFFF), "", {{"", kNoCodec}});
  LPSTR usages[] = {nullptr};
  const CERT_ENHKEY_USAGE usage = {1, usages};
  ExpectEncoding(X509_ENHANCED_KEY_USAGE, &usage, {{"", kNoIdentifier}});
  CERT_ALT_NAME_ENTRY entry = TextEntry(CERT_ALT_NAME_OTHER_NAME, nullptr);
  const CERT_ALT_NAME_INFO other = {1, &entry};
  ExpectEncoding(X509_ALTERNATE_NAME, &other, {{"", ERROR_INVALID_PARAMETER}});
}

}  // namespace
}  // namespace Ortholan::testing
