// Addresses of the Internet as text and octets: IPv4 in dotted decimal, IPv6 by RFC 4291 2.2 read
// and by RFC 5952 written, and ranges with a mask, as name constraints have them (RFC 5280
// 4.2.1.10).
//
//   IpAddress address;
//   if (ReadIpAddress("2001:db8::1", &address)) use(address.view());
//   PutIpName(octets, &out);   // 192.0.2.1, 2001:db8::1, 192.0.2.0/24
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_IP_ADDRESS_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_IP_ADDRESS_H_

#include <string_view>

#include "bytes/byte_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

constexpr size_t kIPv4Octets = 4;
constexpr size_t kIPv6Octets = 16;

// Octets of an address, or of an address and a mask behind it.
struct IpAddress {
  uint8_t octets[2 * kIPv6Octets] = {};
  size_t size = 0;

  ByteView view() const { return {octets, size}; }
};

// Reads one address that is all of `text`: no zone, no blanks, no leading zeros in IPv4, no other
// number of parts than four.
bool ReadIpAddress(std::string_view text, IpAddress* address);

// Reads an address, "/" and a prefix's length in bits or a mask, as address and mask. Bits of the
// address outside the mask are kept.
bool ReadIpRange(std::string_view text, IpAddress* range);

constexpr bool IsIpAddressSize(size_t size) { return size == kIPv4Octets || size == kIPv6Octets; }
constexpr bool IsIpRangeSize(size_t size) {
  return size == 2 * kIPv4Octets || size == 2 * kIPv6Octets;
}

// Whether a mask is ones and then zeros; `*bits` is how many ones.
bool IsPrefixMask(ByteView mask, size_t* bits);

// Whether an address lies in a range of the same family: equal where the mask has ones.
bool IsInIpRange(ByteView address, ByteView range);

// Puts 4, 16, 8 or 32 octets as text: address, or range by CIDR, with the mask written out where it
// is no prefix's. False for any other size.
bool PutIpName(ByteView octets, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_IP_ADDRESS_H_
