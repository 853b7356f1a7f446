// The ten extensions of a usual certificate of a TLS server, which every library takes apart.
#ifndef ORTHOLAN_BENCH_EXTENSIONS_H_
#define ORTHOLAN_BENCH_EXTENSIONS_H_

#include <cstddef>
#include <ortholan/strict.hpp>
#include <string>

#include "bench/measure.h"

namespace Bench {

inline constexpr size_t kTlsExtensions = 10;

// Two logs, signatures of 71 octets.
inline std::string TimestampsJson() {
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

// The list, in DER.
inline std::string TlsExtensions() {
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

// `read_all` takes the list and tells how many extensions it took apart.
template <class ReadAll>
void AddExtensions(const char* subject, ReadAll read_all) {
  const std::string list = TlsExtensions();
  Add({"10 extensions of a TLS certificate", subject,
       [=] { return read_all(list) == kTlsExtensions; }},
      [=] { return read_all(list); });
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_EXTENSIONS_H_
