// General names as the library reads and shows them and as OpenSSL reads them: kind and value, of
// real names and of spoiled ones.

#include <gtest/gtest.h>
#include <openssl/asn1err.h>
#include <ortholan/asn1.h>
#include <ortholan/general_name.h>

#include "tests/differential/differences.h"
#include "tests/differential/posix/every_sample.h"
#include "tests/differential/posix/identifiers.h"
#include "tests/differential/posix/openssl_reader.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

// One general name in both readings.
struct GeneralNameCase {
  explicit GeneralNameCase(const std::string& name)
      : octets(name), theirs(openssl::ReadGeneralName(name)) {
    failure = Thrown([&] { ours = GeneralName::DerDecode(ExactCopy(name)); });
    if (failure == "0") failure = Thrown([&] { text = ours.ToString(0, 0); });
    ASNT_ASN_STRUCT_INFO info;
    const IdentObj& all = ours.GetContent();
    if (ASNTGetStructInfo(info, all.pbData, all.cbData) != 0) return;
    const char* const start = reinterpret_cast<const char*>(info.content);
    const char* const end = reinterpret_cast<const char*>(all.pbData) + all.cbData;
    content.assign(start, std::min<size_t>(info.length, static_cast<size_t>(end - start)));
  }

  bool taken() const { return failure == "0"; }
  bool IsRefusedFor(int reason) const { return theirs.reason == reason; }
  unsigned Identifier() const { return static_cast<unsigned char>(octets[0]); }
  unsigned Number() const { return Identifier() & 0x1F; }

  std::string octets;
  openssl::Read<GENERAL_NAME> theirs;
  GeneralName ours;
  std::string content;  // without the header
  std::wstring text;
  std::string failure;
};

bool IsString(const GeneralNameCase& name) {
  return name.Number() == GEN_EMAIL || name.Number() == GEN_DNS || name.Number() == GEN_URI;
}
// The tag is read without its class and the constructed bit.
bool IsOtherForm(const GeneralNameCase& name) {
  const bool constructed = (name.Identifier() & 0x20) != 0;
  return constructed && (IsString(name) || name.Number() == GEN_RID || name.Number() == GEN_IPADD);
}

const Rule<GeneralNameCase> kTheyRefuseGeneralName[] = {
    {"kind shown without a look at its content",
     "other names, X.400 addresses, directory names, addresses, and numbers above 8",
     [](const GeneralNameCase& name) {
       const unsigned number = name.Number();
       return number == GEN_OTHERNAME || number == GEN_X400 || number == GEN_DIRNAME ||
              number == GEN_IPADD || number > GEN_RID;
     }},
    {"class other than context-specific", "RFC 5280 4.2.1.6; here the number alone is looked at",
     [](const GeneralNameCase& name) {
       return name.IsRefusedFor(ASN1_R_NO_MATCHING_CHOICE_TYPE) &&
              (name.Identifier() & 0xC0) != 0x80;
     }},
    {"constructed form of a primitive kind", "X.690 10.2; here encoding makes every kind so",
     IsOtherForm},
    {"primitive string in the indefinite form", "X.690 8.1.3.2; here it ends at two zero octets",
     [](const GeneralNameCase& name) { return IsString(name) && name.octets[1] == '\x80'; }},
    {"EDI party name of other parts", "RFC 5280 4.2.1.6; here they are passed over",
     [](const GeneralNameCase& name) { return name.Number() == GEN_EDIPARTY; }},
    {"padded arc", kPaddedReason,
     [](const GeneralNameCase& name) {
       return name.Number() == GEN_RID && name.IsRefusedFor(ASN1_R_INVALID_OBJECT_ENCODING) &&
              HasPaddedArc(name.content);
     }},
    {"length 0 in the long form at the end", "X.690 8.1.3.5; OpenSSL wants an octet behind it",
     [](const GeneralNameCase& name) {
       return name.IsRefusedFor(ASN1_R_HEADER_TOO_LONG) && name.content.empty() &&
              name.octets.size() > 2;
     }},
};

const Rule<GeneralNameCase> kWeRefuseGeneralName[] = {
    {"constructed string in the indefinite form", "not in DER, X.690 10.2",
     [](const GeneralNameCase& name) { return IsString(name) && name.octets[1] == '\x80'; }},
    {"arc above 32 bits", kLongArcReason,
     [](const GeneralNameCase& name) {
       return name.Number() == GEN_RID && HasLongArc(name.content);
     }},
};

const Rule<GeneralNameCase> kValuesDiffer[] = {
    {"constructed form of a primitive kind", "X.690 10.2; here its content as it stands",
     IsOtherForm},
    {"IA5String that is no UTF-8", "not ASCII either; each broken part is shown as U+FFFD",
     [](const GeneralNameCase& name) {
       std::wstring text;
       return IsString(name) && !openssl::FromUtf8(name.content, &text);
     }},
    {"EDI party name that is no UTF-8", "each broken part is shown as U+FFFD",
     [](const GeneralNameCase& name) {
       return name.Number() == GEN_EDIPARTY && name.text.find(L'\xFFFD') != std::wstring::npos;
     }},
    {"first octet of an identifier above 119", kFirstOctetReason,
     [](const GeneralNameCase& name) {
       return name.Number() == GEN_RID && HasOtherFirstArc(name.content);
     }},
};

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

// An EDI party's name as it is shown: the octets of the DirectoryString, its header among them.
std::wstring PartyText(const ASN1_STRING* name) {
  if (name == nullptr) return L"";
  unsigned char* der = nullptr;
  const int size = i2d_DIRECTORYSTRING(name, &der);
  std::wstring text;
  openssl::FromUtf8(std::string(reinterpret_cast<const char*>(der), static_cast<size_t>(size)),
                    &text);
  OPENSSL_free(der);
  return text;
}

std::wstring ShownParty(const EDIPARTYNAME& party) {
  const std::wstring assigner = PartyText(party.nameAssigner);
  if (!assigner.empty()) return L"Имя назначено: " + assigner + L"\n";
  return L"Имя партии: " + PartyText(party.partyName) + L"\n";
}

bool HasSameString(const GeneralNameCase& name, const ASN1_STRING* theirs) {
  std::wstring text;
  openssl::FromUtf8(openssl::Content(theirs), &text);
  return name.content == openssl::Content(theirs) && name.text == text;
}

bool HasSameName(const GeneralNameCase& name, const ::X509_NAME* theirs) {
  const openssl::Read<::X509_NAME> ours = openssl::ReadName(name.content);
  return ours.value != nullptr && X509_NAME_cmp(ours.value.get(), theirs) == 0 &&
         name.text == Wide(Hex(name.octets));
}

// The identifier, and the value in its explicit tag.
bool HasSameParts(const GeneralNameCase& name, const OTHERNAME& theirs) {
  std::list<IdentObj> children;
  DWORD status = 0;
  const IdentObj& all = name.ours.GetContent();
  ASNTGetSequence(children, all.pbData, all.cbData, &status);
  if (status != 0 || children.size() != 2) return false;
  const std::string type(AsText(children.front()));
  std::list<IdentObj> values;
  ASNTGetSequence(values, children.back().pbData, children.back().cbData, &status);
  if (status != 0 || values.size() != 1) return false;
  const openssl::Read<ASN1_TYPE> value = openssl::ReadElement(std::string(AsText(values.front())));
  return type.substr(2) == openssl::Content(theirs.type_id) && value.value != nullptr &&
         ASN1_TYPE_cmp(value.value.get(), theirs.value) == 0;
}

bool HasSameValue(const GeneralNameCase& name) {
  const GENERAL_NAME& theirs = *name.theirs.value;
  switch (theirs.type) {
    case GEN_OTHERNAME:
      return HasSameParts(name, *theirs.d.otherName);
    case GEN_EMAIL:
    case GEN_DNS:
    case GEN_URI:
      return HasSameString(name, theirs.d.ia5);
    case GEN_X400:
      return name.text == L"[X400Address]";
    case GEN_DIRNAME:
      return HasSameName(name, theirs.d.directoryName);
    case GEN_EDIPARTY:
      return name.text == ShownParty(*theirs.d.ediPartyName);
    case GEN_IPADD:
      return name.content == openssl::Content(theirs.d.iPAddress);
    case GEN_RID:
      return name.content == openssl::Content(theirs.d.registeredID) &&
             name.text == Wide(openssl::Dotted(theirs.d.registeredID));
    default:
      return false;
  }
}

// General names that show what none of tests/data does.
constexpr Crafted kCraftedGeneralNames[] = {
    {"constructed, indefinite", "A2 80 16 01 61 00 00"},
    {"primitive, indefinite", "82 80 61 62 00 00"},
    {"long form of length 0", "82 81 00"},
    {"arc of 33 bits", "88 06 2A 90 80 80 80 00"},
    {"arc with a leading 80", "88 03 2A 80 01"},
    {"registered identifier 2.999", "88 02 88 37"},
};

// What a decoded name is encoded to differs in the identifier alone, which is constructed.
void ExpectSameEncoding(const GeneralNameCase& name) {
  const bool constructed = (name.Identifier() & 0x20) != 0;
  if (!constructed) return;
  GeneralName ours = name.ours;
  const openssl::Read<GENERAL_NAME> read =
      openssl::ReadGeneralName(std::string(AsText(ours.DerEncode())));
  ASSERT_NE(read.value, nullptr);
  EXPECT_EQ(GENERAL_NAME_cmp(read.value.get(), name.theirs.value.get()), 0);
}

TEST(GeneralNamesByOpenssl, AreReadAlike) {
  Differences<GeneralNameCase> values_differ(kValuesDiffer);
  Comparison<GeneralNameCase>(kTheyRefuseGeneralName, kWeRefuseGeneralName)
      .Run("general-names.txt", kCraftedGeneralNames, 30, 2000, [&](const GeneralNameCase& name) {
        EXPECT_EQ(static_cast<int>(name.ours.GetTag()), name.theirs.value->type);
        EXPECT_TRUE(HasSameValue(name) || values_differ.Explain(name)) << Hex(name.text);
        ExpectSameEncoding(name);
      });
  values_differ.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
