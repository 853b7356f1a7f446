#include "strict/extensions/resource_text.h"

#include <algorithm>

#include "strict/extensions/leaf_text.h"

namespace Ortholan::strict {
namespace {

struct FamilyName {
  uint8_t number;  // of IANA's registry of address families, which has two octets
  std::string_view name;
  size_t octets;
};
constexpr FamilyName kFamilies[] = {{1, "IPv4", kIPv4Octets}, {2, "IPv6", kIPv6Octets}};
constexpr std::string_view kSubsequent = " SAFI ";

const FamilyName* FindFamily(ByteView family) {
  const bool is_sized = family.size == 2 || family.size == 3;
  for (const FamilyName& each : kFamilies) {
    if (is_sized && family[0] == 0 && family[1] == each.number) return &each;
  }
  return nullptr;
}

size_t CountBits(ByteView content) { return (content.size - 1) * 8 - content[0]; }

// Ones where the octet number `index` of an address has some of its first `bits`.
uint8_t MaskAt(size_t index, size_t bits) {
  return static_cast<uint8_t>(0xFF00u >> std::min<size_t>(bits - std::min(bits, 8 * index), 8));
}

std::string BitStringOf(ByteView address, size_t bits) {
  std::string content(1, static_cast<char>((8 - bits % 8) % 8));
  for (size_t i = 0; 8 * i < bits; ++i) {
    content += static_cast<char>(address[i] & MaskAt(i, bits));
  }
  return content;
}

// Bits in front of those that all are `fill`.
size_t CountToldBits(ByteView address, bool fill) {
  size_t bits = 8 * address.size;
  while (bits != 0 && (address[(bits - 1) / 8] >> (7 - (bits - 1) % 8) & 1) == (fill ? 1 : 0)) {
    --bits;
  }
  return bits;
}

bool PrefixOfText(std::string_view text, size_t size, std::string* content) {
  IpAddress range;
  size_t bits = 0;
  if (!ReadIpRange(text, &range) || range.size != 2 * size ||
      !IsPrefixMask(range.view().From(size), &bits)) {
    return false;
  }
  const ByteView address = range.view().First(size);
  if (CountToldBits(address, false) > bits) return false;
  *content = BitStringOf(address, bits);
  return true;
}

}  // namespace

bool PutFamilyText(ByteView family, Output* out) {
  const FamilyName* const found = FindFamily(family);
  if (found == nullptr) return false;
  out->Put(found->name);
  if (family.size == 3) {
    out->Put(kSubsequent);
    PutDecimal(family[2], out);
  }
  return true;
}

// Each text is what the octets of it are put as.
bool FamilyOfText(std::string_view text, std::string* family) {
  for (const FamilyName& each : kFamilies) {
    for (int subsequent = -1; subsequent <= UINT8_MAX; ++subsequent) {
      std::string octets = {'\0', static_cast<char>(each.number)};
      if (subsequent >= 0) octets += static_cast<char>(subsequent);
      const ByteView view = AsBytes(octets.data(), octets.size());
      if (TextOf([view](Output* out) { PutFamilyText(view, out); }) != text) continue;
      *family = octets;
      return true;
    }
  }
  return false;
}

size_t AddressSizeOf(ByteView family) {
  const FamilyName* const found = FindFamily(family);
  return found != nullptr ? found->octets : 0;
}

bool ExpandAddress(ByteView family, ByteView content, bool fill, IpAddress* address) {
  const size_t size = AddressSizeOf(family);
  const size_t bits = CountBits(content);
  if (size == 0 || bits > 8 * size) return false;
  for (size_t i = 0; i < size; ++i) {
    const uint8_t mask = MaskAt(i, bits);
    const unsigned told = i + 1 < content.size ? content[i + 1] & mask : 0u;
    address->octets[i] = static_cast<uint8_t>(told | (fill ? 0xFFu ^ mask : 0u));
  }
  address->size = size;
  return true;
}

bool PutAddressText(uint32_t role, ByteView family, ByteView content, Output* out) {
  IpAddress address;
  if (!ExpandAddress(family, content, role == kLastAddress, &address)) return false;
  if (role == kAddressPrefix) {
    for (size_t i = 0; i < address.size; ++i) {
      address.octets[address.size + i] = MaskAt(i, CountBits(content));
    }
    address.size *= 2;
  }
  return PutIpName(address.view(), out);
}

bool AddressOfText(uint32_t role, ByteView family, std::string_view text, std::string* content) {
  const size_t size = AddressSizeOf(family);
  if (role == kAddressPrefix) return PrefixOfText(text, size, content);
  IpAddress address;
  if (!ReadIpAddress(text, &address) || address.size != size) return false;
  const bool fill = role == kLastAddress;
  *content = BitStringOf(address.view(), CountToldBits(address.view(), fill));
  return true;
}

bool AddressComesBack(uint32_t role, ByteView family, ByteView content) {
  const bool fill = role == kLastAddress;
  IpAddress address;
  return ExpandAddress(family, content, fill, &address) &&
         (role == kAddressPrefix || CountToldBits(address.view(), fill) == CountBits(content));
}

}  // namespace Ortholan::strict
