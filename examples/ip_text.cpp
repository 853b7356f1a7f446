#include "examples/ip_text.h"

#include <cstddef>
#include <cstdio>

namespace Example {
namespace {

unsigned Octet(std::string_view octets, std::size_t place) {
  return static_cast<unsigned char>(octets[place]);
}

std::string Ip4Text(std::string_view octets) {
  std::string text;
  for (std::size_t i = 0; i < 4; ++i)
    text += (i == 0 ? "" : ".") + std::to_string(Octet(octets, i));
  return text;
}

// A run of groups that are zero.
struct Run {
  std::size_t start = 0;
  std::size_t size = 0;
};

unsigned Group(std::string_view octets, std::size_t place) {
  return Octet(octets, 2 * place) << 8 | Octet(octets, 2 * place + 1);
}

// The longest of at least two, the first of several (RFC 5952 4.2).
Run LongestRun(std::string_view octets, std::size_t groups) {
  Run longest{groups, 1};
  for (std::size_t i = 0; i < groups; ++i) {
    Run run{i, 0};
    while (i < groups && Group(octets, i) == 0) ++i, ++run.size;
    if (run.size > longest.size) longest = run;
  }
  return longest.size > 1 ? longest : Run{groups, 0};
}

std::string Ip6Text(std::string_view octets) {
  // RFC 5952 5: the prefix that tells an IPv4 address.
  const bool isMapped = octets.substr(0, 12) == std::string(10, '\0') + "\xFF\xFF";
  const std::size_t groups = isMapped ? 6 : 8;
  const Run run = LongestRun(octets, groups);
  std::string text;
  for (std::size_t i = 0; i < groups; ++i) {
    if (i == run.start) {
      text += "::";
      i += run.size - 1;
      continue;
    }
    char digits[8];
    std::snprintf(digits, sizeof digits, "%x", Group(octets, i));
    text += (text.empty() || text.back() == ':' ? "" : ":") + std::string(digits);
  }
  return isMapped ? text + ":" + Ip4Text(octets.substr(12)) : text;
}

// The number of leading ones, or -1 where a one stands behind a zero.
int PrefixLength(std::string_view mask) {
  int ones = 0;
  bool isEnded = false;
  for (std::size_t bit = 0; bit < mask.size() * 8; ++bit) {
    const bool isOne = (Octet(mask, bit / 8) >> (7 - bit % 8) & 1) != 0;
    if (isOne && isEnded) return -1;
    isEnded = !isOne;
    if (isOne) ++ones;
  }
  return ones;
}

}  // namespace

std::string IpText(std::string_view octets) {
  switch (octets.size()) {
    case 4:
      return Ip4Text(octets);
    case 16:
      return Ip6Text(octets);
    case 8:
    case 32: {
      const std::string_view mask = octets.substr(octets.size() / 2);
      const int length = PrefixLength(mask);
      return IpText(octets.substr(0, mask.size())) + "/" +
             (length >= 0 ? std::to_string(length) : IpText(mask));
    }
    default:
      return {};
  }
}

}  // namespace Example
