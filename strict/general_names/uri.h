// URIs taken apart as RFC 3986 section 3 has them; nothing is decoded or normalised.
//
//   Uri uri;
//   if (Uri::Read("https://joe@www.example.org:8443/a?b#c", &uri, &refusal)) use(uri.host);
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_URI_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_URI_H_

#include <string_view>

#include "strict/der/refusal.h"
#include "strict/general_names/ip_address.h"

namespace Ortholan::strict {

struct Uri {
  // What stands in the place of the host.
  enum class HostKind : int32_t {
    kNone,     // no authority, or an empty host
    kName,     // a registered name, which need not be a host name: see CheckHost
    kAddress,  // IPv4, or IPv6 in brackets
    kOther,    // a literal in brackets of a later version, or with a zone
  };

  std::string_view scheme;    // before the first colon
  std::string_view userinfo;  // before "@"
  std::string_view host;      // as written, without brackets
  std::string_view port;      // digits behind the host's colon
  std::string_view rest;      // path, query and fragment
  HostKind host_kind = HostKind::kNone;
  bool has_authority = false;
  IpAddress address;  // where the host is one

  // Reads a URI, with a scheme, that is all of `text`. `*uri` changes only on success.
  static bool Read(std::string_view text, Uri* uri, Refusal* refusal);
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_URI_H_
