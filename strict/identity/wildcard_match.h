// Whether a DNS name, which may begin with a wildcard, is for a host (RFC 9525 6.3): "*." stands
// for one whole label in front, never for a part of one, for none or for several.
//
//   *.example.org      www.example.org     ORTHOLAN_REASON_NONE
//   *.example.org      a.b.example.org     ORTHOLAN_REASON_WILDCARD_LABELS
//   *.example.org      example.org         ORTHOLAN_REASON_WILDCARD_LABELS
//   w*.example.org     www.example.org     ORTHOLAN_REASON_OTHER_HOST
#ifndef ORTHOLAN_STRICT_IDENTITY_WILDCARD_MATCH_H_
#define ORTHOLAN_STRICT_IDENTITY_WILDCARD_MATCH_H_

#include "strict/general_names/host.h"
#include "strict/identity/reference.h"

namespace Ortholan::strict {

inline ortholan_reason CompareHostNames(std::string_view presented, const Reference& reference) {
  const std::string_view host = reference.parts.host;
  std::string_view base;
  if (!TakeWildcard(presented, &base)) {
    if (!SameWithoutCase(presented, host)) return ORTHOLAN_REASON_OTHER_HOST;
    if (reference.is_presentable) return ORTHOLAN_REASON_NONE;
  } else if (!SameWithoutCase(base, BehindFirstLabel(host))) {
    return !base.empty() && IsWithinHost(host, base) ? ORTHOLAN_REASON_WILDCARD_LABELS
                                                     : ORTHOLAN_REASON_OTHER_HOST;
  }
  return FaultOfHostPattern(presented, reference.host_choices);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_IDENTITY_WILDCARD_MATCH_H_
