#include "bench/extension_list.h"

#include <ortholan/strict.hpp>

namespace Bench {
namespace {

using ortholan::Octets;

// Two logs, signatures of 71 octets.
std::string TimestampsJson() {
  std::string json;
  for (const char* const log : {"A1", "B2"}) {
    std::string id, signature;
    for (size_t i = 0; i < 32; ++i) id += log;
    for (size_t i = 0; i < 71; ++i) signature += log;
    if (!json.empty()) json += ',';
    json += R"({"sctVersion":"v1","logID":")" + id +
            R"(","timestamp":"2026-11-21T22:05:00.123Z","extensions":"","hash":"sha256",)"
            R"("signature":"ecdsa","signatureValue":")" +
            signature + "\"}";
  }
  return '[' + json + ']';
}

template <class Value,
          ortholan_reason (*kRead)(ortholan_octets, int32_t, Value*, ortholan_refusal*)>
bool Read(Octets value) {
  Value read;
  return kRead(value, ORTHOLAN_READ_DER, &read, nullptr) == ORTHOLAN_REASON_NONE;
}

struct Reader {
  std::string oid;  // content octets
  bool (*read)(Octets value);
};

const Reader* FindReader(Octets oid) {
  static const Reader kReaders[] = {
      {"\x55\x1D\x0F", Read<ortholan_bits, ortholan_bits_read>},
      {"\x55\x1D\x25", Read<ortholan_list, ortholan_oids_read>},
      {"\x55\x1D\x13", Read<ortholan_basic_constraints, ortholan_basic_constraints_read>},
      {"\x55\x1D\x0E", Read<ortholan_octets, ortholan_octet_string_read>},
      {"\x55\x1D\x23",
       Read<ortholan_authority_key_identifier, ortholan_authority_key_identifier_read>},
      {"\x2B\x06\x01\x05\x05\x07\x01\x01", Read<ortholan_list, ortholan_information_access_read>},
      {"\x55\x1D\x11", Read<ortholan_general_names_view, ortholan_general_names_view_read>},
      {"\x55\x1D\x20", Read<ortholan_list, ortholan_policies_read>},
      {"\x55\x1D\x1F", Read<ortholan_list, ortholan_distribution_points_read>},
      {"\x2B\x06\x01\x04\x01\xD6\x79\x02\x04\x02",
       Read<ortholan_list, ortholan_signed_timestamps_read>},
  };
  // The last octets are all different.
  for (const Reader& reader : kReaders) {
    if (reader.oid.back() != static_cast<char>(oid[oid.size() - 1])) continue;
    return Octets(reader.oid) == oid ? &reader : nullptr;
  }
  return nullptr;
}

}  // namespace

std::string TlsExtensions() {
  const std::string json = R"([
    {"name":"keyUsage","critical":true,"value":["digitalSignature"]},
    {"name":"extKeyUsage","value":["serverAuth","clientAuth"]},
    {"name":"basicConstraints","critical":true,"value":{}},
    {"name":"subjectKeyIdentifier","value":"000102030405060708090A0B0C0D0E0F10111213"},
    {"name":"authorityKeyIdentifier",
     "value":{"keyIdentifier":"000102030405060708090A0B0C0D0E0F10111213"}},
    {"name":"authorityInfoAccess","value":[
      {"accessMethod":"ocsp","accessLocation":{"kind":"URI","text":"http://ocsp.example.org"}},
      {"accessMethod":"caIssuers",
       "accessLocation":{"kind":"URI","text":"http://ca.example.org/ca.cer"}}]},
    {"name":"subjectAltName","value":[
      {"kind":"DNS","text":"example.org"},{"kind":"DNS","text":"www.example.org"}]},
    {"name":"certificatePolicies","value":[{"policyIdentifier":"domainValidated"}]},
    {"name":"cRLDistributionPoints","value":[
      {"distributionPoint":{"fullName":[{"kind":"URI","text":"http://ca.example.org/ca.crl"}]}}]},
    {"name":"signedCertificateTimestampList","value":)" +
                           TimestampsJson() + "}]";
  const auto der = ortholan::ExtensionsFromJson(json).value();
  return {der.begin(), der.end()};
}

size_t ReadExtensions(const std::string& list) {
  ortholan_certificate_view view;
  const Octets der(list);
  if (ortholan_extensions_view_read(der, ORTHOLAN_READ_DER, &view, nullptr) != 0) return 0;
  size_t count = 0;
  ortholan_extension_view extension;
  for (size_t at = 0; ortholan_certificate_view_next_extension(&view, &at, &extension) == 0;) {
    const Reader* const reader = FindReader(extension.oid);
    if (reader != nullptr && reader->read(extension.value)) ++count;
  }
  return count;
}

}  // namespace Bench
