// X509Name as a value: made from other forms, read in other forms.

#include <gtest/gtest.h>
#include <ortholan/x509_name.h>

#include <functional>
#include <type_traits>
#include <utility>

#include "tests/names/name_answers.h"
#include "tests/support/failure.h"

namespace Ortholan::testing {
namespace {

using Rdns = std::list<std::list<RDNAttr>>;

static_assert(sizeof(X509Name) == sizeof(IdentObj));
static_assert(std::is_nothrow_move_constructible_v<X509Name>);
static_assert(std::is_nothrow_move_assignable_v<X509Name>);

constexpr DWORD kDotted = 2;
constexpr char kOld[] = "30 0E 31 0C 30 0A 06 03 55 04 0A 0C 03 4F 6C 64";

std::string Dotted(const X509Name& name) { return Rendered(name, kDotted); }

// A common name of one character.
constexpr char kUtf8A[] = "30 0C 31 0A 30 08 06 03 55 04 03 0C 01 61";

// The tree of a caller; the arrays stay the caller's.
struct Tree {
  char oid[8] = "2.5.4.3";
  BYTE bytes[2] = {'a', 0};
  CERT_RDN_ATTR attrs[2] = {{oid, CERT_RDN_PRINTABLE_STRING, {1, bytes}},
                            {oid, CERT_RDN_UNICODE_STRING, {2, bytes}}};
  CERT_RDN rdn = {1, attrs};
  CERT_NAME_INFO info = {1, &rdn};
};

TEST(X509NameStructures, ConstructAndAssignAsUtf8InOrder) {
  Tree tree;
  const Rdns rdns = {{RDNAttr(tree.attrs[0])}};
  const std::list<SimpleRDN> pairs = {{"2.5.4.3", "a"}, {"2.5.4.6", "RU"}};
  const std::string sorted = "2.5.4.6=RU,2.5.4.3=a";
  EXPECT_EQ(Hex(X509Name(tree.info)), kUtf8A);
  EXPECT_EQ(Hex(X509Name(rdns)), kUtf8A);
  EXPECT_EQ(Dotted(X509Name(pairs)), sorted);
  X509Name name;
  EXPECT_EQ(&(name = tree.info), &name);
  EXPECT_EQ(Hex(name), kUtf8A);
  EXPECT_EQ(&(name = pairs), &name);
  EXPECT_EQ(Dotted(name), sorted);
  EXPECT_EQ(&(name = rdns), &name);
  EXPECT_EQ(Hex(name), kUtf8A);
  tree.info.cRDN = 0;
  EXPECT_EQ(Failure([&] { X509Name(tree.info); }), kUntyped);
  EXPECT_EQ(Failure([&] { X509Name(Rdns{}); }), kUntyped);
  EXPECT_EQ(Failure([&] { X509Name(std::list<SimpleRDN>{}); }), kUntyped);
  EXPECT_EQ(Failure([&] { name = tree.info; }), kUntyped);
  EXPECT_EQ(Failure([&] { name = Rdns{}; }), kUntyped);
  EXPECT_EQ(Failure([&] { name = std::list<SimpleRDN>(); }), kUntyped);
  EXPECT_EQ(Hex(name), kUtf8A);
}

TEST(X509NameValue, CopiesBytesAndLooksAtNone) {
  const IdentObj bytes = Blob("FF 00 01");
  const X509Name name = bytes;
  X509Name copy(name);
  EXPECT_EQ(Hex(copy), "FF 00 01");
  EXPECT_NE(copy.pbData, name.pbData);
  const BYTE* const before = copy.pbData;
  copy = *&copy;
  copy = static_cast<const IdentObj&>(copy);
  EXPECT_EQ(copy.pbData, before);
  copy = Blob("01");
  EXPECT_EQ(Hex(copy), "01");
  copy = name;
  EXPECT_EQ(Hex(*static_cast<const CRYPT_DATA_BLOB*>(&copy)), "FF 00 01");
}

TEST(X509NameValue, MovesWithoutACopy) {
  X509Name first = Blob(kOld);
  const BYTE* const bytes = first.pbData;
  X509Name second(std::move(first));
  EXPECT_EQ(second.pbData, bytes);
  X509Name third;
  third = std::move(second);
  EXPECT_EQ(third.pbData, bytes);
  IdentObj blob(std::move(third));
  EXPECT_EQ(blob.pbData, bytes);
  X509Name fourth(std::move(blob));
  EXPECT_EQ(fourth.pbData, bytes);
  blob = std::move(fourth);
  fourth = std::move(blob);
  EXPECT_EQ(fourth.pbData, bytes);
  EXPECT_EQ(Hex(fourth), kOld);
  for (const IdentObj* empty : {static_cast<IdentObj*>(&first), static_cast<IdentObj*>(&second),
                                static_cast<IdentObj*>(&third), &blob}) {
    EXPECT_EQ(empty->cbData, 0u);
    EXPECT_EQ(empty->pbData, nullptr);
  }
}

TEST(X509NameReaders, LeaveTheLastErrorOfAnEmptyObject) {
  const X509Name name;
  std::string text;
  Rdns rdns;
  SetLastError(kUntouched);
  name.GetX500String(text, 3);
  name.GetNameInfo(rdns);
  EXPECT_EQ(GetLastError(), kUntouched);
}

// In a code page that has the characters, text survives; natively 8-bit text is UTF-8.
TEST(X509NameText, SurvivesOutsideAscii) {
  if (ThisRealisation() != kNative) GTEST_SKIP() << "the system's code page decides";
  const std::string text = "2.5.4.3=\xD0\x98\xD0\xB2\xD0\xB0\xD0\xBD \xF0\x9F\x98\x80";
  X509Name name(text.c_str(), 0, true);
  std::string read;
  name.GetX500String(read, kDotted);
  EXPECT_EQ(read, text);
  // A broken octet is one U+FFFD and no failure.
  name.SetBy("CN=a\xFF", 0, true);
  EXPECT_EQ(Dotted(name), "2.5.4.3=a<FFFD>");
}

}  // namespace
}  // namespace Ortholan::testing
