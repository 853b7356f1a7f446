// Names as the library writes them from structures and from text, read by OpenSSL: the pairs given
// come back, one an RDN, in the string types of the options.

#include <gtest/gtest.h>
#include <ortholan/name_encoder.h>

#include <algorithm>

#include "tests/differential/differences.h"
#include "tests/differential/our_name.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

struct Given {
  std::string type;
  std::wstring value;
};
using GivenName = std::vector<Given>;

constexpr char kEmailType[] = "1.2.840.113549.1.9.1";

bool IsPrintableType(const Given& pair) {
  return pair.type == "2.5.4.6" || pair.type == "2.5.4.5";  // country, serial number
}

// X.680 41.4, by OpenSSL; here line ends are printable and "=" is not, see name_encoder.h.
bool IsPrintable(wchar_t c) {
  const auto octet = static_cast<unsigned char>(c);
  if (c == L'\r' || c == L'\n') return true;
  return c < 0x80 && c != L'=' && ASN1_PRINTABLE_type(&octet, 1) == V_ASN1_PRINTABLESTRING;
}
bool IsMail(wchar_t c) { return (c >= 0x20 && c < 0x7F) || c == L'\r' || c == L'\n'; }
bool AreAll(bool (*is)(wchar_t), const Given& pair) {
  return std::all_of(pair.value.begin(), pair.value.end(), is);
}

int StringType(const Given& pair, DWORD options) {
  if (IsPrintableType(pair)) return V_ASN1_PRINTABLESTRING;
  if (pair.type == kEmailType) return V_ASN1_IA5STRING;
  if (pair.type == "2.5.4.16") return V_ASN1_SEQUENCE;  // postal address
  if (AreAll(IsPrintable, pair) && options != kEncodeAlwaysUtf8) return V_ASN1_PRINTABLESTRING;
  return (options & kEncodeUtf8) != 0 ? V_ASN1_UTF8STRING : V_ASN1_BMPSTRING;
}

constexpr const char* kTextTypes[] = {"2.5.4.3",
                                      "2.5.4.5",
                                      "2.5.4.6",
                                      "2.5.4.7",
                                      "2.5.4.8",
                                      "2.5.4.10",
                                      "2.5.4.11",
                                      "2.5.4.12",
                                      "2.5.4.16",
                                      "2.5.4.65",
                                      kEmailType,
                                      "1.2.840.113549.1.9.2",
                                      "1.2.840.113556.1.2.141"};

const Rule<Given> kRefused[] = {
    {"empty value", "README, what it refuses",
     [](const Given& pair) { return pair.value.empty(); }},
    {"country or serial number that is not printable", "RFC 5280 A.1: PrintableString alone",
     [](const Given& pair) { return IsPrintableType(pair) && !AreAll(IsPrintable, pair); }},
    {"e-mail address outside ASCII", "RFC 5280 A.1: IA5String alone",
     [](const Given& pair) { return pair.type == kEmailType && !AreAll(IsMail, pair); }},
};
const Rule<Given> kRefusedInText[] = {
    {"type that is not written", "the table in docs/name-text.md",
     [](const Given& pair) {
       return std::find(std::begin(kTextTypes), std::end(kTextTypes), pair.type) ==
              std::end(kTextTypes);
     }},
    kRefused[0],
    kRefused[1],
    kRefused[2],
};

// What a form cannot give back: decoding makes first arcs above 2 of what it reads as 40 * first +
// second; text loses blanks at the ends of a value, and what follows a NUL.
bool IsUntoldInStructure(const Given& pair) { return pair.type[0] > '2' || pair.type[1] != '.'; }
bool IsUntoldInText(const Given& pair) {
  constexpr wchar_t kBlanks[] = L" \t\r\n";
  const std::wstring& value = pair.value;
  return value.find(L'\0') != value.npos || value.find_first_of(kBlanks) == 0 ||
         (!value.empty() && value.find_last_of(kBlanks) == value.size() - 1);
}
// OpenSSL reads no surrogates in a BMPString.
bool IsUntoldInBmp(const Given& pair) {
  return std::any_of(pair.value.begin(), pair.value.end(),
                     [](wchar_t c) { return (c & ~0x7FF) == 0xD800; });
}

bool EncodeStructures(const GivenName& pairs, DWORD options, IdentObj* der) {
  std::list<std::list<RDNAttr>> rdns;
  for (const Given& pair : pairs) {
    std::string octets;
    for (const wchar_t c : pair.value) octets += {static_cast<char>(c), static_cast<char>(c >> 8)};
    octets.append(4, '\0');  // as decoded values have
    rdns.push_back({RDNAttr(pair.type.c_str(), CERT_RDN_UNICODE_STRING, ExactCopy(octets))});
  }
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  return encoder.Encode(rdns, *der);
}
bool EncodeText(const GivenName& pairs, DWORD options, IdentObj* der) {
  std::wstring text;
  for (const Given& pair : pairs) {
    text += std::wstring(pair.type.begin(), pair.type.end()) + L'=' + Quoted(pair.value) + L';';
  }
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(kEncodeSemicolon | options);
  return encoder.Encode(text, *der, false);
}

std::string Line(int rdn, const std::string& type, int string_type, const std::wstring& value) {
  return std::to_string(rdn) + ' ' + type + ' ' + std::to_string(string_type) + ' ' + Hex(value) +
         '\n';
}
std::string ReadByOpenssl(const IdentObj& der) {
  const openssl::Read<::X509_NAME> name = openssl::ReadName(std::string(AsText(der)));
  if (name.value == nullptr || name.size != der.cbData) return "refused";
  std::string lines;
  for (const openssl::Attribute& read : openssl::Attributes(name.value.get())) {
    lines += Line(read.rdn, openssl::Dotted(read.type), ASN1_STRING_type(read.value),
                  Joined(openssl::TextOf(read.value).lines));
  }
  return lines;
}

// What the records hold, and what none of them does.
std::vector<GivenName> AllGiven() {
  std::vector<GivenName> given = {
      {{"2.5.4.6", L"a_b"}, {"2.5.4.5", L"1=2"}, {"2.5.4.10", L"="}},
      {{kEmailType, L"a@\x43F"}, {kEmailType, L"a@b.org"}, {"2.5.4.3", L""}},
      {{"2.5.4.16", L"one\n\x434\x432\x430\nthree"}, {"2.5.4.3", L"\xD83D\xDE00"}},
      {{"2.5.4.11", L"\"quoted\", and 'plain'"}, {"2.5.4.65", L"\xA0"}},
  };
  for (const std::string& octets : Samples("names.txt")) {
    GivenName pairs;
    for (const OurAttribute& each : OurName(octets).tree) pairs.push_back({each.type, each.text});
    given.push_back(pairs);
  }
  return given;
}

using Encode = bool (*)(const GivenName&, DWORD, IdentObj*);
using Holds = bool (*)(const Given&);

void ExpectReadAsGiven(Encode encode, Holds untold, Differences<Given> refused) {
  size_t read = 0;
  for (const GivenName& given : AllGiven()) {
    for (const DWORD options : {0u, kEncodeUtf8, kEncodeAlwaysUtf8}) {
      GivenName taken;
      std::string expected;
      for (const Given& pair : given) {
        IdentObj der;
        if (untold(pair) || (options == 0 && IsUntoldInBmp(pair))) continue;
        const bool encoded = encode({pair}, options, &der);
        EXPECT_NE(encoded, refused.Explain(pair)) << pair.type << ' ' << Hex(pair.value);
        if (!encoded) continue;
        expected +=
            Line(static_cast<int>(taken.size()), pair.type, StringType(pair, options), pair.value);
        taken.push_back(pair);
      }
      IdentObj der;
      if (taken.empty()) continue;
      EXPECT_TRUE(encode(taken, options, &der)) << expected;
      EXPECT_EQ(ReadByOpenssl(der), expected);
      read += taken.size();
    }
  }
  EXPECT_GT(read, 200u);
  refused.ExpectEachApplied();
}

TEST(NamesForOpenssl, AreReadAsGivenInStructures) {
  ExpectReadAsGiven(EncodeStructures, IsUntoldInStructure, Differences<Given>(kRefused));
}
TEST(NamesForOpenssl, AreReadAsGivenInText) {
  ExpectReadAsGiven(EncodeText, IsUntoldInText, Differences<Given>(kRefusedInText));
}

}  // namespace
}  // namespace Ortholan::testing
