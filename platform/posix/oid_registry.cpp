// The attribute types of names that Windows documents for its RDN attribute group, and the look-up
// in both directions.

#include <ortholan/platform.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr CRYPT_OID_INFO Row(LPCSTR oid, LPCWSTR name) {
  return {sizeof(CRYPT_OID_INFO), oid, name, CRYPT_RDN_ATTR_OID_GROUP_ID, {0}, {0, nullptr}};
}

constexpr char kEmailAddress[] = "1.2.840.113549.1.9.1";
constexpr char kDomainComponent[] = "0.9.2342.19200300.100.1.25";

// The first row of an identifier carries its display name.
constexpr CRYPT_OID_INFO kRows[] = {
    Row("2.5.4.3", L"CN"),
    Row("2.5.4.4", L"SN"),
    Row("2.5.4.5", L"SERIALNUMBER"),
    Row("2.5.4.6", L"C"),
    Row("2.5.4.7", L"L"),
    Row("2.5.4.8", L"S"),
    Row("2.5.4.8", L"ST"),
    Row("2.5.4.9", L"STREET"),
    Row("2.5.4.10", L"O"),
    Row("2.5.4.11", L"OU"),
    Row("2.5.4.12", L"T"),
    Row("2.5.4.12", L"Title"),
    Row("2.5.4.13", L"Description"),
    Row("2.5.4.17", L"PostalCode"),
    Row("2.5.4.18", L"POBox"),
    Row("2.5.4.20", L"Phone"),
    Row("2.5.4.24", L"X21Address"),
    Row("2.5.4.42", L"G"),
    Row("2.5.4.42", L"GivenName"),
    Row("2.5.4.43", L"I"),
    Row("2.5.4.43", L"Initials"),
    Row("2.5.4.46", L"dnQualifier"),
    Row(kEmailAddress, L"E"),
    Row(kEmailAddress, L"Email"),
    Row(kDomainComponent, L"DC"),
};
constexpr std::size_t kRowCount = std::size(kRows);
constexpr std::size_t kFirstElsewhere = 22;  // the rows from here on lie outside X.520
constexpr BYTE kNoRow = 0xFF;
static_assert(kRowCount < kNoRow);

constexpr std::uint32_t FoldAscii(std::uint32_t unit) {
  return unit - 'A' < 26 ? unit + ('a' - 'A') : unit;
}

// Rows by first letter: `first` heads a chain for each, `next` continues it, in the rows' order.
struct NameIndex {
  BYTE first[26] = {};
  BYTE next[kRowCount] = {};

  constexpr NameIndex() {
    for (BYTE& row : first) row = kNoRow;
    for (std::size_t i = kRowCount; i-- > 0;) {
      BYTE& head = first[FoldAscii(static_cast<std::uint32_t>(kRows[i].pwszName[0])) - 'a'];
      next[i] = head;
      head = static_cast<BYTE>(i);
    }
  }
};
constexpr NameIndex kByName;

// Attribute types of X.520 share these arcs, and those in the table end in one or two digits.
constexpr char kX520[] = "2.5.4.";
constexpr std::size_t kX520Size = sizeof kX520 - 1;
constexpr std::size_t kX520Arcs = 100;

constexpr bool IsX520(const char* oid) {
  std::size_t i = 0;
  while (i < kX520Size && oid[i] == kX520[i]) ++i;
  return i == kX520Size;
}

// Value of a last arc of one or two digits without a leading zero; kX520Arcs for anything else.
constexpr std::size_t LastArc(const char* text) {
  if (text[0] < '1' || text[0] > '9') return kX520Arcs;
  const auto first = static_cast<std::size_t>(text[0] - '0');
  if (text[1] == '\0') return first;
  if (text[1] < '0' || text[1] > '9' || text[2] != '\0') return kX520Arcs;
  return 10 * first + static_cast<std::size_t>(text[1] - '0');
}

// First row by last arc.
struct ArcIndex {
  BYTE row[kX520Arcs + 1] = {};

  constexpr ArcIndex() {
    for (BYTE& entry : row) entry = kNoRow;
    for (std::size_t i = kRowCount; i-- > 0;) {
      if (IsX520(kRows[i].pszOID)) row[LastArc(kRows[i].pszOID + kX520Size)] = static_cast<BYTE>(i);
    }
    row[kX520Arcs] = kNoRow;
  }
};
constexpr ArcIndex kByArc;

std::atomic<bool> enabled{true};
std::atomic<std::uint16_t> version{0};

const CRYPT_OID_INFO* FindByIdentifier(const char* oid) {
  if (IsX520(oid)) {
    const BYTE row = kByArc.row[LastArc(oid + kX520Size)];
    return row != kNoRow ? &kRows[row] : nullptr;
  }
  for (std::size_t i = kFirstElsewhere; i < kRowCount; ++i) {
    if (oid[0] == kRows[i].pszOID[0] && std::strcmp(oid, kRows[i].pszOID) == 0) return &kRows[i];
  }
  return nullptr;
}

bool HasName(const CRYPT_OID_INFO& row, const wchar_t* name) {
  for (std::size_t i = 0;; ++i) {
    const auto ours = static_cast<std::uint32_t>(row.pwszName[i]);
    const auto theirs = static_cast<std::uint32_t>(name[i]);
    if (ours != theirs && FoldAscii(ours) != FoldAscii(theirs)) return false;
    if (ours == 0) return true;
  }
}

const CRYPT_OID_INFO* FindByName(const wchar_t* name) {
  const std::uint32_t letter = FoldAscii(static_cast<std::uint32_t>(name[0])) - 'a';
  if (letter >= std::size(kByName.first)) return nullptr;
  for (BYTE row = kByName.first[letter]; row != kNoRow; row = kByName.next[row]) {
    if (HasName(kRows[row], name)) return &kRows[row];
  }
  return nullptr;
}

}  // namespace

const CRYPT_OID_INFO* FindAttributeInfo(DWORD keyType, const void* key) noexcept {
  if (key == nullptr || !enabled.load(std::memory_order_relaxed)) return nullptr;
  if (keyType == CRYPT_OID_INFO_OID_KEY) return FindByIdentifier(static_cast<const char*>(key));
  if (keyType == CRYPT_OID_INFO_NAME_KEY) return FindByName(static_cast<const wchar_t*>(key));
  return nullptr;
}

PCCRYPT_OID_INFO CryptFindOIDInfo(DWORD keyType, void* key, DWORD groupId) noexcept {
  // Group 0 stands for all groups, of which this is the only one.
  if (groupId != 0 && groupId != CRYPT_RDN_ATTR_OID_GROUP_ID) return nullptr;
  return FindAttributeInfo(keyType, key);
}

void SetAttributeRegistryEnabled(bool isEnabled) noexcept {
  enabled.store(isEnabled, std::memory_order_relaxed);
  version.fetch_add(1, std::memory_order_relaxed);
}

std::uint16_t AttributeInfoVersion() noexcept { return version.load(std::memory_order_relaxed); }

}  // namespace Ortholan
