// RFC 4514 text by the C++ face, which stands on the C functions.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/support/data_lines.h"
#include "tests/support/hex.h"
#include "tests/support/vectors.h"

namespace {

using ortholan::Name;
using ortholan::NameView;
using ortholan::Rfc4514;
using Ortholan::testing::ReadVectors;
using Ortholan::testing::VectorRow;

std::string Octets(const Name& name) { return {name.der().begin(), name.der().end()}; }

Rfc4514 Exact(ortholan::RdnOrder order = ortholan::RdnOrder::kReversed) {
  Rfc4514 options;
  options.exact = true;
  options.order = order;
  return options;
}

// What holds for every name in DER.
void ExpectComesBack(const NameView& name) {
  const std::string der(reinterpret_cast<const char*>(name.der().data()), name.der().size());
  for (const auto order : {ortholan::RdnOrder::kReversed, ortholan::RdnOrder::kAsEncoded}) {
    for (const auto strings :
         {ortholan::StringPolicy::kPrintableOrUtf8, ortholan::StringPolicy::kUtf8}) {
      Rfc4514 options = Exact(order);
      options.strings = strings;
      options.long_names = strings == ortholan::StringPolicy::kUtf8;
      const std::string text = name.ToText(options).value();
      const auto back = Name::FromText(text, options);
      ASSERT_TRUE(back) << text << ": " << back.refusal().Sentence();
      EXPECT_EQ(Octets(*back), der) << text;
    }
  }
  // Other string types may change the order of a SET, once.
  const std::string plain = Name::FromText(name.ToText().value()).value().ToText().value();
  EXPECT_EQ(Name::FromText(plain).value().ToText().value(), plain);
}

TEST(Rfc4514, ReadsAndRefusesAsPublishedSuitesDo) {
  for (const VectorRow& row : ReadVectors("rfc4514_read.tsv")) {
    SCOPED_TRACE(row.where());
    const auto name = Name::FromText(row.text("text"));
    ASSERT_EQ(name.has_value(), row.has("der"));
    if (!name) continue;
    EXPECT_EQ(Octets(*name), row.octets("der"));
  }
}

TEST(Rfc4514, WritesNames) {
  for (const VectorRow& row : ReadVectors("rfc4514_write.tsv")) {
    SCOPED_TRACE(row.where());
    const std::string der = row.octets("der");
    const auto name = NameView::Read(der);
    ASSERT_EQ(name.has_value(), row.has("text"));
    if (!name) continue;
    EXPECT_EQ(name->ToText().value(), row.text("text"));
    EXPECT_EQ(name->ToText(Exact()).value(), row.text("exact"));
    ExpectComesBack(*name);
  }
}

TEST(Rfc4514, EveryNameInDerComesBack) {
  size_t read = 0;
  for (const std::string& line : Ortholan::testing::DataLines("names.txt")) {
    const std::string der = Ortholan::testing::Octets(line);
    const auto name = NameView::Read(der);
    if (!name) continue;
    ++read;
    ExpectComesBack(*name);
  }
  EXPECT_GT(read, 20u);
}

TEST(Rfc4514, TellsWhyTextIsRefused) {
  for (const VectorRow& row : ReadVectors("rfc4514_errors.tsv")) {
    SCOPED_TRACE(row.where());
    const std::string& text = row.text("text");
    const auto name = Name::FromText(text);
    ASSERT_FALSE(name);
    const ortholan::NameTextError error = ortholan::ExplainNameText(text, name.refusal());
    EXPECT_EQ(static_cast<uint64_t>(error.reason), row.number("reason"));
    EXPECT_EQ(error.position, row.number("at"));
    EXPECT_EQ(error.met, row.text("met"));
    EXPECT_EQ(error.message, row.text("sentence"));
    // The same however small the room.
    ortholan_refusal refusal;
    ortholan_rfc4514_read(ortholan::ToText(text), nullptr, nullptr, 0, nullptr, &refusal);
    EXPECT_EQ(refusal.reason, error.reason);
    EXPECT_EQ(refusal.offset, error.position);
  }
}

TEST(Rfc4514, OctetsThatAreNoTextAreRefused) {
  const auto name = Name::FromText("CN=a\xFF");
  ASSERT_EQ(name.refusal().reason, ORTHOLAN_REASON_TEXT_UTF8);
  EXPECT_EQ(ortholan::ExplainNameText("CN=a\xFF", name.refusal()).message,
            "octet FF at character 5: expected text in UTF-8");
}

// What nobody can see, and what stands beside it and can be seen.
TEST(Rfc4514, EscapesWhatCannotBeSeen) {
  const struct {
    const char* value;
    const char* text;
  } rows[] = {
      {"a\nCN=b", "CN=a\\0ACN=b"},
      {"\x1B[2J", "CN=\\1B[2J"},
      {"\x7F", "CN=\\7F"},
      {u8"\u0085", "CN=\\C2\\85"},              // next line
      {u8"a\u00A0b", "CN=a\\C2\\A0b"},          // a blank that is none
      {u8"\u00AD", "CN=\\C2\\AD"},              // soft hyphen
      {u8"\u202E", "CN=\\E2\\80\\AE"},          // right-to-left override
      {u8"\u2066", "CN=\\E2\\81\\A6"},          // isolate
      {u8"\u200B", "CN=\\E2\\80\\8B"},          // zero width
      {u8"\u2028", "CN=\\E2\\80\\A8"},          // line separator
      {u8"\uFEFF", "CN=\\EF\\BB\\BF"},          // byte order mark
      {u8"\u3164", "CN=\\E3\\85\\A4"},          // filler
      {u8"\uE000", "CN=\\EE\\80\\80"},          // private use
      {u8"\uFFFE", "CN=\\EF\\BF\\BE"},          // no character
      {u8"\U000E0041", "CN=\\F3\\A0\\81\\81"},  // tag
      {u8"\u0378", "CN=\\CD\\B8"},              // not assigned
      {u8"\u00E9\u0416\u4E2D\uAC00\U0001F600", u8"CN=\u00E9\u0416\u4E2D\uAC00\U0001F600"},
  };
  for (const auto& row : rows) {
    const auto name = ortholan::NameBuilder().Add("CN", row.value, 0x0C).Build();
    EXPECT_EQ(name.value().ToText().value(), row.text);
    ExpectComesBack(name->view());
  }
}

TEST(Rfc4514, NamesOfTheCallersOwn) {
  Rfc4514 options;
  options.names = {{"widget", ortholan::OidFromText("1.2.3.4").value()},
                   {"CN", ortholan::OidFromText("1.2.3.5").value()},
                   {"widget", ortholan::OidFromText("1.2.3.6").value()}};
  const auto name = Name::FromText("Widget=a,cn=b,2.5.4.3=c,1.2.3.6=d", options);
  EXPECT_EQ(name.value().ToText().value(), "1.2.3.4=#130161,1.2.3.5=#130162,CN=c,1.2.3.6=#0C0164");
  // Text never has a name that would be read as another type.
  EXPECT_EQ(name->ToText(options).value(), "widget=a,CN=b,2.5.4.3=#130163,1.2.3.6=#0C0164");
  options.names = {{"a b", {0x2A}}};
  EXPECT_EQ(name->ToText(options).refusal().reason, ORTHOLAN_REASON_TYPE_NAME);
  options.names = {{"ab", {0x80}}};
  EXPECT_EQ(name->ToText(options).refusal().reason, ORTHOLAN_REASON_OID);
}

TEST(Rfc4514, RoomThatIsTooSmallIsToldAtEverySize) {
  const std::string text = "CN=\\C3\\A9+OU=b,2.999.1=#0500,O=\"x, y\"";
  const Name name = Name::FromText(text).value();
  const ortholan_name_view view = name.view().view();
  for (size_t room = 0; room < name.der().size(); ++room) {
    std::vector<uint8_t> out(room);
    size_t size = 0;
    EXPECT_EQ(
        ortholan_rfc4514_read(ortholan::ToText(text), nullptr, out.data(), room, &size, nullptr),
        ORTHOLAN_REASON_ROOM);
    EXPECT_EQ(size, name.der().size());
  }
  const size_t needed = name.ToText().value().size();
  for (size_t room = 0; room < needed; ++room) {
    std::string out(room, '\0');
    size_t size = 0;
    EXPECT_EQ(ortholan_rfc4514_write(&view, nullptr, out.data(), room, &size, nullptr),
              ORTHOLAN_REASON_ROOM);
    EXPECT_EQ(size, needed);
  }
}

}  // namespace
