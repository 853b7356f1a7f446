#include "strict/names/attribute_types.h"

#include <iterator>

#include "bytes/ignore_case.h"

namespace Ortholan::strict {
namespace {

constexpr ValueSyntax kDirectory = ValueSyntax::kDirectoryString;
constexpr ValueSyntax kPrintable = ValueSyntax::kPrintable;
constexpr ValueSyntax kIA5 = ValueSyntax::kIA5;
constexpr ValueSyntax kNumeric = ValueSyntax::kNumeric;
constexpr ValueSyntax kUtf8 = ValueSyntax::kUtf8;
constexpr ValueSyntax kPostal = ValueSyntax::kPostalAddress;
constexpr ValueSyntax kNoText = ValueSyntax::kNoText;

// In the order of the identifiers' octets. RFC 4519, RFC 4524 and RFC 2798 (directories), RFC 5280
// appendix A, X.520, RFC 2985 (PKCS #9), RFC 3739 and EN 319 412 (qualified certificates), the EV
// guidelines, TCG's and the Russian register's types.
constexpr AttributeType kTypes[] = {
    {"0.9.2342.19200300.100.1.1", "UID", "userId", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.2", "textEncodedORAddress", "textEncodedORAddress", "", kDirectory,
     256},
    {"0.9.2342.19200300.100.1.3", "mail", "rfc822Mailbox", "", kIA5, 256},
    {"0.9.2342.19200300.100.1.4", "info", "info", "", kDirectory, 2048},
    {"0.9.2342.19200300.100.1.5", "drink", "favouriteDrink", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.6", "roomNumber", "roomNumber", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.8", "userClass", "userClass", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.9", "host", "host", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.10", "manager", "manager", "", kNoText},
    {"0.9.2342.19200300.100.1.11", "documentIdentifier", "documentIdentifier", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.12", "documentTitle", "documentTitle", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.13", "documentVersion", "documentVersion", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.14", "documentAuthor", "documentAuthor", "", kNoText},
    {"0.9.2342.19200300.100.1.15", "documentLocation", "documentLocation", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.20", "homePhone", "homeTelephoneNumber", "homeTelephone ", kPrintable,
     32},
    {"0.9.2342.19200300.100.1.21", "secretary", "secretary", "", kNoText},
    {"0.9.2342.19200300.100.1.25", "DC", "domainComponent", "", kIA5, 63},
    {"0.9.2342.19200300.100.1.37", "associatedDomain", "associatedDomain", "", kIA5, 256},
    {"0.9.2342.19200300.100.1.38", "associatedName", "associatedName", "", kNoText},
    {"0.9.2342.19200300.100.1.39", "homePostalAddress", "homePostalAddress", "", kPostal},
    {"0.9.2342.19200300.100.1.40", "personalTitle", "personalTitle", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.41", "mobile", "mobileTelephoneNumber", "mobileTelephone ",
     kPrintable, 32},
    {"0.9.2342.19200300.100.1.42", "pager", "pagerTelephoneNumber", "pagerTelephone ", kPrintable,
     32},
    {"0.9.2342.19200300.100.1.43", "co", "friendlyCountryName", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.44", "uniqueIdentifier", "uniqueIdentifier", "", kDirectory, 256},
    {"0.9.2342.19200300.100.1.45", "organizationalStatus", "organizationalStatus", "", kDirectory,
     256},
    {"0.9.2342.19200300.100.1.48", "buildingName", "buildingName", "", kDirectory, 256},
    {"1.2.643.3.131.1.1", "INN", "INN", "", kNumeric, 12},
    {"1.2.643.100.1", "OGRN", "OGRN", "", kNumeric, 13},
    {"1.2.643.100.3", "SNILS", "SNILS", "", kNumeric, 11},
    {"1.2.643.100.4", "INNLE", "INNLE", "", kNumeric, 10},
    {"1.2.643.100.5", "OGRNIP", "OGRNIP", "", kNumeric, 15},
    {"1.2.840.113549.1.9.1", "emailAddress", "emailAddress", "E email pkcs9email ", kIA5, 255},
    {"1.2.840.113549.1.9.2", "unstructuredName", "unstructuredName", "", ValueSyntax::kIA5OrUtf8,
     255},
    {"1.2.840.113549.1.9.8", "unstructuredAddress", "unstructuredAddress", "", kDirectory, 255},
    {"1.2.840.113556.1.2.141", "department", "department", "", kDirectory, 64},
    {"1.2.840.113556.1.4.656", "userPrincipalName", "userPrincipalName", "", kUtf8, 1024},
    {"1.3.6.1.4.1.311.60.2.1.1", "jurisdictionL", "jurisdictionLocalityName",
     "jurisdictionOfIncorporationLocalityName jurisdictionLocality ", kDirectory, 128},
    {"1.3.6.1.4.1.311.60.2.1.2", "jurisdictionST", "jurisdictionStateOrProvinceName",
     "jurisdictionOfIncorporationStateOrProvinceName jurisdictionStateOrProvince ", kDirectory,
     128},
    {"1.3.6.1.4.1.311.60.2.1.3", "jurisdictionC", "jurisdictionCountryName",
     "jurisdictionOfIncorporationCountryName jurisdictionCountry ", kPrintable, 2},
    {"1.3.6.1.5.5.7.9.1", "dateOfBirth", "dateOfBirth", "", kNoText},
    {"1.3.6.1.5.5.7.9.2", "placeOfBirth", "placeOfBirth", "", kDirectory, 128},
    {"1.3.6.1.5.5.7.9.3", "gender", "gender", "", kPrintable, 1},
    {"1.3.6.1.5.5.7.9.4", "countryOfCitizenship", "countryOfCitizenship", "", kPrintable, 2},
    {"1.3.6.1.5.5.7.9.5", "countryOfResidence", "countryOfResidence", "", kPrintable, 2},
    {"1.3.36.8.3.14", "nameAtBirth", "nameAtBirth", "", kDirectory, 64},
    {"2.5.4.2", "knowledgeInformation", "knowledgeInformation", "", kDirectory, 32768},
    {"2.5.4.3", "CN", "commonName", "", kDirectory, 64},
    {"2.5.4.4", "SN", "surname", "", kDirectory, 32768},
    {"2.5.4.5", "serialNumber", "serialNumber", "", kPrintable, 64},
    {"2.5.4.6", "C", "countryName", "country ", kPrintable, 2},
    {"2.5.4.7", "L", "localityName", "locality ", kDirectory, 128},
    {"2.5.4.8", "ST", "stateOrProvinceName", "S SP state ", kDirectory, 128},
    {"2.5.4.9", "STREET", "streetAddress", "", kDirectory, 128},
    {"2.5.4.10", "O", "organizationName", "organization ", kDirectory, 64},
    {"2.5.4.11", "OU", "organizationalUnitName", "organizationUnit organizationalUnit ", kDirectory,
     64},
    {"2.5.4.12", "title", "title", "T ", kDirectory, 64},
    {"2.5.4.13", "description", "description", "", kDirectory, 1024},
    {"2.5.4.14", "searchGuide", "searchGuide", "", kNoText},
    {"2.5.4.15", "businessCategory", "businessCategory", "", kDirectory, 128},
    {"2.5.4.16", "postalAddress", "postalAddress", "", kPostal},
    {"2.5.4.17", "postalCode", "postalCode", "", kDirectory, 40},
    {"2.5.4.18", "postOfficeBox", "postOfficeBox", "", kDirectory, 40},
    {"2.5.4.19", "physicalDeliveryOfficeName", "physicalDeliveryOfficeName", "", kDirectory, 128},
    {"2.5.4.20", "telephoneNumber", "telephoneNumber", "phone ", kPrintable, 32},
    {"2.5.4.21", "telexNumber", "telexNumber", "", kNoText},
    {"2.5.4.22", "teletexTerminalIdentifier", "teletexTerminalIdentifier", "", kNoText},
    {"2.5.4.23", "facsimileTelephoneNumber", "facsimileTelephoneNumber", "fax ", kNoText},
    {"2.5.4.24", "x121Address", "x121Address", "", kNumeric, 15},
    {"2.5.4.25", "internationalISDNNumber", "internationalISDNNumber", "internationaliSDNNumber ",
     kNumeric, 16},
    {"2.5.4.26", "registeredAddress", "registeredAddress", "", kPostal},
    {"2.5.4.27", "destinationIndicator", "destinationIndicator", "", kPrintable, 128},
    {"2.5.4.28", "preferredDeliveryMethod", "preferredDeliveryMethod", "", kNoText},
    {"2.5.4.31", "member", "member", "", kNoText},
    {"2.5.4.32", "owner", "owner", "", kNoText},
    {"2.5.4.33", "roleOccupant", "roleOccupant", "", kNoText},
    {"2.5.4.34", "seeAlso", "seeAlso", "", kNoText},
    {"2.5.4.35", "userPassword", "userPassword", "", kNoText},
    {"2.5.4.41", "name", "name", "", kDirectory, 32768},
    {"2.5.4.42", "givenName", "givenName", "GN G ", kDirectory, 32768},
    {"2.5.4.43", "initials", "initials", "", kDirectory, 32768},
    {"2.5.4.44", "generationQualifier", "generationQualifier", "generation ", kDirectory, 32768},
    {"2.5.4.45", "x500UniqueIdentifier", "x500UniqueIdentifier", "", kNoText},
    {"2.5.4.46", "dnQualifier", "dnQualifier", "DNQ ", kPrintable},
    {"2.5.4.47", "enhancedSearchGuide", "enhancedSearchGuide", "", kNoText},
    {"2.5.4.49", "distinguishedName", "distinguishedName", "", kNoText},
    {"2.5.4.50", "uniqueMember", "uniqueMember", "", kNoText},
    {"2.5.4.51", "houseIdentifier", "houseIdentifier", "", kDirectory, 32768},
    {"2.5.4.54", "dmdName", "dmdName", "", kDirectory, 64},
    {"2.5.4.65", "pseudonym", "pseudonym", "", kDirectory, 128},
    {"2.5.4.72", "role", "role", "", kDirectory, 128},
    {"2.5.4.97", "organizationIdentifier", "organizationIdentifier", "orgId ", kDirectory, 256},
    {"2.5.4.98", "c3", "countryCode3c", "", kPrintable, 3},
    {"2.5.4.99", "n3", "countryCode3n", "", kNumeric, 3},
    {"2.5.4.100", "dnsName", "dnsName", "", kUtf8},
    {"2.16.840.1.113730.3.1.2", "departmentNumber", "departmentNumber", "", kDirectory},
    {"2.16.840.1.113730.3.1.3", "employeeNumber", "employeeNumber", "", kDirectory},
    {"2.16.840.1.113730.3.1.4", "employeeType", "employeeType", "", kDirectory},
    {"2.16.840.1.113730.3.1.39", "preferredLanguage", "preferredLanguage", "", kDirectory},
    {"2.16.840.1.113730.3.1.241", "displayName", "displayName", "", kDirectory},
    {"2.23.133.2.1", "tpmManufacturer", "tpmManufacturer", "", kUtf8},
    {"2.23.133.2.2", "tpmModel", "tpmModel", "", kUtf8},
    {"2.23.133.2.3", "tpmVersion", "tpmVersion", "", kUtf8},
};

constexpr uint8_t kNone = 0xFF;
static_assert(std::size(kTypes) < kNone);

constexpr bool Same(std::string_view a, std::string_view b) {
  return a.size() == b.size() && SameLetterByLetter(a, b);
}

constexpr bool Same(ByteView a, ByteView b) {
  if (a.size != b.size) return false;
  for (size_t i = 0; i < a.size; ++i) {
    if (a[i] != b[i]) return false;
  }
  return true;
}

constexpr uint32_t Hash(std::string_view name) {
  uint32_t hash = 0;
  for (const char c : name) hash = hash * 31 + static_cast<uint8_t>(ToAsciiLower(c));
  return hash;
}

constexpr uint32_t Hash(ByteView oid) {
  uint32_t hash = 0;
  for (const uint8_t octet : oid) hash = hash * 31 + octet;
  return hash;
}

// Rows by the hash of a key, made by the compiler; a key that is taken goes to the next slot.
template <size_t kSize>
struct Slots {
  uint8_t row[kSize] = {};

  constexpr Slots() {
    for (uint8_t& each : row) each = kNone;
  }
  constexpr void Add(uint32_t hash, size_t index) {
    size_t slot = hash % kSize;
    while (row[slot] != kNone) slot = (slot + 1) % kSize;
    row[slot] = static_cast<uint8_t>(index);
  }
};

// Calls `take` for each name of a row.
template <class Take>
constexpr void EachName(const AttributeType& type, Take take) {
  take(type.name);
  if (!Same(type.name, type.long_name)) take(type.long_name);
  for (std::string_view rest = type.aliases; !rest.empty();) {
    const size_t end = rest.find(' ');
    take(rest.substr(0, end));
    rest.remove_prefix(end + 1);
  }
}

constexpr bool HasName(const AttributeType& type, std::string_view name) {
  if (Same(type.name, name) || Same(type.long_name, name)) return true;
  bool has = false;
  EachName(type, [&](std::string_view each) { has = has || Same(each, name); });
  return has;
}

constexpr auto MakeNames() {
  Slots<512> slots;
  for (size_t i = 0; i < std::size(kTypes); ++i) {
    EachName(kTypes[i], [&](std::string_view name) { slots.Add(Hash(name), i); });
  }
  return slots;
}

constexpr auto MakeIdentifiers() {
  Slots<256> slots;
  for (size_t i = 0; i < std::size(kTypes); ++i) slots.Add(Hash(kTypes[i].oid.view()), i);
  return slots;
}

// Names of one letter or two, by their letters: the most frequent ones.
constexpr size_t kLetters = 27;

constexpr size_t LetterOf(char c) {
  const auto letter = static_cast<uint8_t>((c | 0x20) - 'a');
  return letter < 26 ? letter + size_t{1} : 0;
}

// 0 where it is no such name; the names that are found have letters alone.
constexpr size_t ShortPlace(std::string_view name) {
  if (name.empty() || name.size() > 2 || LetterOf(name[0]) == 0) return 0;
  if (name.size() == 1) return LetterOf(name[0]) * kLetters;
  return LetterOf(name[1]) == 0 ? 0 : LetterOf(name[0]) * kLetters + LetterOf(name[1]);
}

// Rows by a key that is their place, made by the compiler.
template <size_t kSize>
struct Direct {
  uint8_t row[kSize] = {};
  constexpr Direct() {
    for (uint8_t& each : row) each = kNone;
  }
};

constexpr auto MakeShortNames() {
  Direct<kLetters * kLetters> direct;
  for (size_t i = 0; i < std::size(kTypes); ++i) {
    EachName(kTypes[i], [&](std::string_view name) {
      if (ShortPlace(name) != 0) direct.row[ShortPlace(name)] = static_cast<uint8_t>(i);
    });
  }
  return direct;
}

// 2.5.4.n, by n.
constexpr bool IsX520(ByteView oid) {
  return oid.size == 3 && oid[0] == 0x55 && oid[1] == 0x04 && oid[2] < 0x80;
}

constexpr auto MakeX520() {
  Direct<0x80> direct;
  for (size_t i = 0; i < std::size(kTypes); ++i) {
    const ByteView oid = kTypes[i].oid.view();
    if (IsX520(oid)) direct.row[oid[2]] = static_cast<uint8_t>(i);
  }
  return direct;
}

constexpr auto kShortNames = MakeShortNames();
constexpr auto kX520 = MakeX520();
constexpr auto kNames = MakeNames();
constexpr auto kIdentifiers = MakeIdentifiers();

const AttributeType* RowAt(uint8_t row) { return row != kNone ? &kTypes[row] : nullptr; }

template <size_t kSize, class Matches>
const AttributeType* Find(const Slots<kSize>& slots, uint32_t hash, Matches matches) {
  for (size_t slot = hash % kSize; slots.row[slot] != kNone; slot = (slot + 1) % kSize) {
    const AttributeType& type = kTypes[slots.row[slot]];
    if (matches(type)) return &type;
  }
  return nullptr;
}

}  // namespace

const AttributeType* FindTypeByName(std::string_view name) {
  if (const size_t place = ShortPlace(name)) return RowAt(kShortNames.row[place]);
  return Find(kNames, Hash(name),
              [name](const AttributeType& type) { return HasName(type, name); });
}

const AttributeType* FindType(ByteView oid) {
  if (IsX520(oid)) return RowAt(kX520.row[oid[2]]);
  return Find(kIdentifiers, Hash(oid),
              [oid](const AttributeType& type) { return Same(type.oid.view(), oid); });
}

size_t TypeCount() { return std::size(kTypes); }
const AttributeType& TypeAt(size_t index) { return kTypes[index]; }

bool IsDescriptor(std::string_view text) {
  if (text.empty() || !IsAsciiLetter(text.front())) return false;
  for (const char c : text) {
    if (!IsAsciiLetter(c) && !IsAsciiDigit(c) && c != '-') return false;
  }
  return true;
}

}  // namespace Ortholan::strict
