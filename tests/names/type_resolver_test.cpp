// Type texts to identifiers, with the system's registry of attribute names and without it, and the
// rank of an identifier.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

constexpr char kUntyped[] = "untyped";

// The identifier, "untyped", or the refusal; Encode has to agree.
std::string Resolved(const std::wstring& type) {
  X500NameEncoder encoder;
  std::list<X500NameEncoder::X500NAME_ELEM> elements;
  SetLastError(kUntouched);
  const bool divided = encoder.DevideIntoElements(type + L"=x", elements);
  const std::string refusal = Refusal();
  const std::string oid = divided ? Shown(elements.front().type) : "";
  IdentObj der;
  SetLastError(kUntouched);
  const bool encoded = X500NameEncoder().Encode(type + L"=x", der, false);
  EXPECT_EQ(encoded ? Rendered(der, 2) : Refusal(), !divided      ? refusal
                                                    : oid.empty() ? kNoIdentifier
                                                                  : oid + "=x");
  return !divided ? refusal : oid.empty() ? kUntyped : oid;
}

struct AttributeRow {
  std::string oid;
  int rank;
  std::vector<std::wstring> keywords;
};

const AttributeRow kAttributeRows[] = {
    {"2.5.4.3", 0, {L"CN", L"cn", L"Cn", L" CN\t"}},
    {"2.5.4.65", 0, {L"PSEUDONYM", L"pseudonym"}},
    {"2.5.4.12", 1, {L"T", L"t", L"TITLE", L"title", L"Title"}},
    {"2.5.4.11", 2, {L"OU", L"ou"}},
    {"2.5.4.10", 3, {L"O", L"o"}},
    {"1.2.840.113549.1.9.1", 4, {L"E", L"e", L"EMAIL", L"email", L"eMail"}},
    {"1.2.840.113556.1.2.141", 5, {L"DEPARTMENT", L"department"}},
    {"2.5.4.5", 6, {L"SERIALNUMBER", L"serialNumber"}},
    {"2.5.4.16", 7, {L"POSTALADDRESS", L"postalAddress"}},
    {"2.5.4.8", 8, {L"S", L"s"}},
    {"2.5.4.7", 9, {L"L", L"l"}},
    {"2.5.4.6", 10, {L"C", L"c"}},
    {"1.2.840.113549.1.9.2", 11, {}},
};

std::wstring Wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

void ExpectAttributes() {
  for (const AttributeRow& row : kAttributeRows) {
    EXPECT_EQ(Resolved(Wide(row.oid)), row.oid);
    for (const std::wstring& keyword : row.keywords) EXPECT_EQ(Resolved(keyword), row.oid);
  }
}

struct RegistryRow {
  std::wstring type;
  std::string registered;
  std::string unregistered;
};

// The identifier of a name that the system knows goes by its own length, not by the name's.
const RegistryRow kRegistryRows[] = {{L"ST", "2.5.4.8", kUntyped},
                                     {L"DC", kRefused, kUntyped},
                                     {L"STREET", kUntyped, kRefused},
                                     {L"Description", kUntyped, kRefused},
                                     {L"SN", kUntyped, kUntyped}};

TEST(ResolveType, AsksTheSystemFirst) {
  ExpectAttributes();
  for (const RegistryRow& row : kRegistryRows) EXPECT_EQ(Resolved(row.type), row.registered);
  // Wine compares the names with regard to case.
  EXPECT_EQ(Resolved(L"st"), ThisRealisation() == kWine ? kUntyped : "2.5.4.8");
}

TEST(ResolveType, DoesWithoutTheSystem) {
  if (!EmptyAttributeRegistry::kPossible) GTEST_SKIP() << "the system's registry stays";
  [[maybe_unused]] const EmptyAttributeRegistry empty;
  ExpectAttributes();
  for (const RegistryRow& row : kRegistryRows) EXPECT_EQ(Resolved(row.type), row.unregistered);
}

// Among others full-width letters, a look-alike, a letter whose capital is S, a dotless i.
TEST(ResolveType, RefusesOrLeavesTheRest) {
  const std::pair<std::wstring, std::string> rows[] = {{L"OID.", kRefused},
                                                       {L"OID.2.5.4.3", kRefused},
                                                       {L"OID.2.5.4.10", kUntyped},
                                                       {L"2.5.4.4", kUntyped},
                                                       {L"2.5.4.42", kUntyped},
                                                       {L"2.5.4.03", kUntyped},
                                                       {L"1.2.840.113549.1.9.3", kUntyped},
                                                       {L"1.2.840.113556.1.2.142", kUntyped},
                                                       {L"1.2.643.100", kRefused},
                                                       {L"\"CN\"", kRefused},
                                                       {L"\xFF23\xFF2E", kUntyped},
                                                       {L"\x0421N", kUntyped},
                                                       {L"\x017F", kUntyped},
                                                       {L"T\x0131TLE", kUntyped},
                                                       {std::wstring(L"CN\0\0\0", 5), kRefused},
                                                       {std::wstring(1, L'\0'), kRefused}};
  for (const auto& [type, answer] : rows) EXPECT_EQ(Resolved(type), answer) << Shown(type);
}

// A text that is no form is left untyped where its length is some form's, whatever its characters.
TEST(ResolveType, GoesByLength) {
  for (const wchar_t kind : {L'X', L'9', L'\x0416'}) {
    for (size_t length = 1; length <= 600; ++length) {
      const bool isFormLength = length <= 2 || length == 5 || (length >= 7 && length <= 10) ||
                                length == 12 || length == 13 || length == 20 || length == 22;
      ASSERT_EQ(Resolved(std::wstring(length, kind)), isFormLength ? kUntyped : kRefused) << length;
    }
  }
}

TEST(GetAttrPriority, RanksTheAttributes) {
  for (const AttributeRow& row : kAttributeRows) {
    EXPECT_EQ(GetAttrPriority(CZEPString(row.oid.c_str())), row.rank) << row.oid;
    EXPECT_EQ(GetAttrPriority(Wide(row.oid)), row.rank) << row.oid;
  }
  for (const char* oid : {"", "CN", "2.5.4.3 ", " 2.5.4.3", "2.5.4.4", "2.5.4.03", "3.5.4.3",
                          "1.2.840.113549.1.9.3", "1.2.840.113556.1.2.142"}) {
    EXPECT_EQ(GetAttrPriority(CZEPString(oid)), 99) << oid;
    EXPECT_EQ(GetAttrPriority(Wide(oid)), 99) << oid;
  }
  EXPECT_EQ(GetAttrPriority(std::wstring(L"2.5.4.\x0663")), 99);
}

}  // namespace
}  // namespace Ortholan::testing
