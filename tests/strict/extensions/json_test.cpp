// Values of extensions as JSON, both ways, and what is refused.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

using ortholan::ExtensionFromJson;
using ortholan::ExtensionJson;
using ortholan::ExtensionsFromJson;
using ortholan::ExtensionsJson;

std::string OctetsOf(const std::vector<uint8_t>& octets) { return {octets.begin(), octets.end()}; }

std::vector<uint8_t> OidOf(const std::string& text) { return ortholan::OidFromText(text).value(); }

template <class Value>
void ExpectRefused(const ortholan::Result<Value>& result, const VectorRow& row) {
  ASSERT_FALSE(result);
  EXPECT_EQ(ReasonName(result.refusal().reason), row.text("reason"));
  const size_t place = row.has("offset") ? row.number("offset") : ORTHOLAN_NO_PLACE;
  EXPECT_EQ(result.refusal().offset, place);
}

TEST(ExtensionJson, IsReadAndWritten) {
  for (const VectorRow& row : ReadVectors("strict_extensions.tsv")) {
    SCOPED_TRACE(row.where());
    const std::vector<uint8_t> oid = OidOf(row.text("oid"));
    const std::string der = row.octets("der");
    const auto json = ExtensionJson(oid, der);
    if (row.has("reason")) {
      ExpectRefused(json, row);
      EXPECT_EQ(ExtensionJson(oid, der, ortholan::Reading::kDer).has_value(),
                ortholan::ExtensionText(oid, der).has_value());
      continue;
    }
    ASSERT_TRUE(json) << json.refusal().Sentence();
    EXPECT_EQ(*json, row.text("json"));
    EXPECT_EQ(ExtensionJson(oid, der, ortholan::Reading::kLenient).value(), *json);
    const auto back = ExtensionFromJson(row.text("oid"), row.text("json"));
    ASSERT_TRUE(back) << back.refusal().Sentence();
    EXPECT_EQ(OctetsOf(*back), der);
  }
}

TEST(ExtensionJson, IsRefused) {
  for (const VectorRow& row : ReadVectors("strict_extension_json_errors.tsv")) {
    SCOPED_TRACE(row.where());
    ExpectRefused(row.has("type") ? ExtensionFromJson(row.text("type"), row.text("json"))
                                  : ExtensionsFromJson(row.text("json")),
                  row);
  }
}

// What may be written shorter than it is read.
TEST(ExtensionJson, HasShortForms) {
  const struct {
    const char* type;
    const char* written;
    const char* read;
  } kRows[] = {
      {"basicConstraints", " {\t}\r\n", R"({"cA":false})"},
      {"2.5.29.36", R"({"requireExplicitPolicy":-0})", R"({"requireExplicitPolicy":0})"},
      {"extKeyUsage", R"(["1.3.6.1.5.5.7.3.1"])", R"(["serverAuth"])"},
      {"keyUsage", R"([0,"digitalSignature",8])", R"(["digitalSignature","decipherOnly"])"},
      {"subjectKeyIdentifier", R"("\u0061B")", R"("AB")"},
      {"certificateTemplateName", R"("\ud83d\ude00")", R"({"kind":"utf8String","text":"😀"})"},
      {"subjectAltName", R"([{"octets":"8603676F76"}])",
       R"([{"kind":"URI","text":"gov","octets":"8603676F76"}])"},
      {"cRLDistributionPoints", R"([{"distributionPoint":{"nameRelativeToCRLIssuer":"C=RU"}}])",
       R"([{"distributionPoint":{"nameRelativeToCRLIssuer":{"text":"C=RU"}}}])"},
      {"subjectDirectoryAttributes",
       R"([{"type":"gender","values":[{"kind":"printableString","text":"M"},
                                      {"kind":"printableString","text":"F"}]}])",
       R"([{"type":"gender","values":[{"kind":"printableString","text":"F"},)"
       R"({"kind":"printableString","text":"M"}]}])"},
      {"basicConstraints", R"({"octets":"30030101FF"})", R"({"cA":true})"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.written);
    const auto der = ExtensionFromJson(row.type, row.written);
    ASSERT_TRUE(der) << der.refusal().Sentence();
    EXPECT_EQ(ExtensionJson(ortholan::ExtensionOid(row.type).value(), *der).value(), row.read);
  }
}

// DER of OpenSSL: openssl req -x509 -addext basicConstraints=critical,CA:TRUE -addext
// keyUsage=keyCertSign.
TEST(ExtensionJson, HasWholeLists) {
  const std::string kList(
      "\x30\x1E\x30\x0F\x06\x03\x55\x1D\x13\x01\x01\xFF\x04\x05\x30\x03\x01\x01\xFF"
      "\x30\x0B\x06\x03\x55\x1D\x0F\x04\x04\x03\x02\x02\x04",
      32);
  const std::string kJson =
      R"([{"oid":"2.5.29.19","name":"basicConstraints","critical":true,"value":{"cA":true}},)"
      R"({"oid":"2.5.29.15","name":"keyUsage","critical":false,"value":["keyCertSign"]}])";
  EXPECT_EQ(ExtensionsJson(kList).value(), kJson);
  EXPECT_EQ(OctetsOf(ExtensionsFromJson(kJson).value()), kList);
  const auto one =
      ExtensionsFromJson(R"({"name":"basicConstraints","critical":true,"value":{"cA":true}})");
  EXPECT_EQ(OctetsOf(one.value()), kList.substr(2, 17));
  // A value that is refused is never shown as read.
  std::string broken = kList;
  broken[18] = '\x01';
  EXPECT_EQ(ExtensionsJson(broken).value().find(
                R"([{"oid":"2.5.29.19","name":"basicConstraints","critical":true,)"
                R"("value":{"octets":"3003010101"},"refusal":{"reason":32,"offset":4,)"
                R"("sentence":"a BOOLEAN is neither 00 nor FF"}},)"),
            0u);
  EXPECT_EQ(ReasonName(ExtensionsJson(std::string("\x30\x00", 2)).refusal().reason), "TRUNCATED");
}

TEST(ExtensionRequests, AreWritten) {
  for (const VectorRow& row : ReadVectors("extension_requests.tsv")) {
    SCOPED_TRACE(row.where());
    const auto list = ExtensionsFromJson(row.text("json")).value();
    EXPECT_EQ(OctetsOf(ortholan::WriteExtensionRequest(list).value()), row.octets("der"));
    const auto refused = ortholan::WriteExtensionRequest({list.data(), list.size() - 1});
    EXPECT_EQ(ReasonName(refused.refusal().reason), "TRUNCATED");
  }
}

TEST(ExtensionTypes, AreFoundByNameAndIdentifier) {
  const std::vector<ortholan::ExtensionType> known = ortholan::KnownExtensions();
  EXPECT_GE(known.size(), 61u);
  for (const ortholan::ExtensionType& type : known) {
    SCOPED_TRACE(type.name);
    EXPECT_EQ(ortholan::Octets(ortholan::ExtensionOid(type.name).value()), type.oid);
    EXPECT_EQ(ortholan::FindExtensionType(type.oid)->title, type.title);
    EXPECT_EQ(ortholan_extension_name(type.oid), type.name);
  }
  EXPECT_FALSE(ortholan::FindExtensionType(OidOf("1.2.3")));
  EXPECT_EQ(ortholan_extension_name({nullptr, 0}), nullptr);
}

}  // namespace
}  // namespace Ortholan::testing
