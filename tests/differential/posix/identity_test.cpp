// Whose certificate, asked of OpenSSL too. Where the answers differ, one of three rules says why.
#include <gtest/gtest.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <algorithm>
#include <memory>
#include <ortholan/strict.hpp>
#include <string>

#include "tests/differential/posix/host_pairs.h"
#include "tests/support/certificates.h"
#include "tests/support/vectors.h"

namespace Ortholan::testing {
namespace {

bool AskOpenSsl(const std::string& certificate, const std::string& kind, const std::string& text) {
  constexpr unsigned kFlags =
      X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS | X509_CHECK_FLAG_NEVER_CHECK_SUBJECT;
  const auto* position = reinterpret_cast<const unsigned char*>(certificate.data());
  const std::unique_ptr<X509, decltype(&X509_free)> read(
      d2i_X509(nullptr, &position, static_cast<long>(certificate.size())), X509_free);
  if (!read) return false;
  if (kind == "ip") return X509_check_ip_asc(read.get(), text.c_str(), kFlags) == 1;
  if (kind == "email") {
    return X509_check_email(read.get(), text.data(), text.size(), kFlags) == 1;
  }
  return X509_check_host(read.get(), text.data(), text.size(), kFlags, nullptr) == 1;
}

bool IsMalformed(const ortholan::Mismatch& mismatch) {
  return mismatch.reason >= ORTHOLAN_REASON_HOST_EMPTY &&
         mismatch.reason <= ORTHOLAN_REASON_MAILBOX_LITERAL;
}

// The rule that makes the answers differ; null where none does.
const char* RuleOf(const ortholan::Result<ortholan::Identity>& ours, const std::string& text) {
  // OpenSSL compares the text of such a question; ".example.org" asks it for any host below.
  if (!ours) return "no host name or mailbox is asked for (RFC 1034 3.5, RFC 5280 4.2.1.6)";
  if (ours->matches()) {
    return text.back() == '.' ? "an absolute host name is the same host (RFC 1034 3.1)" : nullptr;
  }
  const auto mismatches = ours->Mismatches();
  return std::any_of(mismatches.begin(), mismatches.end(), IsMalformed)
             ? "a malformed name is presented (RFC 5280 4.2.1.6, RFC 9525 6.3)"
             : nullptr;
}

TEST(IdentityBesideOpenSsl, DiffersByRule) {
  std::size_t same = 0;
  for (const VectorRow& row : ReadVectors("strict_identity_suites.tsv")) {
    const std::string& kind = row.text("kind");
    const std::string& names = row.text("names");
    if (kind == "uri" || names == "none" || names == "empty") continue;
    SCOPED_TRACE(row.where() + " " + row.text("reference"));
    const std::string& text = row.text("reference");
    const std::string certificate = CertificateWithNames(row.octets("names"));
    const auto ours =
        ortholan::Identify(certificate, kind == "ip"      ? ortholan::Reference::Address(text)
                                        : kind == "email" ? ortholan::Reference::Mailbox(text)
                                                          : ortholan::Reference::Host(text));
    const bool yes = ours && ours->matches();
    if (AskOpenSsl(certificate, kind, text) == yes) {
      ++same;
      continue;
    }
    EXPECT_NE(RuleOf(ours, text), nullptr);
  }
  EXPECT_GT(same, 400u);
}

const Rule<HostPair> kSameHereAloneForOpenssl[] = {
    {"dot at the end of what is asked for", "an absolute host name, RFC 1034 3.1",
     [](const HostPair& pair) { return pair.asked.back() == '.'; }},
    {"underscore below a wildcard",
     "* is any label, RFC 9525 6.3; OpenSSL wants letters and digits",
     [](const HostPair& pair) { return pair.presented[0] == '*' && pair.asked[0] == '_'; }},
};

const Rule<HostPair> kSameThereAloneForOpenssl[] = {
    {"no host is asked for", "RFC 1034 3.5, RFC 9525 6.4",
     [](const HostPair& pair) { return pair.refused != ORTHOLAN_REASON_NONE; }},
    {"no host is presented", "preferred name syntax, RFC 5280 4.2.1.6 and RFC 1034 3.5",
     [](const HostPair& pair) { return pair.PresentsNoHost(); }},
};

TEST(IdentityBesideOpenSsl, HostsDifferByRule) {
  CompareHosts(kSameHereAloneForOpenssl, kSameThereAloneForOpenssl,
               [](const std::string& certificate, const std::string& host) {
                 return AskOpenSsl(certificate, "host", host);
               });
}

}  // namespace
}  // namespace Ortholan::testing
