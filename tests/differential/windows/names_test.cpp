// Names as the library decodes them and as the system does: types, values, the structure of RDNs,
// and the text under the same option words.

#include <gtest/gtest.h>
#include <ortholan/asn1.h>

#include "tests/differential/differences.h"
#include "tests/differential/our_name.h"
#include "tests/differential/samples.h"
#include "tests/differential/windows/system_reader.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

using windows::Attribute;

const std::wstring kAscii = [] {
  std::wstring ascii(0x80, L'\0');
  for (wchar_t c = 0; c < 0x80; ++c) ascii[c] = c;
  return ascii;
}();

constexpr DWORD kDotted = CERT_OID_NAME_STR | CERT_NAME_STR_CRLF_FLAG;
constexpr DWORD kKeys = CERT_X500_NAME_STR | CERT_NAME_STR_CRLF_FLAG;

// Of a name and of each RDN as a name of its own, by kDotted and by kKeys.
struct Texts {
  std::wstring dotted;
  std::wstring keys;
};

struct Theirs {
  windows::Name name;
  windows::Name types;
  std::vector<Texts> texts;  // the whole first
};

struct Case {
  std::string octets;
  OurName ours;
  Theirs theirs;
};

// Whether an element stands in the name at that place, counted from the outside, of which `holds`.
bool AnyElement(const std::string& element, int depth, bool (*holds)(const std::string&)) {
  if (depth == 0) return holds(element);
  std::list<IdentObj> children;
  DWORD status = 0;
  ASNTGetSequence(children, element.data(), static_cast<DWORD>(element.size()), &status);
  for (const IdentObj& child : children) {
    if (AnyElement(std::string(AsText(child)), depth - 1, holds)) return true;
  }
  return false;
}
constexpr int kRdn = 1;
constexpr int kAttribute = 2;
constexpr int kTypeOrValue = 3;

bool IsIndefinite(const Case& name) { return name.octets[1] == '\x80'; }

const Rule<Case> kTheyRefuse[] = {
    {"tag of the name, an RDN or an attribute",
     "X.501 9.2; here an attribute is an identifier and a value, in constructed elements",
     [](const Case& name) {
       const auto noSequence = [](const std::string& element) { return element[0] != 0x30; };
       return name.octets[0] != 0x30 || AnyElement(name.octets, kAttribute, noSequence) ||
              AnyElement(name.octets, kRdn,
                         [](const std::string& element) { return element[0] != 0x31; });
     }},
    {"value that is no string", "Wine knows strings alone",
     [](const Case& name) {
       return AnyElement(name.octets, kTypeOrValue, [](const std::string& element) {
         constexpr char kKnown[] = "\x06\x0C\x12\x13\x14\x15\x16\x19\x1A\x1B\x1C\x1E";
         return std::string(kKnown).find(element[0]) == std::string::npos;
       });
     }},
    {"long form of length 0", "X.690 8.1.3.5; Wine refuses it",
     [](const Case& name) { return name.octets == Octets("30 81 00"); }, true},
    {"indefinite length", "Wine does not nest it", IsIndefinite, true},
};

// By X509_NAME alone.
const Rule<Case> kTypesRefused[] = {
    {"UniversalString", "Wine takes it as Unicode alone",
     [](const Case& name) {
       return AnyElement(name.octets, kTypeOrValue,
                         [](const std::string& element) { return element[0] == 0x1C; });
     }},
};

const Rule<Case> kStructuresDiffer[] = {
    {"indefinite length", "Wine does not nest it", IsIndefinite},
};

const Rule<Case> kWeRefuse[] = {
    {"RDN of several attributes, or of none", "no decoder takes them; see the header",
     [](const Case& name) {
       return AnyElement(name.octets, kRdn, [](const std::string& rdn) {
         std::list<IdentObj> attributes;
         DWORD status = 0;
         ASNTGetSequence(attributes, rdn.data(), static_cast<DWORD>(rdn.size()), &status);
         return attributes.size() != 1;
       });
     }},
    {"indefinite length", "Wine does not nest it", IsIndefinite, true},
    {"arc above 32 bits", "refused here; Wine lets it wrap",
     [](const Case& name) {
       return AnyElement(name.octets, kTypeOrValue, [](const std::string& element) {
         size_t groups = 1;
         for (const char c : element.substr(2)) {
           groups = (c & 0x80) != 0 ? groups + 1 : 1;
           if (groups == 5) return element[0] == 0x06;
         }
         return false;
       });
     },
     true},
};

struct Value {
  const OurAttribute& ours;
  const Attribute& theirs;
};
bool HasLongArc(const std::string& type) {
  constexpr unsigned long long kMost = 0x0FFFFFFF;
  for (size_t dot = 0; dot != type.npos; dot = type.find('.', dot + 1)) {
    if (std::stoull(type.substr(dot == 0 ? 0 : dot + 1)) > kMost) return true;
  }
  return false;
}
constexpr char kLongArc[] = "arc above 28 bits";
constexpr char kLongArcReason[] = "goes wrong in Wine";

const Rule<Value> kValuesDiffer[] = {
    {kLongArc, kLongArcReason, [](const Value& value) { return HasLongArc(value.ours.type); },
     true},
    {"UTF8String and the NUL behind it", "Wine counts it",
     [](const Value& value) {
       return value.theirs.value_type == CERT_RDN_UTF8_STRING &&
              value.theirs.text == value.ours.text + L'\0';
     }},
    {"NumericString, UniversalString", "shown by their octets here",
     [](const Value& value) {
       const DWORD type = value.theirs.value_type;
       return type == CERT_RDN_NUMERIC_STRING || type == CERT_RDN_UNIVERSAL_STRING;
     }},
    {"8-bit string outside ASCII", "Wine widens the octets; here the thread's code page does",
     [](const Value& value) {
       return value.theirs.value_type <= CERT_RDN_VISIBLE_STRING && value.ours.decoded &&
              value.theirs.text.size() == value.ours.text.size() &&
              value.theirs.text.find_first_not_of(kAscii) != std::wstring::npos;
     }},
};

// One attribute as text.
struct AttributeText {
  const OurAttribute& attribute;
  std::wstring ours;
  std::wstring theirs;
};
// Where they differ in quotes alone, and the value has one of those characters.
bool IsQuotedFor(const AttributeText& text, const wchar_t* characters) {
  const std::wstring& value = text.attribute.text;
  return value.find_first_of(characters) != value.npos &&
         text.ours == text.theirs.substr(0, text.theirs.find(L'=') + 1) + Quoted(value) &&
         text.theirs.substr(text.theirs.find(L'=') + 1) == value;
}

const Rule<AttributeText> kTextsDiffer[] = {
    {kLongArc, kLongArcReason,
     [](const AttributeText& text) { return HasLongArc(text.attribute.type); }, true},
    {"quotes without need", "Wine looks behind the end of a UTF8String",
     [](const AttributeText& text) {
       const size_t value = text.ours.find(L'=') + 1;
       return text.theirs == text.ours.substr(0, value) + L'"' + text.ours.substr(value) + L'"';
     },
     true},
    {"empty value", "in quotes here, so that the text has a value",
     [](const AttributeText& text) {
       return text.attribute.text.empty() && text.ours == text.theirs + L"\"\"";
     }},
    {"backslash, carriage return or apostrophe", "in quotes here: none is in CertNameToStr's list",
     [](const AttributeText& text) { return IsQuotedFor(text, L"\\\r'"); }},
    {"NumericString, UniversalString", "shown by their octets here",
     [](const AttributeText& text) {
       const std::string hex(text.attribute.text.begin(), text.attribute.text.end());
       return hex.compare(0, 3, "12 ") == 0 || hex.compare(0, 3, "1C ") == 0;
     }},
    {"8-bit string outside ASCII", "Wine widens the octets; here the thread's code page does",
     [](const AttributeText& text) {
       return text.attribute.text.find_first_not_of(kAscii) != std::wstring::npos;
     }},
    {"key that the system has not", "the keys of pseudonym and department are the library's own",
     [](const AttributeText& text) {
       const std::wstring identifier(text.attribute.type.begin(), text.attribute.type.end());
       const std::wstring value = text.ours.substr(text.ours.find(L'=') + 1);
       return text.theirs == identifier + L'=' + value ||
              text.theirs == identifier + L"=\"" + value + L'"';
     }},
};

class NamesBySystem : public ::testing::Test {
 protected:
  void ExpectSame(const Case& name);
  void ExpectSameTexts(const Case& name, DWORD options, std::wstring Texts::*theirs);
  void Compare(const std::string& octets);

  size_t agreed_ = 0;
  size_t texts_ = 0;
  Differences<Case> they_refuse_{kTheyRefuse};
  Differences<Case> structures_differ_{kStructuresDiffer};
  Differences<Case> types_refused_{kTypesRefused};
  Differences<Case> we_refuse_{kWeRefuse};
  Differences<Value> values_differ_{kValuesDiffer};
  Differences<AttributeText> texts_differ_{kTextsDiffer};
};

bool IsSame(const Value& value) {
  if (value.ours.type != value.theirs.type) return false;
  if (value.theirs.value_type < CERT_RDN_NUMERIC_STRING) {
    const std::string hex(value.ours.text.begin(), value.ours.text.end());
    return (value.ours.decoded ? Octets(hex) : value.ours.encoding) == value.theirs.octets;
  }
  return value.ours.decoded && value.ours.text == value.theirs.text;
}

bool Render(const std::string& octets, DWORD options, std::wstring* text) {
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(options);
  return decoder.Decode(ExactCopy(octets), *text, options);
}

// The name, and names of one RDN each.
std::vector<std::string> WithRdns(const std::string& octets) {
  std::vector<std::string> names = {octets};
  std::list<IdentObj> rdns;
  DWORD status = 0;
  ASNTGetSequence(rdns, octets.data(), static_cast<DWORD>(octets.size()), &status);
  for (const IdentObj& rdn : rdns) names.emplace_back(AsText(ASNTPutSequence({rdn}, 16)));
  return names;
}

// Each attribute alone, and the whole name where all of them agree.
void NamesBySystem::ExpectSameTexts(const Case& name, DWORD options, std::wstring Texts::*theirs) {
  const std::vector<std::string> names = WithRdns(name.octets);
  ASSERT_EQ(names.size(), name.ours.tree.size() + 1);
  bool same = true;
  std::wstring ours;
  for (size_t i = 1; i < names.size(); ++i) {
    if (!Render(names[i], options, &ours)) return;
    const AttributeText text = {name.ours.tree[i - 1], ours, name.theirs.texts[i].*theirs};
    EXPECT_TRUE(text.ours == text.theirs || texts_differ_.Explain(text))
        << Hex(text.ours) << "\nfor " << Hex(text.theirs);
    same = same && text.ours == text.theirs;
    ++texts_;
  }
  if (!same || IsIndefinite(name)) return;
  EXPECT_TRUE(Render(name.octets, options, &ours));
  EXPECT_EQ(Hex(ours), Hex(name.theirs.texts[0].*theirs));
}

void NamesBySystem::ExpectSame(const Case& name) {
  const std::vector<Attribute>& theirs = name.theirs.name.attributes;
  if (name.ours.tree.size() != theirs.size()) {
    EXPECT_TRUE(structures_differ_.Explain(name)) << theirs.size() << " attributes";
    return;
  }
  const std::vector<Attribute>& types = name.theirs.types.attributes;
  EXPECT_TRUE(types.size() == theirs.size() || types_refused_.Explain(name));
  for (size_t i = 0; i < theirs.size(); ++i) {
    EXPECT_EQ(theirs[i].rdn, i);
    EXPECT_TRUE(i >= types.size() || types[i].type == theirs[i].type) << types[i].type;
    const Value value = {name.ours.tree[i], theirs[i]};
    EXPECT_TRUE(IsSame(value) || values_differ_.Explain(value))
        << value.ours.type << ' ' << Hex(value.ours.text) << "\nfor " << value.theirs.type << ' '
        << value.theirs.value_type << ' ' << Hex(value.theirs.text) << Hex(value.theirs.octets);
  }
  ExpectSameTexts(name, kDotted, &Texts::dotted);
  ExpectSameTexts(name, kKeys, &Texts::keys);
}

void NamesBySystem::Compare(const std::string& octets) {
  Theirs theirs = {windows::ReadName(octets), windows::ReadNameTypes(octets), {}};
  for (const std::string& name : WithRdns(octets)) {
    theirs.texts.push_back({windows::NameText(name, kDotted), windows::NameText(name, kKeys)});
  }
  const Case name = {octets, OurName(octets), theirs};
  const bool accepted = name.theirs.name.read;
  if (accepted && name.ours.has_tree) {
    ExpectSame(name);
    ++agreed_;
  } else if (accepted) {
    EXPECT_TRUE(we_refuse_.Explain(name)) << "refused with " << name.ours.error;
  } else if (name.ours.has_tree) {
    EXPECT_TRUE(they_refuse_.Explain(name)) << "refused for " << name.theirs.name.error;
  }
}

TEST_F(NamesBySystem, AreReadAlike) {
  for (const std::string& octets : Samples("names.txt")) {
    SCOPED_TRACE(Hex(octets));
    Compare(octets);
  }
  EXPECT_GT(agreed_, 30u);
  EXPECT_GT(texts_, 50u);
  they_refuse_.ExpectEachApplied();
  structures_differ_.ExpectEachApplied();
  types_refused_.ExpectEachApplied();
  we_refuse_.ExpectEachApplied();
  values_differ_.ExpectEachApplied();
  texts_differ_.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
