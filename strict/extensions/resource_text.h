// Addresses of RFC 3779 as text: families, prefixes, and the ends of ranges, whose bits that go
// without saying are left out of their octets.
//
//   PutAddressText(kAddressPrefix, {00 01}, {03 0A 60}, &out);     // 10.96.0.0/13
//   PutAddressText(kLastAddress, {00 01}, {04 0A 50}, &out);       // 10.95.255.255
#ifndef ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_TEXT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_TEXT_H_

#include <string>

#include "strict/der/output.h"
#include "strict/general_names/ip_address.h"

namespace Ortholan::strict {

// What the octets of a kAddress stand for, the number of its shape; `role` below.
enum AddressRole : uint32_t { kAddressPrefix, kFirstAddress, kLastAddress };

// Puts "IPv4" or "IPv6", with a subsequent identifier "IPv4 SAFI 1", for the octets of a family
// (RFC 3779 2.2.3.3); false for any other.
bool PutFamilyText(ByteView family, Output* out);
// The octets of such a text; false for any other text.
bool FamilyOfText(std::string_view text, std::string* family);

// Octets of an address of the family: 4 or 16; 0 for one that is not known.
size_t AddressSizeOf(ByteView family);

// The whole address that the content of a checked BIT STRING stands for, with bits of `fill` behind
// it. False where it has more bits than the family, or that is not known.
bool ExpandAddress(ByteView family, ByteView content, bool fill, IpAddress* address);

// Puts the content of a checked BIT STRING as text; false where it has none.
bool PutAddressText(uint32_t role, ByteView family, ByteView content, Output* out);
// The content of a BIT STRING in DER of such a text; false for any other text.
bool AddressOfText(uint32_t role, ByteView family, std::string_view text, std::string* content);
// Whether the text tells the content.
bool AddressComesBack(uint32_t role, ByteView family, ByteView content);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_TEXT_H_
