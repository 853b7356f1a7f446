// Whether a certificate is for a host, asked of GnuTLS too.
#include <gnutls/x509.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/differential/posix/host_pairs.h"

namespace Ortholan::testing {
namespace {

bool AskGnutls(const std::string& certificate, const std::string& host) {
  gnutls_x509_crt_t read = nullptr;
  EXPECT_EQ(gnutls_x509_crt_init(&read), GNUTLS_E_SUCCESS);
  const std::unique_ptr<gnutls_x509_crt_int, decltype(&gnutls_x509_crt_deinit)> owner(
      read, gnutls_x509_crt_deinit);
  std::string copy = certificate;
  const gnutls_datum_t der = {reinterpret_cast<unsigned char*>(copy.data()),
                              static_cast<unsigned>(copy.size())};
  EXPECT_EQ(gnutls_x509_crt_import(read, &der, GNUTLS_X509_FMT_DER), GNUTLS_E_SUCCESS);
  return gnutls_x509_crt_check_hostname2(read, host.c_str(),
                                         GNUTLS_VERIFY_DO_NOT_ALLOW_IP_MATCHES) != 0;
}

const Rule<HostPair> kSameHereAloneForGnutls[] = {
    {"dot at the end of what is asked for", "an absolute host name, RFC 1034 3.1",
     [](const HostPair& pair) { return pair.asked.back() == '.'; }},
};

const Rule<HostPair> kSameThereAloneForGnutls[] = {
    {"no host is asked for", "RFC 1034 3.5, RFC 9525 6.4",
     [](const HostPair& pair) { return pair.refused != ORTHOLAN_REASON_NONE; }},
    {"wildcard for a part of a label", "only a whole label, RFC 9525 6.3",
     [](const HostPair& pair) { return pair.reason == ORTHOLAN_REASON_HOST_WILDCARD; }},
    {"no host is presented", "preferred name syntax, RFC 5280 4.2.1.6 and RFC 1034 3.5",
     [](const HostPair& pair) { return pair.PresentsNoHost(); }},
};

TEST(HostsBesideGnutls, DifferByRule) {
  CompareHosts(kSameHereAloneForGnutls, kSameThereAloneForGnutls, AskGnutls);
}

}  // namespace
}  // namespace Ortholan::testing
