// Values of extensions taken apart, and in plain words. Each is made from JSON, whose octets other
// tests hold against those of OpenSSL.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/strict/reasons.h"

namespace Ortholan::testing {
namespace {

using DerValue = std::vector<uint8_t>;

DerValue Made(const char* type, const char* json) {
  return ortholan::ExtensionFromJson(type, json).value();
}

std::string TextOf(ortholan::Octets oid) { return ortholan::OidToText(oid).value(); }
std::string TextOf(const ortholan::GeneralNames& names) {
  std::string text;
  for (const ortholan::GeneralName& name : names) text += name.Text() + ";";
  return text;
}

TEST(ExtensionValues, HaveNumbersAndFlags) {
  const DerValue authority = Made("basicConstraints", R"({"cA":true,"pathLenConstraint":300})");
  const auto constraints = ortholan::BasicConstraints::Read(authority);
  EXPECT_TRUE(constraints->is_authority);
  EXPECT_EQ(constraints->path_length, 300);
  EXPECT_EQ(ortholan::BasicConstraints::Read(Made("basicConstraints", "{}"))->path_length,
            std::nullopt);
  EXPECT_EQ(ortholan::ReadFlags(Made("keyUsage", R"(["keyCertSign","decipherOnly"])")).value(),
            uint32_t{ORTHOLAN_KEY_USAGE_KEY_CERT_SIGN | ORTHOLAN_KEY_USAGE_DECIPHER_ONLY});
  EXPECT_EQ(ortholan::ReadInteger(Made("reasonCode", "\"aACompromise\"")).value(), 10);
  EXPECT_EQ(ortholan::ReadInteger(Made("cRLNumber", "-32769")).value(), -32769);
  EXPECT_EQ(ortholan::ReadInteger(Made("cRLNumber", "\"7FFFFFFFFFFFFFFF\"")).value(), INT64_MAX);
  EXPECT_EQ(ortholan::ReadInteger(Made("cRLNumber", "\"FF0000000000000000\"")).value(), INT64_MIN);
  const DerValue period = Made("privateKeyUsagePeriod", R"({"notBefore":"1969-12-31T23:59:58Z"})");
  EXPECT_EQ(ortholan::KeyUsagePeriod::Read(period)->not_before, -2);
  EXPECT_EQ(ortholan::KeyUsagePeriod::Read(period)->not_after, std::nullopt);
}

TEST(ExtensionValues, HaveLists) {
  const DerValue der = Made("certificatePolicies", R"([{"policyIdentifier":"1.2.3"},
      {"policyIdentifier":"1.2.4","policyQualifiers":[
        {"policyQualifierId":"cps","qualifier":"http://a.example/"},
        {"policyQualifierId":"userNotice","qualifier":{
          "noticeRef":{"organization":{"kind":"bmpString","text":"Ж"},"noticeNumbers":[1,-5]},
          "explicitText":"text"}}]}])");
  std::string seen;
  for (const ortholan::Policy& policy : ortholan::ReadPolicies(der).value()) {
    seen += TextOf(policy.oid) + " ";
    for (const ortholan::PolicyQualifier& qualifier : policy.qualifiers) {
      const auto notice = ortholan::UserNotice::Read(qualifier.value);
      seen += notice ? notice->organization + notice->text + std::to_string(notice->numbers.at(1))
                     : ReasonName(notice.refusal().reason) + " ";
    }
  }
  EXPECT_EQ(seen, "1.2.3 1.2.4 IDENTIFIER Жtext-5");
}

TEST(ExtensionValues, HaveDistributionPoints) {
  const DerValue der = Made("cRLDistributionPoints", R"([
      {"distributionPoint":{"fullName":[{"kind":"URI","text":"http://a.example/"},
                                        {"kind":"DNS","text":"b"}]},"reasons":["aACompromise"]},
      {"distributionPoint":{"nameRelativeToCRLIssuer":"C=RU"},
       "cRLIssuer":[{"kind":"dirName","text":"O=Org"}]}, {}])");
  std::string seen;
  for (const auto& point : ortholan::ReadDistributionPoints(der).value()) {
    seen += TextOf(point.full_name) + std::to_string(point.relative_name.size()) + "|" +
            std::to_string(point.reasons.value_or(1)) + TextOf(point.crl_issuer) + "\n";
  }
  EXPECT_EQ(seen, "URI:http://a.example/;DNS:b;0|256\n11|1dirName:O=Org;\n0|1\n");
  const DerValue issuing = Made("issuingDistributionPoint", R"({"indirectCRL":true,
      "distributionPoint":{"fullName":[{"kind":"DNS","text":"a"}]},"onlySomeReasons":["unused"]})");
  const auto point = ortholan::IssuingDistributionPoint::Read(issuing);
  EXPECT_TRUE(point->is_indirect && !point->only_user_certificates &&
              !point->only_authority_certificates && !point->only_attribute_certificates);
  EXPECT_EQ(TextOf(point->full_name), "DNS:a;");
  EXPECT_EQ(point->only_some_reasons, 1u);
}

TEST(ExtensionValues, HaveTimestamps) {
  const std::string log(64, 'A');
  const DerValue der = Made("signedCertificateTimestampList",
                            (R"([{"octets":"0102"},{"sctVersion":"v1","logID":")" + log +
                             R"(","timestamp":"2000-02-29T12:00:00.001Z","extensions":"AB",)"
                             R"("hash":"sha256","signature":9,"signatureValue":"CDEF"}])")
                                .c_str());
  std::vector<ortholan::SignedTimestamp> seen;
  for (const auto& timestamp : ortholan::ReadSignedTimestamps(der).value()) {
    seen.push_back(timestamp);
  }
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_EQ(seen[0].version, 1u);
  EXPECT_EQ(seen[0].bytes.size(), 2u);
  EXPECT_EQ(seen[1].time, 951825600001u);
  EXPECT_EQ(seen[1].hash * 100 + seen[1].signature_algorithm, 409u);
  EXPECT_EQ(seen[1].log_id.size() * 100 + seen[1].extensions.size() * 10 + seen[1].signature.size(),
            3212u);
}

TEST(ExtensionValues, HaveNames) {
  const DerValue der = Made("authorityKeyIdentifier", R"({"keyIdentifier":"AB",
      "authorityCertIssuer":[{"kind":"DNS","text":"a"}],"authorityCertSerialNumber":258})");
  const auto identifier = ortholan::AuthorityKeyIdentifier::Read(der);
  EXPECT_EQ(identifier->key_identifier.size() + identifier->serial_number.size(), 3u);
  EXPECT_EQ(TextOf(identifier->issuer), "DNS:a;");
  const DerValue limits = Made("nameConstraints", R"({"excludedSubtrees":[
      {"base":{"kind":"DNS","text":".a"},"minimum":1,"maximum":2}]})");
  const auto subtrees = ortholan::NameSubtrees::Read(limits);
  EXPECT_TRUE(subtrees->permitted.empty());
  const ortholan::NameSubtree subtree = *subtrees->excluded.begin();
  EXPECT_EQ(ortholan::GeneralNameText(subtree.base), "DNS:.a");
  EXPECT_EQ(subtree.minimum * 10 + subtree.maximum.value_or(0), 12);
  const DerValue access = Made("authorityInfoAccess", R"([{"accessMethod":"ocsp",
      "accessLocation":{"kind":"URI","text":"http://a.example/"}}])");
  const auto description = *ortholan::ReadInformationAccess(access)->begin();
  EXPECT_EQ(TextOf(description.method) + ortholan::GeneralNameText(description.location),
            "1.3.6.1.5.5.7.48.1URI:http://a.example/");
}

// Values of open types are whole elements; what they hold is read by itself.
TEST(ExtensionValues, HaveStatements) {
  const DerValue der = Made("qcStatements", R"([{"statementId":"qcSSCD"},
      {"statementId":"qcLimitValue",
       "statementInfo":{"currency":{"numeric":978},"amount":10,"exponent":-3}}])");
  ortholan_list statements;
  ASSERT_EQ(ortholan_qc_statements_read(ortholan::Octets(der), 0, &statements, nullptr), 0);
  size_t offset = 0;
  ortholan_qc_statement statement;
  ASSERT_EQ(ortholan_qc_statement_next(&statements, &offset, &statement), 0);
  EXPECT_EQ(statement.info.data, nullptr);
  ASSERT_EQ(ortholan_qc_statement_next(&statements, &offset, &statement), 0);
  ortholan_qc_limit limit;
  ASSERT_EQ(ortholan_qc_limit_read(statement.info, 0, &limit, nullptr), 0);
  EXPECT_EQ(limit.currency.numeric.value + limit.amount.value * limit.exponent.value, 948);
  EXPECT_EQ(limit.currency.alphabetic.content.data, nullptr);
  EXPECT_EQ(ReasonName(ortholan_qc_statement_next(&statements, &offset, &statement)), "NOT_FOUND");
}

TEST(ExtensionText, IsPlainAndSafe) {
  const struct {
    const char* type;
    const char* json;
    const char* text;
  } kRows[] = {
      {"basicConstraints", "{}", "  certificate authority: no\n"},
      {"keyUsage", R"(["cRLSign",9])", "  cRLSign, 9\n"},
      {"keyUsage", "[]", "  none\n"},
      {"policyConstraints", "{}", "  none\n"},
      {"precertificatePoison", "null", "  present\n"},
      {"subjectAltName", "[]", "  none\n"},
      {"netscapeComment", R"("a\nb \\ \u001b[31m")", "  a\\0Ab \\\\ \\1B[31m\n"},
      {"certificateTemplateName", R"({"kind":"bmpString","text":"\u202ex"})", "  \\E2\\80\\AEx\n"},
      {"cRLNumber", R"("00FFFFFFFFFFFFFFFF")", "  #00FFFFFFFFFFFFFFFF\n"},
      {"1.2.3", R"({"octets":"0A"})", "  0A\n"},
      {"cRLDistributionPoints",
       R"([{"distributionPoint":{"fullName":[{"kind":"DNS","text":"a"}]},
            "reasons":["keyCompromise"]}])",
       "  distribution point:\n    full name:\n      DNS:a\n"
       "    reasons: keyCompromise\n"},
      {"certificatePolicies",
       R"([{"policyIdentifier":"anyPolicy",
            "policyQualifiers":[{"policyQualifierId":"cps","qualifier":"x"}]}])",
       "  policy: anyPolicy\n    qualifiers:\n      qualifier: cps\n        value: x\n"},
      {"ipAddrBlocks",
       R"([{"addressFamily":"IPv4 SAFI 1","ipAddressChoice":{"addressesOrRanges":[
            {"addressPrefix":"10.0.0.0/8"},
            {"addressRange":{"min":{"octets":"0305000B000000"},"max":"11.0.0.2"}}]}},
           {"addressFamily":"0019","ipAddressChoice":{"addressesOrRanges":[
            {"addressPrefix":{"octets":"03020780"}}]}},
           {"addressFamily":"IPv6","ipAddressChoice":{"inherit":null}}])",
       "  addresses: IPv4 SAFI 1\n    prefix: 10.0.0.0/8\n    range:\n      first: 11.0.0.0\n"
       "      last: 11.0.0.2\n  addresses: #0019\n    prefix: #0780\n"
       "  addresses: IPv6\n    inherited\n"},
      {"autonomousSysIds", R"({"rdi":{"inherit":null}})", "  routing domains: inherited\n"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.json);
    const DerValue oid = ortholan::ExtensionOid(row.type).value();
    const auto text =
        ortholan::ExtensionText(oid, Made(row.type, row.json), ortholan::Reading::kDer, 2);
    EXPECT_EQ(text.value(), row.text);
  }
}

}  // namespace
}  // namespace Ortholan::testing
