// Code pages, values of names, attribute names and dates: the rows of platform.tsv, and what holds
// for any of them.

#include <climits>
#include <functional>
#include <sstream>

#include "platform/calls.h"
#include "platform/string_value.h"
#include "tests/platform/contract.h"
#include "tests/support/calls.h"

namespace Ortholan::testing {
namespace {

UINT Type(const VectorRow& row) { return static_cast<UINT>(row.number("type")); }
DWORD Flags(const VectorRow& row) { return static_cast<DWORD>(row.number("flags")); }

std::wstring Units(const VectorRow& row) {
  std::wstring units;
  std::istringstream in(row.text("in"));
  for (std::string unit; in >> unit;) {
    units += static_cast<wchar_t>(std::stoul(unit, nullptr, 16));
  }
  return units;
}

// With a blank between.
template <class Text>
std::string Spaced(const Text& text) {
  std::string hex;
  for (const auto c : text) hex += (hex.empty() ? "" : " ") + Hex(Text(1, c));
  return hex;
}

std::string Error(const char* format, DWORD error) {
  char text[32];
  std::snprintf(text, sizeof text, format, error);
  return text;
}

// Calls `convert(out, room)` for the size and into a block of that size. A refusal, told by 0 for
// text that is not empty, has to be the same with room.
template <class Char, class Convert>
std::string Converted(const Convert& convert) {
  SetLastError(kUntouched);
  const int size = convert(nullptr, 0);
  const DWORD error = GetLastError();
  const bool refused = size == 0 && error != kUntouched && error != 0;
  ExactBlock<Char> out(refused ? 16 : static_cast<std::size_t>(size));
  SetLastError(kUntouched);
  EXPECT_EQ(convert(out.data(), static_cast<int>(out.size())), size);
  ExpectLastError(refused, error);
  if (refused) return Error("error %u", error);
  return Spaced(std::basic_string<Char>(out.data(), out.size()));
}

std::string Widen(const VectorRow& row) {
  auto in = ExactBlock<char>::CopyOf(row.octets("in"));
  return Converted<wchar_t>([&](wchar_t* out, int room) {
    return MultiByteToWideChar(Type(row), Flags(row), in.data(), static_cast<int>(in.size()), out,
                               room);
  });
}

std::string Narrow(const VectorRow& row) {
  auto in = ExactBlock<wchar_t>::CopyOf(Units(row));
  return Converted<char>([&](char* out, int room) {
    return WideCharToMultiByte(Type(row), Flags(row), in.data(), static_cast<int>(in.size()), out,
                               room, nullptr, nullptr);
  });
}

// A structure's encoding, or the last error; for text with the place that is stored as the size.
std::string EncodedOctets(const VectorRow& row, LPCSTR structure) {
  const std::string octets = row.octets("in");
  // An empty value that the realisation must not look at still has a place.
  auto value = ExactBlock<char>::CopyOf(octets.empty() ? std::string(2, '\0') : octets);
  const CERT_NAME_VALUE in{Type(row), {static_cast<DWORD>(octets.size()), AsBytes(value.data())}};
  DWORD size = 0;
  SetLastError(kUntouched);
  if (!CryptEncodeObject(kEncoding, structure, &in, nullptr, &size)) {
    const std::string error = Error("error 0x%08X", GetLastError());
    return structure == X509_NAME_VALUE ? error : error + Error(" at %u", size);
  }
  ExpectLastError(false, 0);
  ExactBlock<char> out(size);
  const DWORD needed = size;
  EXPECT_TRUE(CryptEncodeObject(kEncoding, structure, &in, AsBytes(out.data()), &size));
  EXPECT_EQ(size, needed);
  return Hex(std::string(out.data(), size));
}
std::string EncodedValue(const VectorRow& row) { return EncodedOctets(row, X509_NAME_VALUE); }
std::string EncodedText(const VectorRow& row) {
  return EncodedOctets(row, X509_UNICODE_NAME_VALUE);
}

// "type: octets" or the last error. Text is terminated behind its size, but where Wine counts the
// terminator.
std::string DecodedText(const VectorRow& row, LPCSTR structure) {
  auto der = ExactBlock<char>::CopyOf(row.octets("in"));
  const auto der_size = static_cast<DWORD>(der.size());
  DWORD size = 0;
  SetLastError(kUntouched);
  if (!CryptDecodeObject(kEncoding, structure, AsBytes(der.data()), der_size, 0, nullptr, &size)) {
    return Error("error 0x%08X", GetLastError());
  }
  ExpectLastError(false, 0);
  ExactBlock<char> out(size);
  EXPECT_TRUE(
      CryptDecodeObject(kEncoding, structure, AsBytes(der.data()), der_size, 0, out.data(), &size));
  EXPECT_EQ(size, out.size());
  CERT_NAME_VALUE value;
  std::memcpy(&value, out.data(), sizeof value);
  const std::string rest(out.data() + sizeof value, size - sizeof value);
  const bool text = structure == X509_UNICODE_NAME_VALUE;
  EXPECT_TRUE(text ? rest.size() >= value.Value.cbData : rest.size() == value.Value.cbData);
  if (value.Value.cbData != 0) {
    EXPECT_EQ(value.Value.pbData, AsBytes(out.data()) + sizeof value);
    EXPECT_TRUE(!text || Hex(rest.substr(rest.size() - 2)) == "0000");
  }
  return std::to_string(value.dwValueType) + ": " + Hex(rest.substr(0, value.Value.cbData));
}

// The same value by the call for single strings, which leaves UTF-8 of ASCII as it is.
std::string SingleString(const VectorRow& row) {
  auto der = ExactBlock<char>::CopyOf(row.octets("in"));
  StringValue value;
  if (!value.Decode(AsBytes(der.data()), der.size())) return Error("error 0x%08X", GetLastError());
  std::string octets;
  for (size_t i = 0; i < value.size(); ++i) {
    octets += static_cast<char>(value.data()[i]);
    if (der[0] == 0x0C && !value.is_utf16()) octets += '\0';
  }
  return Hex(octets);
}
std::string DecodedValue(const VectorRow& row) {
  const std::string answer = DecodedText(row, X509_NAME_VALUE);
  if (ThisRealisation() == kNative) {
    EXPECT_EQ(SingleString(row), answer.substr(answer[0] == 'e' ? 0 : answer.find(' ') + 1));
  }
  return answer;
}
std::string DecodedText(const VectorRow& row) { return DecodedText(row, X509_UNICODE_NAME_VALUE); }

// The text without its terminator, which the size counts; "none" where there is not even that.
template <class Char, class ToStr>
std::string ValueText(const VectorRow& row, const ToStr& to_str) {
  auto octets = ExactBlock<char>::CopyOf(row.octets("in"));
  CERT_RDN_VALUE_BLOB value{static_cast<DWORD>(octets.size()), AsBytes(octets.data())};
  const DWORD size = to_str(Type(row), &value, nullptr, 0);
  Char place{};
  EXPECT_EQ(to_str(Type(row), &value, &place, 0), size) << "room 0 asks for the size";
  ExactBlock<Char> out(size);
  EXPECT_EQ(to_str(Type(row), &value, out.data(), size), size);
  if (size == 0) return "none";
  EXPECT_EQ(out[size - 1], Char{});
  return Spaced(std::basic_string<Char>(out.data(), size - 1));
}
std::string NarrowText(const VectorRow& row) { return ValueText<char>(row, CertRDNValueToStrA); }
std::string WideText(const VectorRow& row) { return ValueText<wchar_t>(row, CertRDNValueToStrW); }

const CRYPT_OID_INFO* Find(DWORD key_type, const void* key) {
  SetLastError(kUntouched);
  const CRYPT_OID_INFO* const info = FindAttributeInfo(key_type, key);
  EXPECT_EQ(GetLastError(), kUntouched);
  return info;
}

// Twice: the second answer may come from memory.
std::string IdentifierOf(const VectorRow& row) {
  auto key = ExactBlock<wchar_t>::CopyOf(row.wide("in") + L'\0');
  const CRYPT_OID_INFO* const info = Find(CRYPT_OID_INFO_NAME_KEY, key.data());
  EXPECT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, key.data()), info);
  return info != nullptr ? info->pszOID : "none";
}

std::string NameOf(const VectorRow& row) {
  auto key = ExactBlock<char>::CopyOf(row.text("in") + '\0');
  const CRYPT_OID_INFO* const info = Find(CRYPT_OID_INFO_OID_KEY, key.data());
  EXPECT_EQ(Find(CRYPT_OID_INFO_OID_KEY, key.data()), info);
  if (info == nullptr) return "none";
  EXPECT_EQ(info->pszOID, row.text("in"));
  EXPECT_EQ(info->dwGroupId, static_cast<DWORD>(CRYPT_RDN_ATTR_OID_GROUP_ID));
  const std::wstring name = info->pwszName;
  return std::string(name.begin(), name.end());
}

// Year, month, day of the week, day, hour, minute, second, millisecond.
std::string Date(const VectorRow& row) {
  WORD fields[8] = {};
  std::istringstream in(row.text("in"));
  for (WORD& field : fields) in >> field;
  SYSTEMTIME time;
  std::memcpy(&time, fields, sizeof time);
  FILETIME out = {};
  SetLastError(kUntouched);
  return SystemTimeToFileTime(&time, &out) ? "taken" : Error("error %u", GetLastError());
}

TEST(Platform, Answers) {
  RunCalls("platform.tsv", {{"widen", Widen},
                            {"narrow", Narrow},
                            {"encode value", EncodedValue},
                            {"decode value", DecodedValue},
                            {"encode unicode", EncodedText},
                            {"decode unicode", DecodedText},
                            {"narrow text", NarrowText},
                            {"wide text", WideText},
                            {"attribute", IdentifierOf},
                            {"name", NameOf},
                            {"date", Date}});
}

TEST(CertRDNValueToStr, TooLittleRoomGivesAnEmptyText) {
  BYTE octets[] = {'a', 'b', 'c'};
  CERT_RDN_VALUE_BLOB value{3, octets};
  for (DWORD room = 1; room < 4; ++room) {
    ExactBlock<char> narrow(room);
    ExactBlock<wchar_t> wide(room);
    EXPECT_EQ(CertRDNValueToStrA(CERT_RDN_PRINTABLE_STRING, &value, narrow.data(), room), 1u);
    EXPECT_EQ(CertRDNValueToStrW(CERT_RDN_PRINTABLE_STRING, &value, wide.data(), room), 1u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(narrow[0] + wide[0], 0);
  }
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
  EXPECT_STREQ(Find(CRYPT_OID_INFO_NAME_KEY, L"CN")->pszOID, "2.5.4.3");
  EXPECT_EQ(Find(CRYPT_OID_INFO_OID_KEY, nullptr), nullptr);
  EXPECT_EQ(Find(CRYPT_OID_INFO_NAME_KEY, nullptr), nullptr);
}

TEST(CryptFindOIDInfo, HasTheAttributesInTheirGroupAlone) {
  char oid[] = "2.5.4.3";
  const PCCRYPT_OID_INFO info =
      CryptFindOIDInfo(CRYPT_OID_INFO_OID_KEY, oid, CRYPT_RDN_ATTR_OID_GROUP_ID);
  ASSERT_NE(info, nullptr);
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
  EXPECT_NE(Find(CRYPT_OID_INFO_NAME_KEY, L"CN"), nullptr);
}

}  // namespace
}  // namespace Ortholan::testing
