// Hosts that are presented and asked for, each with each, and what the library says of them: to be
// asked of other libraries too.
#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_HOST_PAIRS_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_HOST_PAIRS_H_

#include <ortholan/strict.hpp>
#include <string>

#include "tests/differential/differences.h"
#include "tests/support/certificates.h"

namespace Ortholan::testing {

struct HostPair {
  std::string presented;
  std::string asked;
  ortholan_reason refused = ORTHOLAN_REASON_NONE;  // why the question cannot be asked
  ortholan_reason reason = ORTHOLAN_REASON_NONE;   // why the name is another one

  bool Matches() const { return refused == ORTHOLAN_REASON_NONE && reason == ORTHOLAN_REASON_NONE; }
  bool PresentsNoHost() const {
    return reason == ORTHOLAN_REASON_HOST_HYPHEN || reason == ORTHOLAN_REASON_HOST_TRAILING_DOT;
  }
};

inline void AskUs(const std::string& certificate, HostPair* pair) {
  const auto identity = ortholan::Identify(certificate, ortholan::Reference::Host(pair->asked));
  if (!identity) {
    pair->refused = identity.refusal().reason;
  } else if (!identity->matches()) {
    pair->reason = identity->Mismatches().at(0).reason;
  }
}

// Compares the library with another: `ask` takes a certificate and the host that is asked for.
template <size_t M, size_t N, class Ask>
void CompareHosts(const Rule<HostPair> (&same_here_alone)[M],
                  const Rule<HostPair> (&same_there_alone)[N], Ask ask) {
  const std::string fronts[] = {"",     "*.",   "w*.", "*w.", "*.*.", "xn--w*.", "www.",
                                "WWW.", "a.*.", "-a.", "_a.", "a..",  "a.www.",  "xn--w-1ga."};
  const std::string ends[] = {"example.org",  "Example.ORG", "example.org.",
                              "org",          "192.0.2.1",   "xn--bcher-kva.example",
                              "exa mple.org", "2001:db8::1"};
  Differences<HostPair> here(same_here_alone);
  Differences<HostPair> there(same_there_alone);
  size_t alike[2] = {};
  const auto compare = [&](const std::string& presented, const std::string& asked) {
    const std::string certificate = CertificateWithNames(Tlv(0x30, Tlv(0x82, presented)));
    HostPair pair = {presented, asked};
    AskUs(certificate, &pair);
    const bool theirs = ask(certificate, asked);
    if (theirs == pair.Matches()) {
      ++alike[theirs ? 1 : 0];
      return;
    }
    EXPECT_TRUE((theirs ? there : here).Explain(pair))
        << presented << " asked for " << asked << ": " << pair.refused << ", " << pair.reason;
  };
  for (const std::string& front : fronts) {
    for (const std::string& end : ends) {
      for (const std::string& asked_front : fronts) {
        for (const std::string& asked_end : ends) compare(front + end, asked_front + asked_end);
      }
    }
  }
  EXPECT_GT(alike[1], 50u);
  EXPECT_GT(alike[0], 5000u);
  here.ExpectEachApplied();
  there.ExpectEachApplied();
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_HOST_PAIRS_H_
