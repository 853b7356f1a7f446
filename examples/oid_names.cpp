#include "examples/oid_names.h"

#include <algorithm>
#include <iterator>

namespace Example {
namespace {

struct OidRow {
  const char* oid;
  const char* name;
};
constexpr OidRow kNames[] = {
    // Purposes of keys (RFC 5280 4.2.1.12 and others).
    {"2.5.29.37.0", "anyExtendedKeyUsage"},
    {"1.3.6.1.5.5.7.3.1", "serverAuth"},
    {"1.3.6.1.5.5.7.3.2", "clientAuth"},
    {"1.3.6.1.5.5.7.3.3", "codeSigning"},
    {"1.3.6.1.5.5.7.3.4", "emailProtection"},
    {"1.3.6.1.5.5.7.3.8", "timeStamping"},
    {"1.3.6.1.5.5.7.3.9", "OCSPSigning"},
    {"1.3.6.1.5.5.7.3.17", "ipsecIKE"},
    {"1.3.6.1.5.5.7.3.21", "secureShellClient"},
    {"1.3.6.1.5.5.7.3.22", "secureShellServer"},
    {"1.3.6.1.5.5.7.3.36", "documentSigning"},
    {"1.3.6.1.5.2.3.4", "pkinitClientAuth"},
    {"1.3.6.1.5.2.3.5", "pkinitKdc"},
    {"1.3.6.1.4.1.311.10.3.4", "encryptedFileSystem"},
    {"1.3.6.1.4.1.311.10.3.12", "documentSigning"},
    {"1.3.6.1.4.1.311.20.2.1", "enrollmentAgent"},
    {"1.3.6.1.4.1.311.20.2.2", "smartcardLogon"},
    // Access methods (RFC 5280 4.2.2).
    {"1.3.6.1.5.5.7.48.1", "ocsp"},
    {"1.3.6.1.5.5.7.48.2", "caIssuers"},
    {"1.3.6.1.5.5.7.48.3", "timeStamping"},
    {"1.3.6.1.5.5.7.48.5", "caRepository"},
    // Policies and their qualifiers (RFC 5280 4.2.1.4).
    {"2.5.29.32.0", "anyPolicy"},
    {"2.23.140.1.1", "extendedValidation"},
    {"2.23.140.1.2.1", "domainValidated"},
    {"2.23.140.1.2.2", "organizationValidated"},
    {"2.23.140.1.2.3", "individualValidated"},
    {"1.3.6.1.5.5.7.2.1", "cps"},
    {"1.3.6.1.5.5.7.2.2", "userNotice"},
    // Other names.
    {"1.3.6.1.4.1.311.20.2.3", "userPrincipalName"},
    {"1.3.6.1.4.1.311.25.1", "ntdsReplication"},
    {"1.3.6.1.4.1.311.25.2", "ntdsSecurityIdentifier"},
    {"1.3.6.1.4.1.311.25.2.1", "ntdsObjectSid"},
    {"1.3.6.1.5.2.2", "krb5PrincipalName"},
    {"1.3.6.1.5.5.7.8.3", "permanentIdentifier"},
    {"1.3.6.1.5.5.7.8.4", "hardwareModuleName"},
    {"1.3.6.1.5.5.7.8.5", "xmppAddr"},
    {"1.3.6.1.5.5.7.8.7", "dnsSRV"},
    {"1.3.6.1.5.5.7.8.8", "naiRealm"},
    {"1.3.6.1.5.5.7.8.9", "smtpUTF8Mailbox"},
};

}  // namespace

std::string OidName(const std::string& oid) {
  const auto* const row = std::find_if(std::begin(kNames), std::end(kNames),
                                       [&oid](const OidRow& each) { return oid == each.oid; });
  return row != std::end(kNames) ? row->name : oid;
}

}  // namespace Example
