#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <set>
#include <string>
#include <vector>

#include "strict/names/attribute_types.h"
#include "tests/support/vectors.h"

namespace {

using ortholan::NameView;
using Ortholan::testing::ReadVectors;
using Ortholan::testing::VectorRow;

TEST(NameView, RefusesWithItsPlace) {
  for (const VectorRow& row : ReadVectors("strict_names.tsv")) {
    SCOPED_TRACE(row.where());
    // Of exactly this size, so that sanitizers see what is read behind it.
    const std::string der = row.text("der") == "-" ? std::string() : row.octets("der");
    const std::vector<uint8_t> block(der.begin(), der.end());
    const auto name = NameView::Read(block, static_cast<ortholan::Reading>(row.number("mode")));
    EXPECT_EQ(static_cast<uint64_t>(name.refusal().reason), row.number("reason"));
    if (!name) {
      EXPECT_EQ(name.refusal().offset, row.number("at"));
    }
  }
}

TEST(NameView, NoBeginningOfANameIsAName) {
  const ortholan::Name name =
      ortholan::Name::FromText("UID=a+CN=\\C3\\A9,2.999.1=#3003010100,O=Org").value();
  for (size_t size = 0; size < name.der().size(); ++size) {
    const std::vector<uint8_t> cut(name.der().begin(),
                                   name.der().begin() + static_cast<long>(size));
    EXPECT_FALSE(NameView::Read(cut)) << size;
  }
}

TEST(NameView, AttributesByIndexAndAsARange) {
  const ortholan::Name owner =
      ortholan::Name::FromText("CN=a,UID=b+OU=\\C3\\A9,O=c", ortholan::Rfc4514()).value();
  const NameView name = owner.view();
  ASSERT_EQ(name.attribute_count(), 4u);
  std::string seen;
  for (const ortholan::Attribute& each : name) {
    seen += std::to_string(each.rdn()) + (each.begins_rdn() ? "!" : "") + each.Text().value() + " ";
  }
  EXPECT_EQ(seen, u8"0!c 1!\u00E9 1b 2!a ");
  // Backward, without a cursor.
  for (size_t i = 4; i-- != 0;) {
    ortholan_attribute_view view;
    ASSERT_EQ(ortholan_name_view_attribute(&name.view(), i, nullptr, &view), 0);
    EXPECT_EQ(view.rdn, i == 3 ? 2u : i == 0 ? 0u : 1u);
  }
}

TEST(Identifiers, TextAndOctets) {
  for (const VectorRow& row : ReadVectors("identifiers.tsv")) {
    SCOPED_TRACE(row.where());
    const std::string octets = row.octets("octets");
    if (row.has("text")) {
      const auto made = ortholan::OidFromText(row.text("text"));
      ASSERT_EQ(made.has_value(), !octets.empty());
      if (made) {
        EXPECT_EQ(std::string(made->begin(), made->end()), octets);
      }
    }
    if (!octets.empty()) {
      const auto text = ortholan::OidToText(ortholan::Octets(octets));
      ASSERT_EQ(text.has_value(), row.has("text"));
      if (text) {
        EXPECT_EQ(*text, row.text("text"));
      }
    }
  }
}

// Each name leads to one row, and each row to its identifier.
TEST(AttributeTypes, AreFoundByEveryNameAndByIdentifier) {
  using namespace Ortholan::strict;
  std::set<std::string> oids;
  for (size_t i = 0; i < TypeCount(); ++i) {
    const AttributeType& type = TypeAt(i);
    EXPECT_EQ(FindType(type.oid.view()), &type) << type.name;
    EXPECT_TRUE(oids.emplace(type.oid.view().begin(), type.oid.view().end()).second) << type.name;
    std::string names(type.name);
    names.append(" ").append(type.long_name).append(" ").append(type.aliases);
    for (size_t start = 0, end; start < names.size(); start = end + 1) {
      end = std::min(names.find(' ', start), names.size());
      std::string name = names.substr(start, end - start);
      if (name.empty()) continue;
      EXPECT_TRUE(IsDescriptor(name)) << name;
      EXPECT_EQ(FindTypeByName(name), &type) << name;
      for (char& c : name) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
      EXPECT_EQ(FindTypeByName(name), &type) << name;
    }
  }
  EXPECT_EQ(FindTypeByName(""), nullptr);
  EXPECT_EQ(FindType({}), nullptr);
}

}  // namespace
