// Names as the library decodes them and as OpenSSL does: types, values and the structure of RDNs,
// of real names and of spoiled ones.

#include <gtest/gtest.h>
#include <openssl/asn1err.h>
#include <ortholan/asn1.h>

#include <algorithm>

#include "tests/differential/differences.h"
#include "tests/differential/our_name.h"
#include "tests/differential/posix/every_sample.h"
#include "tests/differential/posix/identifiers.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

using openssl::Attribute;
using openssl::Part;
using openssl::ValueText;

// One name in both readings.
struct NameCase {
  explicit NameCase(const std::string& name)
      : octets(name), ours(name), theirs(openssl::ReadName(name)) {
    if (theirs.value != nullptr) attributes = openssl::Attributes(theirs.value.get());
  }

  bool taken() const { return ours.has_tree; }
  // Whether OpenSSL refuses for that reason.
  bool IsRefusedFor(int reason) const { return theirs.reason == reason; }
  template <class Holds>
  bool AnyPart(Holds holds) const {
    const std::vector<Part> parts = openssl::Parts(octets);
    return std::any_of(parts.begin(), parts.end(), holds);
  }
  bool AnyValue(unsigned char identifier) const {
    return AnyPart([identifier](const Part& part) {
      return part.place == Part::kTypeOrValue && part.identifier == identifier;
    });
  }

  std::string octets;
  OurName ours;
  openssl::Read<::X509_NAME> theirs;
  std::vector<Attribute> attributes;
};

// Whether a BMPString has a unit that is half of a surrogate pair.
bool HasSurrogate(const Part& part) {
  if (part.identifier != V_ASN1_BMPSTRING) return false;
  for (size_t i = 0; i + 1 < part.content.size(); i += 2) {
    if ((part.content[i] & 0xF8) == 0xD8) return true;
  }
  return false;
}

const Rule<NameCase> kTheyRefuseName[] = {
    {"tag of the name, an RDN, an attribute or a type",
     "X.501 9.2; here an attribute is an identifier and a value, in constructed elements",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_WRONG_TAG) && name.AnyPart([](const Part& part) {
         const unsigned char expected = part.place == Part::kRdn           ? 0x31
                                        : part.place == Part::kTypeOrValue ? V_ASN1_OBJECT
                                                                           : 0x30;
         return part.identifier != expected;
       });
     }},
    {"constructed identifier", "X.690 8.19.1; here its tag number alone is looked at",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_TYPE_NOT_PRIMITIVE) && name.AnyValue(0x20 | V_ASN1_OBJECT);
     }},
    {"padded arc", kPaddedReason,
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_INVALID_OBJECT_ENCODING) &&
              name.AnyPart([](const Part& part) {
                return part.identifier == V_ASN1_OBJECT && HasPaddedArc(part.content);
              });
     }},
    {"value in a constructed form that has none", "X.690 8.14, 10.2; here its encoding is kept",
     [](const NameCase& name) {
       return name.AnyPart([](const Part& part) {
         return part.place == Part::kTypeOrValue && part.identifier > 0x20 &&
                part.identifier < 0x40 && part.identifier != 0x30 && part.identifier != 0x31;
       });
     }},
    {"primitive SEQUENCE or SET as a value", "X.690 8.9.1, 8.11.1; here its encoding is kept",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_TYPE_NOT_CONSTRUCTED); }},
    {"value of tag number 0", "reserved for the end of contents, X.690 8.1.5; here its octets",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_UNEXPECTED_EOC) && name.AnyValue(V_ASN1_EOC);
     }},
    {"length 0 in the long form at an end", "X.690 8.1.3.5; OpenSSL wants an octet behind it",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_HEADER_TOO_LONG) && name.AnyPart([](const Part& part) {
         return part.content.empty() && part.header_size > 2;
       });
     }},
    {"value that is not of the universal class", "here its encoding is kept, or its octets shown",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_MSTRING_NOT_UNIVERSAL); }},
    {"value of a type that OpenSSL's names do not hold",
     "VisibleString, INTEGER, OCTET STRING, ...",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_MSTRING_WRONG_TAG); }},
    {"UTF8String that is no UTF-8", "as on Windows each broken part is read as U+FFFD",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_INVALID_UTF8STRING) && name.AnyValue(V_ASN1_UTF8STRING);
     }},
    {"surrogates in a BMPString", "not UCS-2, X.690 8.23.8; taken for UTF-16, as Windows writes it",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_ILLEGAL_CHARACTERS) && name.AnyPart(HasSurrogate);
     }},
    {"BMPString of odd length", "X.690 8.23.8; here its encoding is kept",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_BMPSTRING_IS_WRONG_LENGTH); }},
    {"UniversalString of characters above 10FFFF", "here its octets are shown",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_ILLEGAL_CHARACTERS) && name.AnyValue(V_ASN1_UNIVERSALSTRING);
     }},
    {"UniversalString of a length not divisible by 4", "X.690 8.23.7; here its octets are shown",
     [](const NameCase& name) {
       return name.IsRefusedFor(ASN1_R_UNIVERSALSTRING_IS_WRONG_LENGTH);
     }},
    {"BIT STRING with more than 7 unused bits", "X.690 8.6.2.2; here its octets are shown",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_INVALID_BIT_STRING_BITS_LEFT); }},
    {"BIT STRING without octets", "X.690 8.6.2.3; here its octets are shown",
     [](const NameCase& name) { return name.IsRefusedFor(ASN1_R_STRING_TOO_SHORT); }},
};

bool HasSeveralAttributes(const NameCase& name) {
  for (size_t i = 1; i < name.attributes.size(); ++i) {
    if (name.attributes[i].rdn == name.attributes[i - 1].rdn) return true;
  }
  return false;
}

const Rule<NameCase> kWeRefuseName[] = {
    {"RDN of several attributes", "no decoder takes them; see the header", HasSeveralAttributes},
    {"RDN without attributes", "X.501 9.3 has at least one; OpenSSL leaves it out",
     [](const NameCase& name) {
       return name.AnyPart(
           [](const Part& part) { return part.place == Part::kRdn && part.children == 0; });
     }},
    {"primitive SEQUENCE or SET", "X.690 8.9.1, 8.11.1; OpenSSL does not look",
     [](const NameCase& name) {
       return name.AnyPart([](const Part& part) {
         return part.place <= Part::kAttribute && (part.identifier & 0x20) == 0;
       });
     }},
    {"tag number 0 in the indefinite form", "reserved for the end of contents, X.690 8.1.5",
     [](const NameCase& name) {
       return name.AnyPart([](const Part& part) { return part.identifier == V_ASN1_EOC; });
     }},
    {"arc above 32 bits", kLongArcReason,
     [](const NameCase& name) {
       return std::any_of(
           name.attributes.begin(), name.attributes.end(),
           [](const Attribute& attribute) { return HasLongArc(openssl::Content(attribute.type)); });
     }},
};

// Names that show what no record of tests/data does.
constexpr Crafted kCraftedNames[] = {
    {"surrogates", "30 11 31 0F 30 0D 06 03 55 04 03 1E 06 00 61 D8 3D DE 00"},
    {"long form of length 0", "30 81 00"},
    {"primitive SEQUENCE", "30 0E 31 0C 30 0A 06 03 55 04 10 10 03 0C 01 61"},
    {"value of tag 0", "30 0B 31 09 30 07 06 03 55 04 03 00 00"},
    {"BIT STRING without octets", "30 0B 31 09 30 07 06 03 55 04 03 03 00"},
    {"constructed, a part of tag 0", "30 10 31 0E 30 0C 06 03 55 04 03 23 80 00 01 00 00 00"},
    {"constructed string", "30 12 31 10 30 0E 06 03 55 04 03 2C 07 0C 02 61 62 0C 01 63"},
    {"SEQUENCE of strings", "30 13 31 11 30 0F 06 03 55 04 10 30 08 0C 01 61 0C 00 13 01 62"},
    {"SEQUENCE of a number and a SEQUENCE",
     "30 15 31 13 30 11 06 03 55 04 10 30 0A 02 01 05 30 05 13 00 1E 01 00"},
    {"SEQUENCE of an identifier and an empty BOOLEAN, to terminators",
     "30 80 31 80 30 80 06 01 6B 30 80 06 01 30 01 00 00 00 00 00 00 00 00 00"},
};

const Rule<Attribute> kTypesDiffer[] = {
    {"first octet of an identifier above 119", kFirstOctetReason,
     [](const Attribute& theirs) { return HasOtherFirstArc(openssl::Content(theirs.type)); }},
};

const Rule<Attribute> kValuesDifferName[] = {
    {"8-bit string outside ASCII that is no UTF-8",
     "here the thread's code page, U+FFFD for the rest",
     [](const Attribute& theirs) {
       return openssl::TextOf(theirs.value).kind == ValueText::kOctets;
     }},
};

class NamesByOpenssl : public ::testing::Test {
 protected:
  void ExpectSame(const NameCase& name);

  Differences<Attribute> types_differ_{kTypesDiffer};
  Differences<Attribute> values_differ_{kValuesDifferName};

 private:
  std::vector<std::wstring> ExpectedLines(const Attribute& theirs, const OurAttribute& ours);
};

template <class Text>
std::string AsciiOf(const Text& text) {
  std::string ascii;
  for (const auto c : text) {
    if (c >= 0 && c < 0x80) ascii += static_cast<char>(c);
  }
  return ascii;
}

// The lines of a decoded value.
std::vector<std::wstring> NamesByOpenssl::ExpectedLines(const Attribute& theirs,
                                                        const OurAttribute& ours) {
  const ValueText value = openssl::TextOf(theirs.value);
  if (value.kind == ValueText::kText) return value.lines;
  if (value.kind == ValueText::kOther) {
    const std::string hex(ours.text.begin(), ours.text.end());
    EXPECT_TRUE(openssl::IsEncodingOf(Octets(hex), theirs.value)) << hex;
  } else {
    EXPECT_TRUE(values_differ_.Explain(theirs));
    if (ASN1_STRING_type(theirs.value) != V_ASN1_SEQUENCE) {
      EXPECT_EQ(AsciiOf(ours.text), AsciiOf(openssl::Content(theirs.value)));
    }
  }
  return {ours.text};
}

// The tree, the pairs and the text against OpenSSL's attributes, one an RDN.
void NamesByOpenssl::ExpectSame(const NameCase& name) {
  ASSERT_EQ(name.ours.tree.size(), name.attributes.size());
  std::wstring text;
  bool decoded = true;
  auto pair = name.ours.pairs.begin();
  for (size_t i = 0; i < name.attributes.size(); ++i) {
    const Attribute& theirs = name.attributes[i];
    const OurAttribute& ours = name.ours.tree[i];
    EXPECT_EQ(theirs.rdn, static_cast<int>(i));
    EXPECT_TRUE(ours.type == openssl::Dotted(theirs.type) || types_differ_.Explain(theirs))
        << ours.type << " for " << openssl::Dotted(theirs.type);
    decoded = decoded && ours.decoded;
    if (!ours.decoded) {
      EXPECT_TRUE(openssl::IsEncodingOf(ours.encoding, theirs.value));
      continue;
    }
    std::vector<std::wstring> lines = ExpectedLines(theirs, ours);
    EXPECT_EQ(Hex(ours.text), Hex(Joined(lines)));
    if (!decoded) continue;
    ASSERT_NE(pair, name.ours.pairs.end());
    const bool told = openssl::TextOf(theirs.value).kind == ValueText::kText;
    lines.erase(std::remove(lines.begin(), lines.end(), L""), lines.end());
    EXPECT_EQ(pair->first, std::wstring(ours.type.begin(), ours.type.end()));
    EXPECT_TRUE(!told ||
                std::equal(lines.begin(), lines.end(), pair->second.begin(), pair->second.end()));
    text += (i != 0 ? L";" : L"") + pair->first + L'=' + Quoted(ours.text);
    ++pair;
  }
  EXPECT_EQ(name.ours.has_pairs, decoded);
  EXPECT_EQ(name.ours.has_text, decoded);
  EXPECT_EQ(Hex(decoded ? name.ours.text : text), Hex(text));
}

std::vector<IdentObj> Children(const IdentObj& element) {
  std::list<IdentObj> children;
  DWORD status = 0;
  ASNTGetSequence(children, element.pbData, element.cbData, &status);
  EXPECT_EQ(status, 0u);
  return {children.begin(), children.end()};
}

// RDNs, attributes and their two parts by the ASN.1 routines, which read RDNs of any size.
void ExpectSameParts(const NameCase& name) {
  auto theirs = name.attributes.begin();
  int place = 0;
  for (const IdentObj& rdn : Children(ExactCopy(name.octets))) {
    for (const IdentObj& attribute : Children(rdn)) {
      ASSERT_NE(theirs, name.attributes.end());
      EXPECT_EQ(theirs->rdn, place);
      const std::vector<IdentObj> parts = Children(attribute);
      ASSERT_EQ(parts.size(), 2u);
      EXPECT_EQ(std::string(AsText(parts[0])).substr(2), openssl::Content(theirs->type));
      EXPECT_TRUE(openssl::IsEncodingOf(std::string(AsText(parts[1])), theirs->value));
      ++theirs;
    }
    ++place;
  }
  EXPECT_EQ(theirs, name.attributes.end());
}

TEST_F(NamesByOpenssl, AreReadAlike) {
  Comparison<NameCase>(kTheyRefuseName, kWeRefuseName)
      .Run("names.txt", kCraftedNames, 30, 3000,
           [this](const NameCase& name) { ExpectSame(name); });
  types_differ_.ExpectEachApplied();
  values_differ_.ExpectEachApplied();
}

TEST_F(NamesByOpenssl, HaveTheSameParts) {
  size_t compared = 0;
  for (const std::string& octets : Samples("names.txt")) {
    SCOPED_TRACE(Hex(octets));
    const NameCase name(octets);
    const bool compared_whole =
        std::none_of(std::begin(kWeRefuseName) + 1, std::end(kWeRefuseName),
                     [&name](const Rule<NameCase>& rule) { return rule.applies(name); });
    if (name.theirs.value == nullptr || !compared_whole) continue;
    ExpectSameParts(name);
    ++compared;
  }
  EXPECT_GT(compared, 30u);
}

}  // namespace
}  // namespace Ortholan::testing
