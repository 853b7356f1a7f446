// IP addresses as people write them.
#ifndef ORTHOLAN_EXAMPLES_IP_TEXT_H_
#define ORTHOLAN_EXAMPLES_IP_TEXT_H_

#include <string>
#include <string_view>

namespace Example {

// 4 octets with dots, 16 as RFC 5952 has them; twice as many are an address and its mask, as
// "192.0.2.0/24" or with the mask in full. Empty for any other number of octets.
std::string IpText(std::string_view octets);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_IP_TEXT_H_
