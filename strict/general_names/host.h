// Host names as names carry them (RFC 1034 3.5, RFC 5890): checked, compared without case, taken
// apart by labels. ASCII alone, without allocation.
//
//   if (!CheckHost("www.Example.org", kUnderscores, &refusal)) ...
//   IsWithinHost("www.Example.org", "example.org")   // true: the host itself or below it
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_HOST_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_HOST_H_

#include <ortholan/strict/general_names.h>

#include <cstdint>
#include <string_view>

#include "bytes/ignore_case.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

constexpr size_t kMaxHostOctets = 253;
constexpr size_t kMaxLabelOctets = 63;

// What a host name may have beyond letters, digits and inner hyphens.
enum HostChoice : uint32_t {
  kPlainHost = 0,
  kUnderscores = 1,  // anywhere in a label
  kTrailingDot = 2,  // one, behind the last label
  kEdgeHyphens = 4,  // labels that begin or end with a hyphen
};

// True for nearly every host name of letters, digits, inner hyphens and, where chosen, underscores;
// false tells nothing.
bool IsPlainlyHost(std::string_view host, uint32_t choices);
// CheckHost for any host, with a word about what is wrong.
bool CheckHostClosely(std::string_view host, uint32_t choices, Refusal* refusal);

// Whether `host` is a host name: labels of 1 to 63 octets, 253 in all without a dot at the end, the
// last label no number. Notes the first fault at its place.
inline bool CheckHost(std::string_view host, uint32_t choices, Refusal* refusal) {
  return IsPlainlyHost(host, choices) || CheckHostClosely(host, choices, refusal);
}
// The same for a presented name, which may be "*." and a host name of two labels or more.
bool CheckHostPattern(std::string_view pattern, uint32_t choices, Refusal* refusal);
// Why it is none; NONE for one that is.
ortholan_reason FaultOfHostPattern(std::string_view pattern, uint32_t choices);

// The host without one dot at its end.
constexpr std::string_view WithoutTrailingDot(std::string_view host) {
  if (!host.empty() && host.back() == '.') host.remove_suffix(1);
  return host;
}

// Whether `host` is `parent` or ends in "." and `parent`. Both are checked hosts without a dot at
// the end; an empty parent has every host below it.
inline bool IsWithinHost(std::string_view host, std::string_view parent) {
  if (parent.empty()) return true;
  if (host.size() < parent.size()) return false;
  const size_t front = host.size() - parent.size();
  return (front == 0 || host[front - 1] == '.') && SameWithoutCase(host.substr(front), parent);
}

// "*." in front of something; `*base` is what stands behind it.
inline bool TakeWildcard(std::string_view pattern, std::string_view* base) {
  if (pattern.size() < 2 || pattern[0] != '*' || pattern[1] != '.') return false;
  *base = pattern.substr(2);
  return true;
}

// What stands behind the first label and its dot; empty for a host of one label.
constexpr std::string_view BehindFirstLabel(std::string_view host) {
  const size_t dot = host.find('.');
  return dot == std::string_view::npos ? std::string_view() : host.substr(dot + 1);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_HOST_H_
