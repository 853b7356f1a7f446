// Values from plain parts are those of the same JSON, whose octets other tests hold against
// OpenSSL's.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"

namespace Ortholan::testing {
namespace {

using ortholan::Octets;

ortholan_text Text(std::string_view text) { return ortholan::ToText(text); }

// What a builder writes as JSON, or its reason.
template <class Write>
std::string Built(const char* type, Write write) {
  std::vector<uint8_t> der;
  const ortholan_reason reason = ortholan::WithRoom(&der, write);
  if (reason != ORTHOLAN_REASON_NONE) return ReasonName(reason);
  return ortholan::ExtensionJson(ortholan::ExtensionOid(type).value(), der).value();
}

#define BUILT(type, function, ...)                                    \
  Built(type, [&](uint8_t* out, size_t room, size_t* size) {          \
    return ortholan_##function##_write(__VA_ARGS__, out, room, size); \
  })

TEST(ExtensionBuilders, WriteNumbersAndFlags) {
  EXPECT_EQ(BUILT("basicConstraints", basic_constraints, 1, 0),
            R"({"cA":true,"pathLenConstraint":0})");
  EXPECT_EQ(BUILT("basicConstraints", basic_constraints, 0, -1), R"({"cA":false})");
  EXPECT_EQ(BUILT("keyUsage", bits, ORTHOLAN_KEY_USAGE_CRL_SIGN), R"(["cRLSign"])");
  EXPECT_EQ(BUILT("inhibitAnyPolicy", integer, 200), "200");
  EXPECT_EQ(BUILT("cRLNumber", integer, INT64_MAX), "JSON_NUMBER");
  const uint16_t features[] = {5, 65535};
  EXPECT_EQ(BUILT("tlsFeature", tls_features, features, 2), R"(["status_request",65535])");
}

TEST(ExtensionBuilders, WriteIdentifiers) {
  const std::string oids[] = {"\x2A\x03\x04", "\x2B\x06\x01\x05\x05\x07\x03\x01", "\x80\x01"};
  const ortholan_octets list[] = {Octets(oids[0]), Octets(oids[1]), Octets(oids[2])};
  EXPECT_EQ(BUILT("extKeyUsage", oids, list, 2), R"(["1.2.3.4","serverAuth"])");
  EXPECT_EQ(BUILT("extKeyUsage", oids, list, 3), "OID");
  EXPECT_EQ(BUILT("extKeyUsage", oids, nullptr, 1), "ARGUMENT");
  EXPECT_EQ(BUILT("subjectKeyIdentifier", octet_string, list[0]), "\"2A0304\"");
  const ortholan_text issuer[] = {Text("dirName:O=Org")};
  EXPECT_EQ(
      BUILT("authorityKeyIdentifier", authority_key_identifier, list[0], issuer, 1, list[0]),
      R"({"keyIdentifier":"2A0304","authorityCertIssuer":[{"kind":"dirName","text":"O=Org"}],)"
      R"("authorityCertSerialNumber":2753284})");
  const ortholan_new_policy policies[] = {{list[0], {nullptr, 0}, {nullptr, 0}},
                                          {list[1], Text("http://a.example/"), Text("Ж")}};
  EXPECT_EQ(BUILT("certificatePolicies", policies, policies, 2),
            R"([{"policyIdentifier":"1.2.3.4"},{"policyIdentifier":"serverAuth",)"
            R"("policyQualifiers":[{"policyQualifierId":"cps","qualifier":"http://a.example/"},)"
            R"({"policyQualifierId":"userNotice","qualifier":{"explicitText":)"
            R"({"kind":"utf8String","text":"Ж"}}}]}])");
}

TEST(ExtensionBuilders, WriteNames) {
  const ortholan_text names[] = {Text("DNS:.example.org"), Text("IP:192.0.2.0/24"),
                                 Text("URI:http://a.example/a.crl"), Text("example.org")};
  EXPECT_EQ(BUILT("nameConstraints", name_subtrees, names, 1, names + 1, 1),
            R"({"permittedSubtrees":[{"base":{"kind":"DNS","text":".example.org"},"minimum":0}],)"
            R"("excludedSubtrees":[{"base":{"kind":"IP","text":"192.0.2.0/24"},"minimum":0}]})");
  const ortholan_new_distribution_point points[] = {
      {names + 2, 1, ORTHOLAN_CRL_SUPERSEDED, names + 2, 1}, {names, 1, 0, nullptr, 0}};
  EXPECT_EQ(
      BUILT("cRLDistributionPoints", distribution_points, points, 1),
      R"([{"distributionPoint":{"fullName":[{"kind":"URI","text":"http://a.example/a.crl"}]},)"
      R"("reasons":["superseded"],)"
      R"("cRLIssuer":[{"kind":"URI","text":"http://a.example/a.crl"}]}])");
  EXPECT_EQ(BUILT("cRLDistributionPoints", distribution_points, points, 2), "HOST_EMPTY_LABEL");
  const std::string ocsp = "\x2B\x06\x01\x05\x05\x07\x30\x01";
  const ortholan_new_access_description access[] = {{Octets(ocsp), names[2]},
                                                    {Octets(ocsp), names[3]}};
  EXPECT_EQ(BUILT("authorityInfoAccess", information_access, access, 1),
            R"([{"accessMethod":"ocsp",)"
            R"("accessLocation":{"kind":"URI","text":"http://a.example/a.crl"}}])");
  EXPECT_EQ(BUILT("authorityInfoAccess", information_access, access, 2), "NAME_KIND");
}

}  // namespace
}  // namespace Ortholan::testing
