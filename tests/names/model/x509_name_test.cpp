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

// A common name of one character, written as these types.
constexpr char kPrintableA[] = "30 0C 31 0A 30 08 06 03 55 04 03 13 01 61";
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

struct StructureRow {
  const char* label;
  std::function<bool(X509Name&, bool)> set;  // SetBy with the flag; true
  std::function<bool(X509Name&, bool)> trySet;
  std::string plain;  // DER, or the refusal
  std::string utf8;
};

template <class Form, class... Sort>
StructureRow Structure(const char* label, Form form, std::string plain, std::string utf8,
                       Sort... sort) {
  return {label, [=](X509Name& name, bool flag) { return name.SetBy(form, flag, sort...), true; },
          [=](X509Name& name, bool flag) { return name.TrySetBy(form, flag, sort...); },
          std::move(plain), std::move(utf8)};
}

StructureRow Refused(StructureRow row, const std::string& refusal) {
  row.plain = row.utf8 = refusal;
  return row;
}

TEST(X509NameStructures, AreEncodedOrRefused) {
  Tree one;
  Tree two;
  two.rdn.cRDNAttr = 2;
  Tree none;
  none.info.cRDN = 0;
  Tree no_array;
  no_array.info.rgRDN = nullptr;
  Tree no_attribute;
  no_attribute.rdn = {0, nullptr};
  Tree null_attribute;
  null_attribute.rdn = {1, nullptr};
  Tree null_oid;
  null_oid.attrs[0].pszObjId = nullptr;
  Tree null_value;
  null_value.attrs[0].Value = {1, nullptr};
  const RDNAttr attr(one.attrs[0]);
  const RDNAttr blob("2.5.4.3", CERT_RDN_ENCODED_BLOB, Blob("0C 01 61"));
  using Pairs = std::list<SimpleRDN>;
  const Pairs pairs = {{"2.5.4.3", "a"}, {"2.5.4.6", "RU"}};
  const std::string cn = "31 0A 30 08 06 03 55 04 03 13 01 61";
  const std::string cn8 = "31 0A 30 08 06 03 55 04 03 0C 01 61";
  const std::string c = "31 0B 30 09 06 03 55 04 06 13 02 52 55";
  const std::string at = "30 08 06 03 55 04 03 13 01 61";
  const std::string at8 = "30 08 06 03 55 04 03 0C 01 61";

  const StructureRow rows[] = {
      Structure("tree", one.info, kPrintableA, kUtf8A),
      Structure("tree of two values in their order", two.info, "30 16 31 14 " + at + " " + at,
                "30 16 31 14 " + at8 + " " + at8),
      Structure("RDN without attributes", no_attribute.info, "30 02 31 00", "30 02 31 00"),
      Structure("attributes", Rdns{{attr}}, kPrintableA, kUtf8A),
      Structure("two RDNs, one empty", Rdns{{}, {attr}}, "30 0E 31 00 " + cn, "30 0E 31 00 " + cn8),
      Structure("pairs as they stand", pairs, "30 19 " + cn + " " + c, "30 19 " + cn8 + " " + c,
                false),
      Structure("pairs by rank", pairs, "30 19 " + c + " " + cn, "30 19 " + c + " " + cn8, true),
      Refused(Structure("no RDN", none.info, "", ""), kRefused),
      Refused(Structure("null RDNs", no_array.info, "", ""), kRefused),
      Refused(Structure("null attributes", null_attribute.info, "", ""), kRefused),
      Refused(Structure("null value", null_value.info, "", ""), kRefused),
      Refused(Structure("null identifier", null_oid.info, "", ""), "refused, 1326"),
      Refused(Structure("no RDN in the list", Rdns{}, "", ""), kRefused),
      Refused(Structure("a value that is no text", Rdns{{attr}, {blob}}, "", ""), kRefused),
      Refused(Structure("no pair", Pairs{}, "", "", true), "refused, 160"),
      Refused(Structure("keyword for an identifier", Pairs{{"CN", "a"}}, "", "", true),
              "refused, 1326"),
      Refused(Structure("pair without a value", Pairs{{"2.5.4.3", ""}}, "", "", true), kRefused),
  };
  for (const StructureRow& row : rows) {
    for (const bool flag : {false, true}) {
      SCOPED_TRACE(row.label);
      const std::string& expected = flag ? row.utf8 : row.plain;
      const bool refused = expected.substr(0, kRefused.size()) == kRefused;
      X509Name name = Blob(kOld);
      SetLastError(kUntouched);
      EXPECT_EQ(row.trySet(name, flag), !refused);
      EXPECT_EQ(refused ? Refusal() : Hex(name), expected);
      name = Blob(kOld);
      EXPECT_EQ(Failure([&] { row.set(name, flag); }), refused ? kUntyped : "returned");
      EXPECT_EQ(Hex(name), refused ? kOld : expected);
    }
  }
}

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
