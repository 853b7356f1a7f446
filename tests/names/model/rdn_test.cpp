// RDNAttr and SimpleRDN: copies, moves and orders.

#include <gtest/gtest.h>
#include <ortholan/rdn.h>

#include <utility>

#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

std::string Shown(const RDNAttr& attr) {
  return attr.oid.c_str() + (' ' + std::to_string(attr.valueType)) + ' ' + Hex(attr.value);
}

TEST(RdnAttr, TakesThePlatformsStructure) {
  char oid[] = "2.5.4.3";
  BYTE bytes[] = {1, 2};
  const CERT_RDN_ATTR raw = {oid, 7, {2, bytes}};
  const CERT_RDN_ATTR none = {nullptr, 3, {0, nullptr}};
  EXPECT_EQ(Shown(RDNAttr(raw)), "2.5.4.3 7 01 02");
  RDNAttr attr;
  EXPECT_EQ(&(attr = raw), &attr);
  EXPECT_NE(attr.value.pbData, bytes);
  attr.SetBy(none);
  EXPECT_EQ(Shown(attr), " 3 ");
  attr = RDNAttr("1.2", 12, Blob("05"));
  // Its own fields, seen as the platform's structure.
  const CERT_RDN_ATTR own = {const_cast<char*>(attr.oid.c_str()), 4, attr.value};
  attr.SetBy(own);
  EXPECT_EQ(Shown(attr), "1.2 4 05");
}

TEST(RdnAttr, MovesItsBytes) {
  RDNAttr attr("1.2", 12, Blob("05"));
  const RDNAttr copy = attr;
  const BYTE* const bytes = attr.value.pbData;
  EXPECT_NE(copy.value.pbData, bytes);
  RDNAttr moved(std::move(attr));
  EXPECT_EQ(moved.value.pbData, bytes);
  RDNAttr assigned;
  assigned = std::move(moved);
  EXPECT_EQ(assigned.value.pbData, bytes);
  EXPECT_EQ(Shown(assigned), Shown(copy));
}

struct OrderRow {
  const char* label;
  SimpleRDN a;
  SimpleRDN b;
  int rank;  // -1, 0, 1: a before b by operator<, neither, after
  int text;  // by CompareSimpleRDN
};

const OrderRow kOrderRows[] = {
    {"rank decides over value", {"2.5.4.3", "z"}, {"2.5.4.6", "a"}, -1, -1},
    {"equal rank", {"2.5.4.3", "a"}, {"2.5.4.65", "b"}, 0, -1},
    {"equal key", {"2.5.4.3", "b"}, {"2.5.4.3", "a"}, 0, 1},
    {"equal pair", {"2.5.4.3", "a"}, {"2.5.4.3", "a"}, 0, 0},
    {"keyword has no rank", {"CN", "a"}, {"2.5.4.3", "a"}, 1, 1},
    {"unsigned octets", {"k", "\xD0"}, {"k", "a"}, 0, 1},
    {"letter case counts", {"k", "a"}, {"k", "B"}, 0, 1},
    {"prefix", {"k", "a"}, {"k", "ab"}, 0, -1},
    {"an empty value is neither less nor greater", {"k", ""}, {"k", "a"}, 0, 0},
    {"an empty key leaves it to the value", {"", "a"}, {"k", "b"}, 0, -1},
};

TEST(SimpleRdn, HasTwoOrders) {
  const SimpleRDN::CompareSimpleRDN less;
  for (const OrderRow& row : kOrderRows) {
    SCOPED_TRACE(row.label);
    EXPECT_EQ((row.a > row.b) - (row.a < row.b), row.rank);
    EXPECT_EQ((row.b > row.a) - (row.b < row.a), -row.rank);
    EXPECT_EQ(less(row.b, row.a) - less(row.a, row.b), row.text);
  }
}

TEST(SimpleRdn, SharesItsTextsUntilTheyChange) {
  SimpleRDN pair("k", "v");
  const SimpleRDN copy = pair;
  pair.value += 'x';
  EXPECT_STREQ(copy.value.c_str(), "v");
  const SimpleRDN moved(std::move(pair));
  EXPECT_STREQ(moved.value.c_str(), "vx");
  const SimpleRDN none(nullptr, nullptr);
  EXPECT_STREQ(none.key.c_str(), "");
}

}  // namespace
}  // namespace Ortholan::testing
