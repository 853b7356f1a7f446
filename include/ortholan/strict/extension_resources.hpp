// Delegated addresses and autonomous systems (RFC 3779) in C++17.
//
//   for (const ortholan::AddressFamily& family : ortholan::ReadAddressFamilies(value).value()) {
//     for (const ortholan::AddressRange& range : family.ranges) {
//       const auto ends = range.Ends(family.family);
//     }
//   }
#ifndef ORTHOLAN_STRICT_EXTENSION_RESOURCES_HPP_
#define ORTHOLAN_STRICT_EXTENSION_RESOURCES_HPP_

#include <ortholan/strict/extension_resources.h>

#include <ortholan/strict/extension_values.hpp>

namespace ortholan {

// A prefix or a range as the extension has it.
class AddressRange {
 public:
  // Octets of the first and the last address, 4 or 16.
  struct Addresses {
    std::vector<uint8_t> first;
    std::vector<uint8_t> last;
  };

  explicit AddressRange(const ortholan_address_range& plain) : plain_(plain) {}

  bool is_prefix() const { return plain_.prefix.data != nullptr; }
  // Nothing for a family that is not known, and for more bits than it has.
  std::optional<Addresses> Ends(Octets family) const {
    uint8_t first[16], last[16];
    size_t size = 0;
    if (ortholan_address_range_ends(family, &plain_, first, last, &size) != ORTHOLAN_REASON_NONE) {
      return std::nullopt;
    }
    return Addresses{{first, first + size}, {last, last + size}};
  }

 private:
  ortholan_address_range plain_;
};
using AddressRanges = ValueList<AddressRange, ortholan_address_range, ortholan_address_range_next>;

struct AddressFamily {
  Octets family;  // 00 01 is IPv4, 00 02 IPv6; a third octet tells what they are for
  bool is_inherited = false;
  AddressRanges ranges;  // none where they are inherited

  explicit AddressFamily(const ortholan_address_family& plain)
      : family(plain.family), is_inherited(plain.is_inherited != 0), ranges(plain.ranges) {}
};
using AddressFamilies =
    ValueList<AddressFamily, ortholan_address_family, ortholan_address_family_next>;
// ipAddrBlocks.
inline Result<AddressFamilies> ReadAddressFamilies(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<AddressFamilies, ortholan_list>(value, reading,
                                                           ortholan_address_families_read);
}

// One number, which is the first and the last, or a range.
struct AutonomousSystem {
  int64_t first = 0;
  int64_t last = 0;

  explicit AutonomousSystem(const ortholan_autonomous_system& plain)
      : first(plain.first.value), last(detail::ToNumber(plain.last).value_or(first)) {}
};
using AutonomousSystemList =
    ValueList<AutonomousSystem, ortholan_autonomous_system, ortholan_autonomous_system_next>;

// autonomousSysIds: numbers, and routing domains; none where they are inherited or not there.
struct AutonomousSystems {
  bool inherits_numbers = false;
  AutonomousSystemList numbers;
  bool inherits_routing_domains = false;
  AutonomousSystemList routing_domains;

  explicit AutonomousSystems(const ortholan_autonomous_systems& plain)
      : inherits_numbers(plain.numbers.is_inherited != 0),
        numbers(plain.numbers.systems),
        inherits_routing_domains(plain.routing_domains.is_inherited != 0),
        routing_domains(plain.routing_domains.systems) {}
  static Result<AutonomousSystems> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<AutonomousSystems, ortholan_autonomous_systems>(
        value, reading, ortholan_autonomous_systems_read);
  }
};

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSION_RESOURCES_HPP_
