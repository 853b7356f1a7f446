#include "bench/chains.h"

#include "bench/names.h"

namespace Bench {
namespace {

constexpr unsigned kSequence = 0x30;

std::string AlgorithmDer() { return Tlv(kSequence, OidElement("1.3.101.112")); }

std::string BitString(size_t octets) { return Tlv(0x03, '\0' + std::string(octets, '\x66')); }

std::string HostsDer(const std::vector<std::string>& hosts) {
  std::string names;
  for (const std::string& host : hosts) names += Tlv(0x82, host);
  return Tlv(kSequence, names);
}

// A list of GeneralSubtree; no octets where there is none.
std::string SubtreesDer(unsigned tag, const std::vector<std::string>& hosts) {
  std::string subtrees;
  for (const std::string& host : hosts) subtrees += Tlv(kSequence, Tlv(0x82, host));
  return subtrees.empty() ? std::string() : Tlv(tag, subtrees);
}

std::string CertificateDer(const std::string& subject, const char* extension,
                           const std::string& value) {
  const std::string issuer = ToDer(SixAttributes());
  const std::string extensions =
      Tlv(kSequence, Tlv(kSequence, OidElement(extension) + Tlv(0x04, value)));
  const std::string body =
      Tlv(0xA0, Tlv(0x02, "\x02")) + Tlv(0x02, "\x01") + AlgorithmDer() + issuer +
      Tlv(kSequence, Tlv(0x17, "260101000000Z") + Tlv(0x17, "360101000000Z")) + subject +
      Tlv(kSequence, AlgorithmDer() + BitString(32)) + Tlv(0xA3, extensions);
  return Tlv(kSequence, Tlv(kSequence, body) + AlgorithmDer() + BitString(64));
}

Chain UsualChainWith(const char* last) {
  return MakeChain(
      {"example.org", "www.example.org", "mail.example.org", "example.com", "www.example.com",
       "shop.example.com", "example.net", "www.example.net", "a.b.example.net", last},
      {"example.org", "example.com", "example.net"},
      {"private.example.org", "private.example.com"});
}

}  // namespace

Chain MakeChain(const std::vector<std::string>& hosts, const std::vector<std::string>& permitted,
                const std::vector<std::string>& excluded) {
  const std::string subtrees = SubtreesDer(0xA0, permitted) + SubtreesDer(0xA1, excluded);
  return {CertificateDer(ToDer(LargeValue(16)), "2.5.29.17", HostsDer(hosts)),
          CertificateDer(ToDer(SixAttributes()), "2.5.29.30", Tlv(kSequence, subtrees))};
}

Chain UsualChain() { return UsualChainWith("*.dev.example.com"); }

Chain UsualRefusedChain() { return UsualChainWith("www.private.example.com"); }

Chain LargeChain(size_t count) {
  std::vector<std::string> hosts;
  std::vector<std::string> permitted;
  for (size_t i = 0; i < count; ++i) {
    permitted.push_back("d" + std::to_string(i) + ".example.org");
    hosts.push_back("www." + permitted.back());
  }
  return MakeChain(hosts, permitted, {});
}

}  // namespace Bench
