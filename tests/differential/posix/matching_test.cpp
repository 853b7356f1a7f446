// Whether two names are the same, asked of OpenSSL too: real names, and copies of them in other
// letters, blanks and string types, each against each. Every difference has its rule.
#include <gtest/gtest.h>
#include <openssl/x509.h>

#include <ortholan/strict.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/differential/differences.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/certificates.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

struct Value {
  char identifier;
  std::string content;
};

constexpr char kUtf8 = 12;
constexpr char kPrintable = 19;
constexpr char kTeletex = 20;
constexpr char kIa5 = 22;

// Strings in which ASCII characters take an octet each.
bool HasAsciiOctets(char identifier) {
  return identifier == kUtf8 || identifier == kPrintable || identifier == kIa5;
}

void CapitalsOfAscii(Value* value) {
  if (!HasAsciiOctets(value->identifier)) return;
  for (char& c : value->content) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
}
void Blanks(Value* value) {
  if (HasAsciiOctets(value->identifier)) value->content = ' ' + value->content + "  ";
}
void AsUtf8(Value* value) {
  if (HasAsciiOctets(value->identifier)) value->identifier = kUtf8;
}
void AsTeletex(Value* value) {
  if (value->identifier == kPrintable) value->identifier = kTeletex;
}
// D0 B0 to D0 BF, the first half of the alphabet, whose capital letters are D0 90 to D0 9F.
void CyrillicCapitals(Value* value) {
  for (size_t i = 1; value->identifier == kUtf8 && i < value->content.size(); ++i) {
    char& c = value->content[i];
    if (value->content[i - 1] == '\xD0' && c >= '\xB0') c = static_cast<char>(c - 0x20);
  }
}
void SoftHyphen(Value* value) {
  if (value->identifier == kUtf8) value->content += "\xC2\xAD";
}
// An accent of its own behind the letter, in place of both in one.
void Decomposed(Value* value) {
  const size_t at = value->content.find("\xC3\xA9");
  if (value->identifier == kUtf8 && at != std::string::npos) {
    value->content.replace(at, 2, "e\xCC\x81");
  }
}
void Emoticon(Value* value) {
  if (value->identifier == kUtf8) value->content += "\xF0\x9F\x98\x80";
}
void EmoticonAndCapitals(Value* value) {
  Emoticon(value);
  CapitalsOfAscii(value);
}

using Edit = void (*)(Value*);
constexpr Edit kEdits[] = {CapitalsOfAscii, Blanks,           AsUtf8,
                           AsTeletex,       CyrillicCapitals, SoftHyphen,
                           Decomposed,      Emoticon,         EmoticonAndCapitals};

std::string Edited(const ortholan::NameView& name, Edit edit) {
  std::string rdns;
  std::string rdn;
  for (const ortholan::Attribute& attribute : name) {
    if (attribute.begins_rdn() && !rdn.empty()) rdns += Tlv(0x31, rdn);
    if (attribute.begins_rdn()) rdn.clear();
    const ortholan::Octets type = attribute.type();
    const ortholan::Octets content = attribute.content();
    Value value = {static_cast<char>(attribute.identifier()), {content.begin(), content.end()}};
    edit(&value);
    rdn += Tlv(0x30, Tlv(0x06, std::string(type.begin(), type.end())) +
                         Tlv(static_cast<uint8_t>(value.identifier), value.content));
  }
  return Tlv(0x30, rdns + (rdn.empty() ? "" : Tlv(0x31, rdn)));
}

// A name in both readings, and two of them with the answer.
struct Name {
  std::string octets;
  openssl::Read<::X509_NAME> theirs;
};
struct Pair {
  const Name& first;
  const Name& second;
  ortholan::Match ours;

  bool AnyHolds(std::string_view part) const {
    return first.octets.find(part) != std::string::npos ||
           second.octets.find(part) != std::string::npos;
  }
  std::string TypeOfReason() const {
    const ortholan::Octets type(ours.details().type);
    return {type.begin(), type.end()};
  }
};

void Append(const std::string& octets, std::vector<Name>* names) {
  openssl::Read<::X509_NAME> theirs = openssl::ReadName(octets);
  if (theirs.value != nullptr) names->push_back({octets, std::move(theirs)});
}

constexpr char kDomainComponent[] = "09 92 26 89 93 F2 2C 64 01 19";
constexpr char kEmailAddress[] = "2A 86 48 86 F7 0D 01 09 01";

const Rule<Pair> kSameHereAlone[] = {
    {"soft hyphen", "mapped to nothing, RFC 4518 2.2",
     [](const Pair& pair) { return pair.AnyHolds("\xC2\xAD"); }},
    {"accent behind its letter", "Normalization Form KC, RFC 4518 2.3",
     [](const Pair& pair) { return pair.AnyHolds("e\xCC\x81"); }},
    {"letters beyond ASCII", "folded by RFC 4518 2.2; OpenSSL folds ASCII",
     [](const Pair& pair) { return pair.AnyHolds("\xD0"); }},
};

const Rule<Pair> kSameThereAlone[] = {
    {"TeletexString", "its characters are not defined, RFC 4518 2.1; OpenSSL takes ISO 8859-1",
     [](const Pair& pair) { return pair.ours.reason() == ORTHOLAN_REASON_VALUE_TELETEX; }},
    {"code point that Unicode 3.2 does not know", "prohibited, RFC 4518 2.4: Undefined",
     [](const Pair& pair) { return pair.ours.reason() == ORTHOLAN_REASON_VALUE_UNDEFINED; }},
    {"no text of its type", "RFC 4518 2.1, X.680 41; OpenSSL takes any octets",
     [](const Pair& pair) { return pair.ours.reason() == ORTHOLAN_REASON_VALUE_TEXT; }},
    {"blanks in a domain or a mailbox", "their case alone does not count, RFC 5280 7.3 and 7.5",
     [](const Pair& pair) {
       const std::string type = Hex(pair.TypeOfReason());
       return pair.ours.reason() == ORTHOLAN_REASON_VALUE &&
              (type == kDomainComponent || type == kEmailAddress);
     }},
};

TEST(MatchingBesideOpenSsl, DiffersByRule) {
  Differences<Pair> same_here(kSameHereAlone);
  Differences<Pair> same_there(kSameThereAlone);
  std::size_t alike[2] = {};
  const auto compare = [&](const Name& first, const Name& second) {
    const Pair pair = {first, second, ortholan::MatchNames(first.octets, second.octets)};
    const bool theirs = X509_NAME_cmp(first.theirs.value.get(), second.theirs.value.get()) == 0;
    if (theirs == pair.ours.is_yes()) {
      ++alike[theirs ? 1 : 0];
      return;
    }
    EXPECT_TRUE((theirs ? same_there : same_here).Explain(pair))
        << Hex(first.octets) << ' ' << Hex(second.octets) << ' ' << pair.ours.Sentence();
  };

  std::vector<Name> originals;
  for (const std::string& octets : Samples("names.txt")) {
    const auto name = ortholan::NameView::Read(octets, ortholan::Reading::kStructure);
    if (!name) continue;
    std::vector<Name> copies;
    Append(octets, &copies);
    for (const Edit edit : kEdits) Append(Edited(*name, edit), &copies);
    for (const Name& first : copies) {
      for (const Name& second : copies) compare(first, second);
    }
    Append(octets, &originals);
  }
  for (const Name& first : originals) {
    for (const Name& second : originals) compare(first, second);
  }
  EXPECT_GT(alike[1], 1000u);
  EXPECT_GT(alike[0], 1000u);
  same_here.ExpectEachApplied();
  same_there.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
