// CertNameInfoWrapper and the tree that a name is decoded to.

#include "tests/names/name_answers.h"

namespace Ortholan::testing {
namespace {

// "oid type octets; ..." of each attribute.
std::string TreeText(const CERT_NAME_INFO& tree) {
  std::string shown;
  for (DWORD i = 0; i < tree.cRDN; ++i) {
    EXPECT_EQ(tree.rgRDN[i].cRDNAttr, 1u);
    const CERT_RDN_ATTR& attr = tree.rgRDN[i].rgRDNAttr[0];
    shown += std::string(attr.pszObjId != nullptr ? attr.pszObjId : "-") + ' ' +
             std::to_string(attr.dwValueType) + ' ' + Hex(attr.Value) + "; ";
  }
  return shown;
}

constexpr char kOrg[] = "30 0E 31 0C 30 0A 06 03 55 04 0A 0C 03 4F 72 67";

struct Row {
  const char* label;
  const char* name;
  bool decoded;
  const char* tree;
};

const Row kRows[] = {
    {"no RDN", "30 00", true, ""},
    {"UTF-16LE, padding", "30 0B 31 09 30 07 06 01 55 0C 02 C3 A9", true,
     "2.5 12 E9 00 00 00 00 00; "},
    {"no text", "30 09 31 07 30 05 06 01 55 0C 00", true, "2.5 12 00 00 00 00; "},
    {"surrogates and NUL", "30 0F 31 0D 30 0B 06 01 55 1E 06 D8 3D DE 00 00 00", true,
     "2.5 12 3D D8 00 DE 00 00 00 00 00 00; "},
    {"a value that cannot be decoded, and the next",
     "30 14 31 08 30 06 06 01 55 93 01 02 31 08 30 06 13 01 61 06 01 2A", true,
     "2.5 1 93 01 02; 1.2 12 61 00 00 00 00 00; "},
    {"refused in between: the rest is not filled",
     "30 10 31 08 30 06 06 01 55 13 01 61 31 00 31 02 05 00", false,
     "2.5 12 61 00 00 00 00 00; - 0 ; - 0 ; "},
    {"type refused behind its value", "30 09 31 07 30 05 13 01 61 06 00", false,
     "- 12 61 00 00 00 00 00; "},
};

// What was in the tree before is released.
TEST(NameTree, IsFilled) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.label);
    X500NameDecoder decoder;
    CertNameInfoWrapper wrapper;
    CERT_NAME_INFO* const tree = wrapper;
    ASSERT_TRUE(decoder.Decode(Blob(kOrg), wrapper));
    EXPECT_EQ(decoder.Decode(Blob(row.name), wrapper), row.decoded);
    EXPECT_EQ(TreeText(*tree), row.tree);
    EXPECT_EQ(tree->rgRDN == nullptr, tree->cRDN == 0);
    wrapper.Clean();
    EXPECT_EQ(tree->cRDN, 0u);
    EXPECT_EQ(tree->rgRDN, nullptr);
  }
}

TEST(NameTree, StaysWhereTheNameCannotBeScanned) {
  X500NameDecoder decoder;
  CertNameInfoWrapper wrapper;
  ASSERT_TRUE(decoder.Decode(Blob(kOrg), wrapper));
  EXPECT_FALSE(decoder.Decode(Blob("30 03 31 02"), wrapper));
  EXPECT_FALSE(decoder.Decode(IdentObj(), wrapper));
  EXPECT_EQ(TreeText(*wrapper), "2.5.4.10 12 4F 00 72 00 67 00 00 00 00 00; ");
}

// Arrays that are not counted are not the wrapper's: a sanitizer sees them freed.
TEST(NameTree, CleansWhatItCounts) {
  CERT_RDN rdn = {1, nullptr};
  CERT_RDN_ATTR attr = {};
  CertNameInfoWrapper wrapper;
  CERT_NAME_INFO* const tree = wrapper;
  const CERT_NAME_INFO trees[] = {
      {0, &rdn}, {5, nullptr}, {2, new CERT_RDN[2]{{0, &attr}, {3, nullptr}}}};
  for (const CERT_NAME_INFO& counted : trees) {
    *tree = counted;
    wrapper.Clean();
    EXPECT_EQ(tree->cRDN, 0u);
    EXPECT_EQ(tree->rgRDN, nullptr);
  }
  // A tree that a caller has built is released with the wrapper, all attributes of an RDN too.
  const auto attribute = [](BYTE value) {
    return CERT_RDN_ATTR{new char[2]{'1', '\0'}, 4, {1, new BYTE[1]{value}}};
  };
  *tree = {2, new CERT_RDN[2]{{3, new CERT_RDN_ATTR[3]{attribute('a'), attribute('b'), {}}},
                              {1, new CERT_RDN_ATTR[1]{attribute('c')}}}};
}

}  // namespace
}  // namespace Ortholan::testing
