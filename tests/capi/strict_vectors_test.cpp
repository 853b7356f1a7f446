// General names and attribute types by the C functions of the strict layer, in rooms of the size
// that they tell and of one octet less.
#include <gtest/gtest.h>
#include <ortholan/strict.h>

#include <string>
#include <vector>

#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

ortholan_text TextView(const std::string& text) { return {text.data(), text.size()}; }
ortholan_octets OctetsView(const std::string& octets) {
  return {reinterpret_cast<const uint8_t*>(octets.data()), octets.size()};
}

// What a call puts, or nothing with the refusal's name and offset in `*refused`.
template <class Unit, class Call>
std::string PutBy(std::string* refused, Call call) {
  ortholan_refusal refusal;
  size_t size = 77;
  const ortholan_reason asked = call(static_cast<Unit*>(nullptr), size_t{0}, &size, &refusal);
  EXPECT_EQ(refusal.reason, asked);
  if (asked != ORTHOLAN_REASON_ROOM) {
    EXPECT_EQ(size, 0u);
    *refused = ortholan_reason_name(asked) + (' ' + std::to_string(refusal.offset));
    return {};
  }
  std::vector<Unit> out(size);
  EXPECT_EQ(call(out.data(), size - 1, &size, nullptr), ORTHOLAN_REASON_ROOM);
  EXPECT_EQ(size, out.size());
  EXPECT_EQ(call(out.data(), out.size(), &size, nullptr), ORTHOLAN_REASON_NONE);
  EXPECT_EQ(size, out.size());
  return {out.begin(), out.end()};
}

std::string NameOfText(const std::string& text, std::string* refused) {
  return PutBy<uint8_t>(
      refused, [&](uint8_t* out, size_t room, size_t* size, ortholan_refusal* why) {
        return ortholan_general_name_from_text(TextView(text), 1, out, room, size, why);
      });
}

TEST(StrictCInterface, GeneralNames) {
  for (const VectorRow& row : ReadVectors("strict_general_names.tsv")) {
    SCOPED_TRACE(row.where());
    std::string refused;
    EXPECT_EQ(NameOfText(row.text("text"), &refused), row.octets("der"));
    EXPECT_EQ(refused, row.has("reason")
                           ? row.text("reason") + ' ' + std::to_string(row.number("offset"))
                           : "");
    if (row.has("reason")) continue;
    const std::string der = row.octets("der");
    const std::string shown =
        PutBy<char>(&refused, [&](char* out, size_t room, size_t* size, ortholan_refusal* why) {
          return ortholan_general_name_to_text(OctetsView(der), out, room, size, why);
        });
    EXPECT_EQ(shown, row.text(row.has("shown") ? "shown" : "text"));
    EXPECT_EQ(refused, "");
    ortholan_general_name_view name;
    EXPECT_EQ(
        ortholan_general_name_view_read(OctetsView(der), ORTHOLAN_READ_STRUCTURE, &name, nullptr),
        ORTHOLAN_REASON_NONE);
    EXPECT_EQ(name.kind, der[0] & 0x1F);
  }
}

TEST(StrictCInterface, AlternativeNames) {
  for (const VectorRow& row : ReadVectors("strict_alternative_names.tsv")) {
    SCOPED_TRACE(row.where());
    std::vector<std::string> names(1);
    for (const char c : row.text("names")) c == '|' ? names.emplace_back() : names.back() += c;
    std::vector<ortholan_text> texts;
    for (const std::string& name : names) texts.push_back(TextView(name));
    const int32_t form = row.has("critical") ? ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL
                                             : ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION;
    std::string refused;
    const auto put = [&](uint8_t* out, size_t room, size_t* size, ortholan_refusal* why) {
      return ortholan_alternative_names_from_text(texts.data(), texts.size(), form, out, room, size,
                                                  nullptr, why);
    };
    EXPECT_EQ(PutBy<uint8_t>(&refused, put), row.octets("der"));
    EXPECT_EQ(refused, "");
  }
}

TEST(StrictCInterface, AttributeTypes) {
  ortholan_attribute_type type;
  ASSERT_EQ(ortholan_attribute_type_named({"COMMONNAME", 10}, &type), ORTHOLAN_REASON_NONE);
  EXPECT_EQ(std::string(type.name.data, type.name.size), "CN");
  EXPECT_EQ(type.bound, 64u);
  const ortholan_octets oid = type.oid;
  EXPECT_EQ(ortholan_attribute_type_of(oid, &type), ORTHOLAN_REASON_NONE);
  const size_t count = ortholan_attribute_type_count();
  EXPECT_EQ(ortholan_attribute_type_at(count - 1, &type), ORTHOLAN_REASON_NONE);
  EXPECT_EQ(ortholan_attribute_type_at(count, &type), ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(type.oid.data, nullptr);
  EXPECT_EQ(ortholan_attribute_type_named({"CN ", 3}, &type), ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(ortholan_attribute_type_of({}, &type), ORTHOLAN_REASON_NOT_FOUND);
  EXPECT_EQ(ortholan_attribute_type_of({nullptr, 1}, &type), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_attribute_type_named({nullptr, 1}, &type), ORTHOLAN_REASON_ARGUMENT);
  EXPECT_EQ(ortholan_attribute_type_at(0, nullptr), ORTHOLAN_REASON_ARGUMENT);
}

}  // namespace
}  // namespace Ortholan::testing
