// What crosses the border of the built library by type: exceptions, constants, containers, and
// virtual calls.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include <algorithm>
#include <new>
#include <string>

#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

template <class Type, class Call>
bool IsCaughtAs(Call&& call) {
  try {
    call();
  } catch (const Type&) {
    return true;
  } catch (...) {
  }
  return false;
}

TEST(Exceptions, AreCaughtByEachOfTheirTypes) {
  const auto no_sequence = [] {
    std::list<IdentObj> children;
    ASNTGetSequence(children, "0", 1, nullptr);
  };
  EXPECT_TRUE(IsCaughtAs<XZEPStatus>(no_sequence));
  EXPECT_TRUE(IsCaughtAs<XZEPMsg>(no_sequence));
  EXPECT_TRUE(IsCaughtAs<XZEPBaseMsg>(no_sequence));
  EXPECT_FALSE(IsCaughtAs<std::exception>(no_sequence));
  EXPECT_EQ(Thrown(no_sequence).substr(0, 4), "206 ");
  EXPECT_EQ(Thrown([] { DerHelper::EncodeOid("2"); }).substr(0, 2), "1 ");
  const auto no_address = [] { GeneralName::CreateIpAddress(L"127.0.0.1"); };
  EXPECT_TRUE(IsCaughtAs<std::bad_alloc>(no_address));
  EXPECT_FALSE(IsCaughtAs<XZEPBaseMsg>(no_address));
}

// The caller throws the library's types too; the copy keeps its text.
TEST(Exceptions, MayBeTheCallers) {
  try {
    throw XZEPStatus(28, "caller", true);
  } catch (const XZEPMsg& message) {
    EXPECT_STREQ(message.GetMessageText(), "caller");
    EXPECT_TRUE(message.GetFlag());
    const auto* status = dynamic_cast<const XZEPStatus*>(&message);
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->GetStatus(), 28u);
    EXPECT_STREQ(status->GetText().c_str(), "Status = 28");
  }
}

TEST(Constants, AreTheLibrarys) {
  EXPECT_EQ(X500NameEncoder::PrintableString.size(), 75u);
  EXPECT_EQ(X500NameEncoder::IA5String.size(), 97u);
  EXPECT_EQ(X500NameEncoder::IA5String.substr(52, 10), L"0123456789");
  EXPECT_NE(X500NameDecoder::AuxSymbols.find(L'"'), std::wstring::npos);
  EXPECT_EQ(X500NameDecoder::ToHex(0xAF), L"AF");
}

CertExtension Extension(const char* oid, const char* value) {
  CertExtension extension;
  extension.oid = oid;
  extension.critical = 1;
  extension.value = Blob(value);
  return extension;
}

// The list's members are the library's; each is called here, inlined or not.
TEST(ExtensionList, IsAStandardList) {
  CertExtensionList list;
  list.push_back(Extension("2.5.29.19", "30 00"));
  list.emplace_front(Extension("2.5.29.15", "03 02 01 06"));
  list.insert(list.begin(), 2, Extension("2.5.29.14", "04 00"));
  std::list<CertExtension> copy(list);
  copy.reverse();
  copy.remove(Extension("2.5.29.14", "04 00"));
  copy.splice(copy.end(), list, list.begin());
  copy.resize(4);
  copy.sort();
  EXPECT_EQ(copy.size(), 4u);
  EXPECT_EQ(list.size(), 3u);
  EXPECT_EQ(list.back().oid.cbData, 9u);
  list.pop_back();
  list.erase(list.begin());
  EXPECT_EQ(list.GetObjectSize(), 4 + list.front().GetObjectSize());
  CertExtension found;
  EXPECT_TRUE(list.FindExtension("2.5.29.15", found));
  EXPECT_EQ(Hex(found.value), "03 02 01 06");
  list.swap(list);
  list.assign(3, found);
  list.unique();
  EXPECT_EQ(list.size(), 1u);
  list.clear();
  EXPECT_TRUE(list.empty());
}

// Counts the calls that the library makes through the table of virtual functions.
class CountingBlob : public IdentObj {
 public:
  void Clear() override {
    ++cleared;
    IdentObj::Clear();
  }
  int cleared = 0;
};

TEST(VirtualCalls, ReachTheCallersOverride) {
  CountingBlob blob;
  EXPECT_FALSE(X500NameEncoder().Encode(L"", blob, true));
  EXPECT_EQ(blob.cleared, 1);
}

}  // namespace
}  // namespace Ortholan::testing
