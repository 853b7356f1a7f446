// General names and an extension record that every library is measured on.
#ifndef ORTHOLAN_BENCH_SAMPLES_H_
#define ORTHOLAN_BENCH_SAMPLES_H_

#include <string>

#include "bench/names.h"

namespace Bench {

inline constexpr char kDnsName[] = "www.department.example.org";
inline constexpr char kRegisteredOid[] = "1.2.840.113556.1.2.141";
inline constexpr char kExtensionOid[] = "2.5.29.19";

// [2] IMPLICIT IA5String
inline std::string DnsNameDer() { return Tlv(0x82, kDnsName); }

// [8] IMPLICIT OBJECT IDENTIFIER
inline std::string RegisteredIdDer() {
  std::string der = OidElement(kRegisteredOid);
  der[0] = '\x88';
  return der;
}

// The value of basicConstraints with cA and a path length of 0.
inline std::string ExtensionValue() {
  return Tlv(0x30, Tlv(0x01, "\xFF") + Tlv(0x02, std::string(1, '\0')));
}

// That extension, critical, as a record.
inline std::string ExtensionRecord() {
  return Tlv(0x30, OidElement(kExtensionOid) + Tlv(0x01, "\xFF") + Tlv(0x04, ExtensionValue()));
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_SAMPLES_H_
