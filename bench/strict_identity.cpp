// Whether a certificate is for a host, from its octets.
#include <ortholan/strict.hpp>
#include <string>

#include "bench/hosts.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Ortholan";

bool IsFor(const std::string& certificate, const std::string& host) {
  const auto identity = ortholan::Identify(certificate, ortholan::Reference::Host(host));
  return identity && identity->matches();
}

void AddCases() { AddHosts(kSubject, IsFor); }

const Registration registration(kSubject, "", AddCases);

}  // namespace
}  // namespace Bench
