// Values of rarer extensions taken apart, by the octets of the vector rows.
#include <gtest/gtest.h>

#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

std::string DerOf(const std::string& label) {
  for (const VectorRow& row : ReadVectors("strict_extensions.tsv")) {
    if (row.text("label") == label) return row.octets("der");
  }
  ADD_FAILURE() << "no row " << label;
  return {};
}

std::vector<uint8_t> ValueFrom(const char* type, const char* json) {
  return ortholan::ExtensionFromJson(type, json).value();
}

std::string Dotted(ortholan::Octets oid) { return ortholan::OidToText(oid).value(); }

std::string AddressText(const std::vector<uint8_t>& octets) {
  std::string text;
  for (const uint8_t octet : octets) text += (text.empty() ? "" : ".") + std::to_string(octet);
  return text;
}

TEST(RareExtensions, HaveAddresses) {
  const std::string der = DerOf("ipAddrBlocks: prefixes and ranges");
  std::string seen;
  for (const auto& family : ortholan::ReadAddressFamilies(der).value()) {
    EXPECT_FALSE(family.is_inherited);
    for (const ortholan::AddressRange& range : family.ranges) {
      const auto ends = range.Ends(family.family).value();
      seen += range.is_prefix() ? "prefix " : "range ";
      if (ends.first.size() == 4) seen += AddressText(ends.first) + "-" + AddressText(ends.last);
      seen += ends.first.size() == 16 ? std::to_string(ends.last[3]) + "\n" : "\n";
      const uint8_t unknown[] = {0, 25};
      EXPECT_FALSE(range.Ends({unknown, 2}));
    }
  }
  EXPECT_EQ(seen,
            "prefix 10.0.0.0-10.255.255.255\nrange 192.0.2.0-192.0.2.130\n"
            "prefix 203.0.113.7-203.0.113.7\nprefix 184\nrange 191\n");
  const std::string inherited = DerOf("ipAddrBlocks: subsequent identifiers, inherited");
  std::string flags;
  for (const auto& family : ortholan::ReadAddressFamilies(inherited).value()) {
    flags += family.is_inherited ? "i" : std::to_string(family.ranges.size());
  }
  EXPECT_EQ(flags, "1ii1");
}

TEST(RareExtensions, HaveAutonomousSystems) {
  const std::string der = DerOf("autonomousSysIds: numbers and ranges");
  const auto systems = ortholan::AutonomousSystems::Read(der).value();
  std::string seen;
  for (const ortholan::AutonomousSystem& system : systems.numbers) {
    seen += std::to_string(system.first) + "-" + std::to_string(system.last) + " ";
  }
  EXPECT_EQ(seen, "64496-64496 64500-64511 4200000000-4294967295 ");
  EXPECT_TRUE(systems.inherits_routing_domains && !systems.inherits_numbers);
  EXPECT_TRUE(systems.routing_domains.empty());
}

TEST(RareExtensions, HaveLogotypes) {
  const std::string der = DerOf("logotype: all forms");
  const auto logotypes = ortholan::Logotypes::Read(der).value();
  ASSERT_EQ(logotypes.communities.size(), 1u);
  EXPECT_EQ((*logotypes.communities.begin()).reference_uris.at(0), "http://logo.example/ref");
  std::string seen;
  for (const ortholan::LogotypeImage& image : logotypes.issuer.images) {
    seen += image.file.media_type + " " + image.file.uris.at(1) +
            (image.is_colour ? " c " : " g ") +
            std::to_string(*image.file_size + *image.width * 100 + *image.height) + " " +
            std::to_string(image.bits.value_or(0)) + " " +
            std::to_string(image.table_size.value_or(0)) + image.language + "\n";
    EXPECT_EQ((*image.file.hashes.begin()).value.size(), 1u);
  }
  EXPECT_EQ(seen,
            "image/svg+xml http://b.example/2 g 10432 8 0en\n"
            "image/svg+xml http://b.example/2 c 102 0 256\n");
  const ortholan::LogotypeAudio audio = *logotypes.issuer.audio.begin();
  EXPECT_EQ(audio.file.media_type + audio.language, "audio/mpegfr");
  EXPECT_EQ(*audio.file_size + *audio.play_time + *audio.channels + *audio.sample_rate, 115602);
  EXPECT_TRUE(logotypes.subject.images.empty());
  EXPECT_EQ(Dotted((*logotypes.subject.reference_hashes.begin()).algorithm.oid),
            "2.16.840.1.101.3.4.2.1");
  const ortholan::OtherLogotype other = *logotypes.others.begin();
  EXPECT_EQ(Dotted(other.type), "1.3.6.1.5.5.7.20.3");
  EXPECT_EQ(other.logotype.reference_uris.size(), 1u);
  const std::string one = DerOf("logotype: one image");
  const ortholan::Logotype subject = ortholan::Logotypes::Read(one)->subject;
  EXPECT_EQ((*subject.images.begin()).width, std::nullopt);
}

TEST(RareExtensions, HaveBiometricData) {
  const std::string der = DerOf("biometricInfo: predefined, by identifier");
  std::string seen;
  for (const auto& data : ortholan::ReadBiometricInformation(der).value()) {
    seen += data.type ? std::to_string(*data.type) : Dotted(data.oid);
    seen += " " + Dotted(data.hash_algorithm.oid) + " " + std::to_string(data.hash.size()) + " " +
            data.uri + "\n";
  }
  EXPECT_EQ(seen,
            "0 2.16.840.1.101.3.4.2.3 2 http://bio.example/p\n"
            "1.2.3.4 2.16.840.1.101.3.4.2.3 1 \n");
}

TEST(RareExtensions, HaveThoseOfVendors) {
  const auto entrust =
      ValueFrom("entrustVersInfo", R"({"entrustVers":"V8.1","entrustInfoFlags":["webCategory"]})");
  EXPECT_EQ(ortholan::EntrustVersion::Read(entrust)->version, "V8.1");
  EXPECT_EQ(ortholan::EntrustVersion::Read(entrust)->flags, 16u);
  const std::string proxy = DerOf("proxyCertInfo: proxy");
  const auto information = ortholan::ProxyInformation::Read(proxy);
  EXPECT_EQ(information->path_length, 1);
  EXPECT_EQ(Dotted(information->language), "1.3.6.1.5.5.7.21.1");
  EXPECT_TRUE(information->policy.empty());
  const auto tools = ValueFrom("issuerSignTool", R"({"signTool":"a","cATool":"b","signToolCert":"c",
      "cAToolCert":"d"})");
  const auto tool = ortholan::IssuerSignTool::Read(tools);
  EXPECT_EQ(
      tool->tool + tool->authority_tool + tool->tool_certificate + tool->authority_tool_certificate,
      "abcd");
  const auto timestamp = ValueFrom("adobeTimestamp", R"({"version":1,
      "location":{"kind":"URI","text":"http://a.example/"},"requiresAuth":true})");
  const auto adobe = ortholan::AdobeTimestamp::Read(timestamp);
  EXPECT_EQ(ortholan::GeneralNameText(adobe->location), "URI:http://a.example/");
  EXPECT_TRUE(adobe->version == 1 && adobe->needs_authentication);
  EXPECT_EQ(
      ortholan::ReadAdobeArchive(ValueFrom("adobeArchiveRevInfo", R"({"version":1})")).value(), 1);
  const auto sid = ValueFrom("ntdsCASecurity",
                             R"({"otherName":{"type-id":"ntdsObjectSid","value":"S-1-5-21"}})");
  EXPECT_EQ(ortholan::ReadSecurityIdentifier(sid).value(), "S-1-5-21");
  const auto capabilities = ValueFrom("smimeCapabilities", R"([{"capabilityID":"1.2.3",
      "parameters":{"octets":"02020080"}}])");
  const ortholan::Capability capability = *ortholan::ReadCapabilities(capabilities)->begin();
  EXPECT_EQ(Dotted(capability.oid) + std::to_string(capability.parameters.size()), "1.2.34");
}

// The information of a statement by its number in the list.
ortholan::Octets InfoAt(const std::vector<uint8_t>& der, size_t index) {
  for (const ortholan::QcStatement& statement : ortholan::ReadQcStatements(der).value()) {
    if (index-- == 0) return statement.info;
  }
  return {};
}

TEST(RareExtensions, HaveWhatStatementsHold) {
  const auto der = ValueFrom("qcStatements", R"([
      {"statementId":"qcLimitValue",
       "statementInfo":{"currency":{"alphabetic":"EUR"},"amount":10,"exponent":3}},
      {"statementId":"qcPDS","statementInfo":[{"url":"https://a.example/","language":"en"}]},
      {"statementId":"qcCClegislation","statementInfo":["DE","FR"]},
      {"statementId":"qcsPkixQCSyntax-v2","statementInfo":{"semanticsIdentifier":"1.2.3",
       "nameRegistrationAuthorities":[{"kind":"DNS","text":"a.example"}]}},
      {"statementId":"psd2QcStatement","statementInfo":{"rolesOfPSP":[
       {"roleOfPspOid":"pspAi","roleOfPspName":"PSP_AI"}],"nCAName":"A","nCAId":"B"}}])");
  const auto limit = ortholan::QcLimit::Read(InfoAt(der, 0));
  EXPECT_EQ(limit->alphabetic + std::to_string(limit->amount * limit->exponent), "EUR30");
  EXPECT_EQ(limit->numeric, std::nullopt);
  const ortholan::QcPlace place = *ortholan::ReadQcPlaces(InfoAt(der, 1))->begin();
  EXPECT_EQ(place.url + place.language, "https://a.example/en");
  EXPECT_EQ(ortholan::ReadQcCountries(InfoAt(der, 2)).value(),
            (std::vector<std::string>{"DE", "FR"}));
  const auto semantics = ortholan::QcSemantics::Read(InfoAt(der, 3));
  EXPECT_EQ(Dotted(semantics->oid) + (*semantics->authorities.begin()).Text(),
            "1.2.3DNS:a.example");
  const auto payment = ortholan::Psd2Statement::Read(InfoAt(der, 4));
  EXPECT_EQ(payment->authority + payment->authority_identifier + (*payment->roles.begin()).name,
            "ABPSP_AI");
}

TEST(RareExtensions, HaveOnePart) {
  EXPECT_EQ(ortholan::ReadMoment(ValueFrom("invalidityDate", "\"1970-01-02T00:00:00Z\"")).value(),
            86400);
  EXPECT_EQ(ortholan::ReadString(ValueFrom("certificateTemplateName", "\"Ж\"")).value(), "Ж");
  EXPECT_EQ(ortholan::ReadIntegers(ValueFrom("tlsFeature", "[5,17]")).value(),
            (std::vector<int64_t>{5, 17}));
  const auto der = ValueFrom("subjectDirectoryAttributes", R"([{"type":"gender","values":[
      {"kind":"printableString","text":"F"},{"kind":"printableString","text":"M"}]}])");
  const ortholan::DirectoryAttribute attribute = *ortholan::ReadDirectoryAttributes(der)->begin();
  std::string values;
  for (const ortholan::Octets& value : attribute.values) values.append(value.begin(), value.end());
  EXPECT_EQ(Dotted(attribute.type) + values,
            "1.3.6.1.5.5.7.9.3\x13\x01"
            "F\x13\x01M");
}

}  // namespace
}  // namespace Ortholan::testing
