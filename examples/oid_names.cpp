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
