// General names as the library reads and shows them and as the system reads them.

#include <gtest/gtest.h>
#include <ortholan/asn1.h>
#include <ortholan/general_name.h>

#include <algorithm>

#include "tests/differential/differences.h"
#include "tests/differential/samples.h"
#include "tests/differential/windows/system_reader.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

struct Case {
  std::string octets;
  GeneralName ours;
  std::wstring text;
  std::string failure;
  std::string content;  // without the header
  windows::GeneralName theirs;
};

unsigned Number(const Case& name) { return name.octets[0] & 0x1F; }

const Rule<Case> kDiffer[] = {
    {"kind that Wine does not know", "other names, X.400 addresses and EDI party names",
     [](const Case& name) {
       const unsigned number = Number(name);
       return !name.theirs.read &&
              (number == otherName || number == x400Address || number == ediPartyName);
     }},
    {"kind or class that there is none of", "RFC 5280 4.2.1.6; here the number alone is looked at",
     [](const Case& name) {
       return !name.theirs.read && (Number(name) > registeredID || (name.octets[0] & 0xC0) != 0x80);
     }},
    {"NUL in an IA5String", "Wine refuses it; here it stays in the text",
     [](const Case& name) {
       return !name.theirs.read && name.text.find(L'\0') != std::wstring::npos;
     }},
    {"IA5String outside ASCII", "no IA5String; read as UTF-8 here, octet by octet there",
     [](const Case& name) {
       return name.theirs.read && name.theirs.text.size() == name.content.size() &&
              std::any_of(name.content.begin(), name.content.end(),
                          [](char c) { return (c & 0x80) != 0; });
     }},
};

void Read(Case* name) {
  name->failure = Thrown([&] { name->ours = GeneralName::DerDecode(ExactCopy(name->octets)); });
  if (name->failure == "0") name->failure = Thrown([&] { name->text = name->ours.ToString(0, 0); });
  ASNT_ASN_STRUCT_INFO info;
  const IdentObj& all = name->ours.GetContent();
  if (ASNTGetStructInfo(info, all.pbData, all.cbData) != 0) return;
  const BYTE* const end = all.pbData + all.cbData;
  name->content =
      std::string(reinterpret_cast<const char*>(info.content),
                  std::min<size_t>(info.length, static_cast<size_t>(end - info.content)));
}

bool IsSame(const Case& name) {
  if (!name.theirs.read || name.failure != "0") return !name.theirs.read && name.failure != "0";
  // The system counts its choices from 1.
  if (name.ours.GetTag() + 1 != name.theirs.choice) return false;
  switch (name.theirs.choice) {
    case CERT_ALT_NAME_RFC822_NAME:
    case CERT_ALT_NAME_DNS_NAME:
    case CERT_ALT_NAME_URL:
    case CERT_ALT_NAME_REGISTERED_ID:
      return name.text == name.theirs.text;
    case CERT_ALT_NAME_DIRECTORY_NAME:
    case CERT_ALT_NAME_IP_ADDRESS:
      return name.content == name.theirs.octets;
    default:
      return true;
  }
}

TEST(GeneralNamesBySystem, AreReadAlike) {
  Differences<Case> differ(kDiffer);
  size_t agreed = 0;
  std::vector<std::string> names = Samples("general-names.txt");
  // A NUL, and a number that there is none of.
  for (const char* const crafted : {"82 03 61 00 62", "89 01 00"}) names.push_back(Octets(crafted));
  for (const std::string& octets : names) {
    SCOPED_TRACE(Hex(octets));
    const windows::GeneralName theirs = windows::ReadGeneralName(octets);
    Case name = {octets, GeneralName(), L"", "", "", theirs};
    Read(&name);
    const bool same = IsSame(name);
    agreed += same ? 1 : 0;
    EXPECT_TRUE(same || differ.Explain(name))
        << name.failure << ' ' << Hex(name.text) << "\nfor " << std::hex << theirs.error << ' '
        << theirs.choice << ' ' << Hex(theirs.text) << Hex(theirs.octets);
  }
  EXPECT_GT(agreed, 20u);
  differ.ExpectEachApplied();
}

}  // namespace
}  // namespace Ortholan::testing
