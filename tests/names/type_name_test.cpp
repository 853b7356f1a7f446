// Attribute types of a name as dotted text and as keys.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

struct Row {
  const char* identifier;
  std::string dotted;
  std::string registered;
  std::string unregistered;
};

// Where neither the system nor the table has a name, the dotted text stands.
const Row kRows[] = {
    {"06 03 55 04 03", "2.5.4.3", "CN", "cn"},
    {"06 03 55 04 05", "2.5.4.5", "SERIALNUMBER", "serialNumber"},
    {"06 03 55 04 06", "2.5.4.6", "C", "c"},
    {"06 03 55 04 07", "2.5.4.7", "L", "l"},
    {"06 03 55 04 08", "2.5.4.8", "S", "st"},
    {"06 03 55 04 0A", "2.5.4.10", "O", "o"},
    {"06 03 55 04 0B", "2.5.4.11", "OU", "ou"},
    {"06 03 55 04 0C", "2.5.4.12", "T", "t"},
    {"06 03 55 04 10", "2.5.4.16", "postalAddress", "postalAddress"},
    {"06 03 55 04 41", "2.5.4.65", "pseudonym", "pseudonym"},
    {"06 09 2A 86 48 86 F7 0D 01 09 01", "1.2.840.113549.1.9.1", "E", "e"},
    {"06 0A 2A 86 48 86 F7 14 01 02 81 0D", "1.2.840.113556.1.2.141", "department", "department"},
    {"06 09 2A 86 48 86 F7 0D 01 09 02", "1.2.840.113549.1.9.2", "", ""},
    {"06 03 55 04 04", "2.5.4.4", "SN", ""},
    {"06 03 55 04 2A", "2.5.4.42", "G", ""},
    {"06 0A 09 92 26 89 93 F2 2C 64 01 19", "0.9.2342.19200300.100.1.25", "DC", ""},
    {"06 05 2A 85 03 64 01", "1.2.643.100.1", "", ""},
    {"06 01 55", "2.5", "", ""},
    {"06 06 55 8F FF FF FF 7F", "2.5.4294967295", "", ""},
    // The first octet alone stands for the first two arcs.
    {"06 03 88 37 03", "3.16.55.3", "", ""},
    // Arcs may be padded with 80 octets, which changes neither text nor key.
    {"06 04 55 04 80 03", "2.5.4.3", "CN", "cn"},
    {"06 05 55 80 04 80 10", "2.5.4.16", "postalAddress", "postalAddress"},
    // The tag number counts, not the class or the form.
    {"86 03 55 04 03", "2.5.4.3", "CN", "cn"},
    {"26 03 55 04 41", "2.5.4.65", "pseudonym", "pseudonym"},
    {"1F 06 03 55 04 03", "2.5.4.3", "CN", "cn"},
};

void ExpectKeys(std::string Row::*key) {
  for (const Row& row : kRows) {
    const IdentObj name = ExactCopy(NameOf(Octets(row.identifier) + Octets("13 01 76")));
    const std::string& shown = (row.*key).empty() ? row.dotted : row.*key;
    EXPECT_EQ(Rendered(name, 3), shown + "=v");
    EXPECT_EQ(Listed(name, 3), shown + "=v;");
    EXPECT_EQ(Rendered(name, 2), row.dotted + "=v");
    EXPECT_EQ(Listed(name, 1), row.dotted + "=v;");
  }
}

TEST(AttributeType, IsTheSystemsNameOrAKey) { ExpectKeys(&Row::registered); }

TEST(AttributeType, IsAKeyWithoutTheSystem) {
  if (!EmptyAttributeRegistry::kPossible) GTEST_SKIP() << "the system's registry stays";
  [[maybe_unused]] const EmptyAttributeRegistry empty;
  ExpectKeys(&Row::unregistered);
}

}  // namespace
}  // namespace Ortholan::testing
