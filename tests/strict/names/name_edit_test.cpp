#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>

namespace {

using ortholan::Name;
using ortholan::NameView;
using ortholan::NewAttribute;

constexpr char kStart[] = "UID=a+CN=Alpha,O=Org,C=DE";

TEST(NameEdit, ChangesOnePlace) {
  const Name start = Name::FromText(kStart).value();
  const NameView name = start.view();
  const NewAttribute beta = {"CN", "Beta"};
  NewAttribute joined = {"2.5.4.11", "x"};
  joined.joins_rdn = true;
  const struct {
    const char* label;
    ortholan::Result<Name> edited;
    const char* text;
  } rows[] = {
      {"the first", Replaced(name, 0, {"C", "FR"}), "UID=a+CN=Alpha,O=Org,C=FR"},
      {"one of two", Replaced(name, 2, beta), "UID=a+CN=Beta,O=Org,C=DE"},
      {"one of two, which changes their order", Replaced(name, 2, {"UID", "b"}),
       "UID=a+UID=b,O=Org,C=DE"},
      {"removed", Removed(name, 1), "UID=a+CN=Alpha,C=DE"},
      {"removed from an RDN", Removed(name, 2), "UID=a,O=Org,C=DE"},
      {"in front", Inserted(name, 0, beta), "UID=a+CN=Alpha,O=Org,C=DE,CN=Beta"},
      {"at the end", Inserted(name, 3, beta), "CN=Beta,UID=a+CN=Alpha,O=Org,C=DE"},
      {"joined", Inserted(name, 1, joined), "UID=a+CN=Alpha,O=Org+OU=x,C=DE"},
  };
  for (const auto& row : rows) {
    ASSERT_TRUE(row.edited) << row.label;
    EXPECT_EQ(row.edited->der(), Name::FromText(row.text).value().der()) << row.label;
    EXPECT_TRUE(NameView::Read(row.edited->der())) << row.label;
  }
  EXPECT_EQ(Removed(name, 4).refusal().reason, ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(Inserted(name, 4, beta).refusal().reason, ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(Inserted(name, 3, joined).refusal().reason, ORTHOLAN_REASON_NOT_FOUND);
}

// TeletexString that no policy would write, before and behind the place.
TEST(NameEdit, LeavesOthersOctetForOctet) {
  const auto start = ortholan::NameBuilder()
                         .Add("O", u8"\u00E9", 0x14)
                         .Add("CN", "a")
                         .Add("OU", u8"\u0416", 0x1E)
                         .Build();
  const std::string kept = "OU=#1E020416,CN=b,O=#1401E9";
  ortholan::Rfc4514 exact;
  exact.exact = true;
  const auto edited = Replaced(start.value().view(), 1, {"CN", "b"});
  EXPECT_EQ(edited.value().ToText(exact).value(), kept);
}

TEST(NameEdit, StringTypesAndElements) {
  const struct {
    NewAttribute attribute;
    const char* text;
    ortholan_reason reason;
  } rows[] = {
      {{"CN", "a", 0x0C}, "CN=#0C0161", 0},
      {{"CN", "1 2", 0x12}, "CN=#1203312032", 0},
      {{"CN", u8"\U0001F600", 0x1C}, "CN=#1C040001F600", 0},
      {{"CN", u8"\U0001F600", 0x1E}, "", ORTHOLAN_REASON_TEXT_ALPHABET},
      {{"CN", u8"\u0416", 0x14}, "", ORTHOLAN_REASON_TEXT_ALPHABET},
      {{"CN", "a_b", 0x13}, "", ORTHOLAN_REASON_TEXT_ALPHABET},
      {{"CN", "a", 0x02}, "", ORTHOLAN_REASON_NO_STRING},
      {{"CN", "\xFF"}, "", ORTHOLAN_REASON_TEXT_UTF8},
      {{"Foo", "a"}, "", ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE},
      {{"3.1", "a"}, "", ORTHOLAN_REASON_TEXT_OID},
      {{"postalAddress", "a$"}, "", ORTHOLAN_REASON_TEXT_LINE},
      {{"member", "a"}, "", ORTHOLAN_REASON_TEXT_NO_STRING},
      {{"x500UniqueIdentifier", "", 0, {0x03, 0x02, 0x00, 0x01}},
       "x500UniqueIdentifier=#03020001",
       0},
      {{"CN", "", 0, {0x0C, 0x02, 0x41}}, "", ORTHOLAN_REASON_TRUNCATED},
  };
  ortholan::Rfc4514 exact;
  exact.exact = true;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.attribute.type + "=" + row.attribute.text);
    const auto name = ortholan::NameBuilder().Add("O", "Org").Add(row.attribute).Build();
    EXPECT_EQ(name.refusal().reason, row.reason);
    if (row.reason != 0) {
      EXPECT_EQ(name.refusal().met, 1u);
    }
    if (row.reason == 0) {
      EXPECT_EQ(name->ToText(exact).value(), std::string(row.text) + ",O=Org");
    }
  }
}

}  // namespace
