// Names as the library encodes them, read by OpenSSL: the pairs given come back, in RDNs of one
// attribute, in the string types documented.

#include <gtest/gtest.h>
#include <ortholan/name_encoder.h>
#include <ortholan/x509_name.h>

#include <algorithm>

#include "tests/differential/differences.h"
#include "tests/differential/our_name.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr DWORD kSemicolons = 0x40000000;
constexpr DWORD kUtf8 = 0x00040000;
constexpr DWORD kUtf8Always = 0x00140000;

struct Pair {
  std::string type;
  std::wstring value;
};

constexpr char kCountry[] = "2.5.4.6";
constexpr char kSerialNumber[] = "2.5.4.5";
constexpr char kEmail[] = "1.2.840.113549.1.9.1";
constexpr char kPostalAddress[] = "2.5.4.16";

bool IsPrintableType(const Pair& pair) {
  return pair.type == kCountry || pair.type == kSerialNumber;
}

// Whether X.680 41.4, by OpenSSL, or CR and LF make up the value; "=" is left out.
bool IsPrintable(const std::wstring& value) {
  for (const wchar_t c : value) {
    const auto octet = static_cast<unsigned char>(c);
    const bool lineEnd = c == L'\r' || c == L'\n';
    if (!lineEnd && (c > 0x7F || c == L'=')) return false;
    if (!lineEnd && ASN1_PRINTABLE_type(&octet, 1) != V_ASN1_PRINTABLESTRING) return false;
  }
  return true;
}

bool IsPlainAscii(const std::wstring& value) {
  return std::all_of(value.begin(), value.end(),
                     [](wchar_t c) { return (c >= 0x20 && c < 0x7F) || c == L'\r' || c == L'\n'; });
}

int TypeOf(const Pair& pair, DWORD options) {
  if (IsPrintableType(pair)) return V_ASN1_PRINTABLESTRING;
  if (pair.type == kEmail) return V_ASN1_IA5STRING;
  if (pair.type == kPostalAddress) return V_ASN1_SEQUENCE;
  if (IsPrintable(pair.value) && options != kUtf8Always) return V_ASN1_PRINTABLESTRING;
  return (options & kUtf8) != 0 ? V_ASN1_UTF8STRING : V_ASN1_BMPSTRING;
}

const char* const kWritten[] = {"2.5.4.3",
                                "2.5.4.65",
                                "2.5.4.12",
                                "2.5.4.11",
                                "2.5.4.10",
                                kEmail,
                                kCountry,
                                "1.2.840.113556.1.2.141",
                                "2.5.4.7",
                                kSerialNumber,
                                "2.5.4.8",
                                kPostalAddress,
                                "1.2.840.113549.1.9.2"};

bool IsEmpty(const Pair& pair) { return pair.value.empty(); }
bool IsNotPrintable(const Pair& pair) { return IsPrintableType(pair) && !IsPrintable(pair.value); }
bool IsNoEmail(const Pair& pair) { return pair.type == kEmail && !IsPlainAscii(pair.value); }

const Rule<Pair> kRefusedInStructures[] = {
    {"empty value", "README, what is refused", IsEmpty},
    {"country or serial number that is not printable", "RFC 5280 A.1: PrintableString alone",
     IsNotPrintable},
    {"e-mail address outside ASCII", "RFC 5280 A.1: IA5String alone", IsNoEmail},
};

const Rule<Pair> kRefusedInText[] = {
    {"type that is not written", "the table in docs/name-text.md",
     [](const Pair& pair) {
       return std::find(std::begin(kWritten), std::end(kWritten), pair.type) == std::end(kWritten);
     }},
    {"empty value", "README, what is refused", IsEmpty},
    {"country or serial number that is not printable", "RFC 5280 A.1: PrintableString alone",
     IsNotPrintable},
    {"e-mail address outside ASCII", "RFC 5280 A.1: IA5String alone", IsNoEmail},
};

// A value that text cannot give back: blanks at its ends are dropped, and what follows a NUL.
bool IsCutInText(const Pair& pair) {
  constexpr wchar_t kBlanks[] = L" \t\r\n";
  const std::wstring& value = pair.value;
  return value.find(L'\0') != value.npos ||
         (!value.empty() &&
          (value.find_first_of(kBlanks) == 0 || value.find_last_of(kBlanks) == value.size() - 1));
}

// The first arc is 0 to 2 (X.660); decoding makes others of what it reads as 40 * first + second.
bool HasNoFirstArc(const Pair& pair) { return pair.type[0] > '2' || pair.type[1] != '.'; }

std::vector<Pair> PairsOf(const OurName& name) {
  std::vector<Pair> pairs;
  for (const OurAttribute& attribute : name.tree) {
    pairs.push_back({attribute.type, attribute.text});
  }
  return pairs;
}

// What OpenSSL reads, a line an attribute: "type string-type units".
std::string Shown(const std::string& type, int tag, const std::wstring& value) {
  return type + ' ' + std::to_string(tag) + ' ' + Hex(value) + '\n';
}
std::string ShownByOpenssl(const IdentObj& der) {
  const openssl::Read<::X509_NAME> name = openssl::ReadName(std::string(AsText(der)));
  if (name.value == nullptr) return "refused for " + std::to_string(name.reason);
  if (name.size != der.cbData) return "octets left";
  std::string shown;
  int place = 0;
  for (const openssl::Attribute& attribute : openssl::Attributes(name.value.get())) {
    EXPECT_EQ(attribute.rdn, place++);
    shown += Shown(openssl::Dotted(attribute.type), ASN1_STRING_type(attribute.value),
                   Joined(openssl::TextOf(attribute.value).lines));
  }
  return shown;
}
std::string Expected(const std::vector<Pair>& pairs, DWORD options) {
  std::string shown;
  for (const Pair& pair : pairs) shown += Shown(pair.type, TypeOf(pair, options), pair.value);
  return shown;
}

std::wstring AsNameText(const std::vector<Pair>& pairs) {
  std::wstring text;
  for (const Pair& pair : pairs) {
    text += std::wstring(pair.type.begin(), pair.type.end()) + L'=' + Quoted(pair.value) + L';';
  }
  return text;
}

// UTF-16 that no surrogate stands alone in, as OpenSSL can read it back from UTF-8.
bool IsWellFormed(const std::wstring& text) {
  for (size_t i = 0; i < text.size(); ++i) {
    const bool pair =
        (text[i] & ~0x3FF) == 0xD800 && i + 1 < text.size() && (text[i + 1] & ~0x3FF) == 0xDC00;
    if (!pair && (text[i] & ~0x7FF) == 0xD800) return false;
    i += pair ? 1 : 0;
  }
  return true;
}

// Names that show what no record of tests/data does.
const std::vector<Pair> kCrafted[] = {
    {{kCountry, L"a_b"}, {kSerialNumber, L"1=2"}, {"2.5.4.10", L"="}},
    {{kEmail, L"a@\x43F"}, {kEmail, L"a@b.org"}, {"2.5.4.3", L""}},
    {{kPostalAddress, L"one\n\x434\x432\x430\nthree"}, {"2.5.4.3", L"\xD83D\xDE00"}},
    {{"2.5.4.3", L"\xD83D"}, {"2.5.4.11", L"\"quoted\", and 'plain'"}, {"2.5.4.65", L"\xA0"}},
};

RDNAttr AttributeOf(const Pair& pair) {
  std::string octets;
  for (const wchar_t c : pair.value) octets += {static_cast<char>(c), static_cast<char>(c >> 8)};
  // The padding that decoded values have.
  octets.append(4, '\0');
  return RDNAttr(pair.type.c_str(), CERT_RDN_UNICODE_STRING, ExactCopy(octets));
}

bool EncodeStructures(const std::vector<Pair>& pairs, DWORD options, IdentObj* der) {
  std::list<std::list<RDNAttr>> rdns;
  for (const Pair& pair : pairs) rdns.push_back({AttributeOf(pair)});
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return encoder.Encode(rdns, *der);
}

bool EncodeText(const std::vector<Pair>& pairs, DWORD options, IdentObj* der) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(kSemicolons | options);
  return encoder.Encode(AsNameText(pairs), *der, false);
}

using Encode = bool (*)(const std::vector<Pair>&, DWORD, IdentObj*);
using Holds = bool (*)(const Pair&);

// OpenSSL reads no surrogates in a BMPString.
bool IsBeyondUcs2(const Pair& pair) {
  return std::any_of(pair.value.begin(), pair.value.end(),
                     [](wchar_t c) { return (c & ~0x7FF) == 0xD800; });
}

void Remove(Holds holds, std::vector<Pair>* pairs) {
  pairs->erase(std::remove_if(pairs->begin(), pairs->end(), holds), pairs->end());
}

// How many attributes went through `encode` and came back.
size_t ReadAsGiven(std::vector<Pair> pairs, DWORD options, Encode encode) {
  if (options == 0) Remove(IsBeyondUcs2, &pairs);
  if (pairs.empty()) return 0;
  IdentObj der;
  EXPECT_TRUE(encode(pairs, options, &der));
  EXPECT_EQ(ShownByOpenssl(der), Expected(pairs, options));
  return pairs.size();
}

// Every attribute alone, and those of a name that are encoded together.
void ExpectReadAsGiven(Encode encode, Holds untold, Differences<Pair>* refused) {
  std::vector<std::vector<Pair>> names(std::begin(kCrafted), std::end(kCrafted));
  for (const std::string& octets : Samples("names.txt")) names.push_back(PairsOf(OurName(octets)));
  size_t read = 0;
  for (std::vector<Pair>& pairs : names) {
    SCOPED_TRACE(Expected(pairs, kUtf8));
    Remove(untold, &pairs);
    std::vector<Pair> taken;
    for (const Pair& pair : pairs) {
      IdentObj der;
      const bool encoded = encode({pair}, 0, &der);
      EXPECT_TRUE(encoded != refused->Explain(pair)) << pair.type << ' ' << Hex(pair.value);
      if (encoded && IsWellFormed(pair.value)) taken.push_back(pair);
    }
    for (const DWORD options : {DWORD{0}, kUtf8, kUtf8Always}) {
      read += ReadAsGiven(taken, options, encode);
    }
  }
  EXPECT_GT(read, 200u);
  refused->ExpectEachApplied();
}

TEST(NamesForOpenssl, AreReadAsGivenInStructures) {
  Differences<Pair> refused(kRefusedInStructures);
  ExpectReadAsGiven(EncodeStructures, HasNoFirstArc, &refused);
}

TEST(NamesForOpenssl, AreReadAsGivenInText) {
  Differences<Pair> refused(kRefusedInText);
  ExpectReadAsGiven(EncodeText, IsCutInText, &refused);
}

// The attributes of one RDN in the order given: a SET that is not sorted is read as well.
TEST(NamesForOpenssl, MayHaveRdnsOfSeveralAttributes) {
  const Pair pairs[] = {{"2.5.4.3", L"x"}, {"2.5.4.10", L"\x0416"}, {"2.5.4.11", L"ou"}};
  std::list<RDNAttr> rdn;
  for (const Pair& pair : pairs) rdn.push_back(AttributeOf(pair));
  IdentObj der;
  ASSERT_TRUE(X500NameEncoder().Encode(std::list<std::list<RDNAttr>>{{rdn}, {rdn.front()}}, der));
  const openssl::Read<::X509_NAME> name = openssl::ReadName(std::string(AsText(der)));
  ASSERT_NE(name.value, nullptr);
  const std::vector<openssl::Attribute> read = openssl::Attributes(name.value.get());
  ASSERT_EQ(read.size(), 4u);
  for (size_t i = 0; i < read.size(); ++i) {
    EXPECT_EQ(read[i].rdn, i < 3 ? 0 : 1);
    EXPECT_EQ(openssl::Dotted(read[i].type), pairs[i % 3].type);
    EXPECT_EQ(Joined(openssl::TextOf(read[i].value).lines), pairs[i % 3].value);
  }
}

}  // namespace
}  // namespace Ortholan::testing
