// The question whether a certificate is for a host, as every library is asked it: from the octets
// of the certificate, the host last among its alternative names.
#ifndef ORTHOLAN_BENCH_HOSTS_H_
#define ORTHOLAN_BENCH_HOSTS_H_

#include <cstddef>
#include <string>

#include "bench/measure.h"
#include "bench/names.h"
#include "tests/support/certificates.h"

namespace Bench {

inline std::string HostNumber(size_t number) {
  return "www" + std::to_string(number) + ".department.example.org";
}

// An X.509 certificate with an empty subject, a key of no octets and `count` alternative names.
inline std::string CertificateOfHosts(size_t count) {
  std::string names;
  for (size_t i = 0; i < count; ++i) names += Tlv(0x82, HostNumber(i));
  return Ortholan::testing::CertificateWithNames(Tlv(0x30, names));
}

// `is_for` takes the octets of a certificate and a host.
template <class IsFor>
void AddHosts(const char* work, const char* subject, size_t count, IsFor is_for) {
  const std::string certificate = CertificateOfHosts(count);
  const std::string host = HostNumber(count - 1);
  const std::string other = HostNumber(count);
  Add({work, subject, [=] { return is_for(certificate, host) && !is_for(certificate, other); }},
      [=] { return is_for(certificate, host); });
}
template <class IsFor>
void AddHosts(const char* subject, IsFor is_for) {
  AddHosts("host of a certificate for 10", subject, 10, is_for);
  AddHosts("host of a certificate for 10,000", subject, 10000, is_for);
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_HOSTS_H_
