// FindAttributeInfo and, under it, CryptFindOIDInfo in the RDN attribute group.

#include <atomic>
#include <thread>

#include "platform/calls.h"
#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

struct NameRow {
  const wchar_t* name;
  const char* oid;
};

// The names that the system documents.
const NameRow kNames[] = {
    {L"CN", "2.5.4.3"},
    {L"SN", "2.5.4.4"},
    {L"SERIALNUMBER", "2.5.4.5"},
    {L"C", "2.5.4.6"},
    {L"L", "2.5.4.7"},
    {L"S", "2.5.4.8"},
    {L"ST", "2.5.4.8"},
    {L"STREET", "2.5.4.9"},
    {L"O", "2.5.4.10"},
    {L"OU", "2.5.4.11"},
    {L"T", "2.5.4.12"},
    {L"Title", "2.5.4.12"},
    {L"Description", "2.5.4.13"},
    {L"PostalCode", "2.5.4.17"},
    {L"POBox", "2.5.4.18"},
    {L"Phone", "2.5.4.20"},
    {L"X21Address", "2.5.4.24"},
    {L"G", "2.5.4.42"},
    {L"GivenName", "2.5.4.42"},
    {L"I", "2.5.4.43"},
    {L"Initials", "2.5.4.43"},
    {L"dnQualifier", "2.5.4.46"},
    {L"E", "1.2.840.113549.1.9.1"},
    {L"Email", "1.2.840.113549.1.9.1"},
    {L"DC", "0.9.2342.19200300.100.1.25"},
};

const wchar_t* const kUnknownNames[] = {
    L"",
    L"X",
    L"CNN",
    L"C N",
    L" CN",
    L"CN ",
    L"2.5.4.3",
    L"PSEUDONYM",
    L"\x0421N",
    L"C\xFF2E",
    L"a name that is longer than any attribute has, and than what is worth being remembered at all",
};

const char* const kUnknownIdentifiers[] = {
    "",
    "2.5.4.",
    "2.5.4.0",
    "2.5.4.03",
    "2.5.4.3 ",
    " 2.5.4.3",
    "2.5.4.30",
    "2.5.4.65",
    "2.5.4.103",
    "2.5.4.3.",
    "2.5.4",
    "CN",
    "2.5.4.300",
    "1.2.840.113549.1.9.",
    "1.2.840.113549.1.9.1.1",
    "0.9.2342.19200300.100.1.255",
    "1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17.18.19.20.21.22.23.24.25.26.27.28.29.30.31.32.33",
};

std::wstring InCase(const wchar_t* name, bool upper) {
  std::wstring text = name;
  for (wchar_t& c : text) {
    if (upper && c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - 0x20);
    if (!upper && c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c + 0x20);
  }
  return text;
}

const CRYPT_OID_INFO* Find(DWORD keyType, const void* key) {
  SetLastError(kUntouched);
  const CRYPT_OID_INFO* const info = FindAttributeInfo(keyType, key);
  EXPECT_EQ(GetLastError(), kUntouched);
  return info;
}

void ExpectName(const std::wstring& name, const char* oid) {
  // Twice: the second answer may come from memory.
  for (int round = 0; round < 2; ++round) {
    auto key = ExactBlock<wchar_t>::CopyOf(name + L'\0');
    const CRYPT_OID_INFO* const info = Find(CRYPT_OID_INFO_NAME_KEY, key.data());
    ASSERT_NE(info, nullptr) << Hex(name);
    EXPECT_STREQ(info->pszOID, oid) << Hex(name);
    EXPECT_EQ(info->dwGroupId, static_cast<DWORD>(CRYPT_RDN_ATTR_OID_GROUP_ID));
  }
}

TEST(FindAttributeInfo, KnowsTheNames) {
  for (const NameRow& row : kNames) {
    ExpectName(row.name, row.oid);
    // The system compares without regard to case; Wine does not.
    if (ThisRealisation() == kWine) continue;
    ExpectName(InCase(row.name, true), row.oid);
    ExpectName(InCase(row.name, false), row.oid);
  }
}

TEST(FindAttributeInfo, GivesTheFirstNameOfEachIdentifier) {
  const char* before = "";
  for (const NameRow& row : kNames) {
    const bool isFirst = std::strcmp(row.oid, before) != 0;
    before = row.oid;
    if (!isFirst) continue;
    for (int round = 0; round < 2; ++round) {
      auto key = ExactBlock<char>::CopyOf(std::string(row.oid) + '\0');
      const CRYPT_OID_INFO* const info = Find(CRYPT_OID_INFO_OID_KEY, key.data());
      ASSERT_NE(info, nullptr) << row.oid;
      EXPECT_STREQ(info->pwszName, row.name) << row.oid;
      EXPECT_STREQ(info->pszOID, row.oid);
    }
  }
}

TEST(FindAttributeInfo, DoesNotKnowTheRest) {
  for (int round = 0; round < 2; ++round) {
    for (const wchar_t* name : kUnknownNames) {
      EXPECT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, name), nullptr) << Hex(std::wstring(name));
    }
    for (const char* oid : kUnknownIdentifiers) {
      auto key = ExactBlock<char>::CopyOf(std::string(oid) + '\0');
      EXPECT_EQ(Find(CRYPT_OID_INFO_OID_KEY, key.data()), nullptr) << oid;
    }
  }
  EXPECT_EQ(Find(CRYPT_OID_INFO_OID_KEY, nullptr), nullptr);
  EXPECT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, nullptr), nullptr);
}

// More unknown names than any memory holds: the known ones are still found, and nothing is mixed
// up.
TEST(FindAttributeInfo, OutlastsForeignNames) {
  for (int i = 0; i < 1000; ++i) {
    const std::wstring name = L"name" + std::to_wstring(i);
    ASSERT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, name.c_str()), nullptr);
    const std::string oid = "1.3." + std::to_string(i);
    ASSERT_EQ(Find(CRYPT_OID_INFO_OID_KEY, oid.c_str()), nullptr);
  }
  ExpectName(L"CN", "2.5.4.3");
  ExpectName(L"DC", "0.9.2342.19200300.100.1.25");
}

TEST(FindAttributeInfo, ServesManyThreads) {
  std::atomic<int> wrong{0};
  const auto ask = [&wrong] {
    for (int i = 0; i < 200; ++i) {
      for (const NameRow& row : kNames) {
        const CRYPT_OID_INFO* const info = FindAttributeInfo(CRYPT_OID_INFO_NAME_KEY, row.name);
        if (info == nullptr || std::strcmp(info->pszOID, row.oid) != 0) ++wrong;
      }
      const std::wstring foreign = L"thread" + std::to_wstring(i);
      if (FindAttributeInfo(CRYPT_OID_INFO_NAME_KEY, foreign.c_str()) != nullptr) ++wrong;
    }
  };
  std::thread threads[] = {std::thread(ask), std::thread(ask), std::thread(ask), std::thread(ask)};
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

TEST(CryptFindOIDInfo, HasTheAttributesInTheirGroupAlone) {
  char oid[] = "2.5.4.3";
  const PCCRYPT_OID_INFO info =
      CryptFindOIDInfo(CRYPT_OID_INFO_OID_KEY, oid, CRYPT_RDN_ATTR_OID_GROUP_ID);
  ASSERT_NE(info, nullptr);
  EXPECT_EQ(info->dwGroupId, static_cast<DWORD>(CRYPT_RDN_ATTR_OID_GROUP_ID));
  EXPECT_EQ(CryptFindOIDInfo(CRYPT_OID_INFO_OID_KEY, oid, 0), info);
  EXPECT_EQ(CryptFindOIDInfo(CRYPT_OID_INFO_OID_KEY, oid, 1), nullptr);
}

TEST(AttributeRegistry, CanBeEmptied) {
  if (!EmptyAttributeRegistry::kPossible) GTEST_SKIP() << "the system's registry stays";
  {
    [[maybe_unused]] const EmptyAttributeRegistry empty;
    EXPECT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, L"CN"), nullptr);
    EXPECT_EQ(Find(CRYPT_OID_INFO_OID_KEY, "2.5.4.3"), nullptr);
  }
  ExpectName(L"CN", "2.5.4.3");
}

}  // namespace
}  // namespace Ortholan::testing
