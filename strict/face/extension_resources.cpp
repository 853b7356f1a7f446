// Addresses and autonomous systems as structures: one shape each.
#include <ortholan/strict/extension_resources.h>

#include "strict/der/bit_string.h"
#include "strict/extensions/resource_shapes.h"
#include "strict/extensions/resource_text.h"
#include "strict/face/value_call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

ortholan_reason ortholan_address_families_read(ortholan_octets value, int32_t mode,
                                               ortholan_list* families, ortholan_refusal* refusal) {
  return Read(kAddressBlocksShape, value, mode, families, refusal);
}

ortholan_reason ortholan_address_family_next(const ortholan_list* families, size_t* offset,
                                             ortholan_address_family* family) {
  return Next(kAddressFamilyShape, families, offset, family);
}

ortholan_reason ortholan_address_range_next(const ortholan_list* ranges, size_t* offset,
                                            ortholan_address_range* range) {
  return Next(kAddressRangeShape, ranges, offset, range);
}

ortholan_reason ortholan_address_range_ends(ortholan_octets family,
                                            const ortholan_address_range* range, uint8_t* first,
                                            uint8_t* last, size_t* size) {
  Clear(size, nullptr);
  if (range == nullptr || first == nullptr || last == nullptr || !IsGiven(family)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  const bool is_prefix = range->prefix.data != nullptr;
  const ByteView from = View(is_prefix ? range->prefix : range->first);
  const ByteView to = View(is_prefix ? range->prefix : range->last);
  IpAddress ends[2];
  if (!IsBitString(from) || !IsBitString(to)) return ORTHOLAN_REASON_ARGUMENT;
  if (!ExpandAddress(View(family), from, false, &ends[0]) ||
      !ExpandAddress(View(family), to, true, &ends[1])) {
    return ORTHOLAN_REASON_ADDRESS_SIZE;
  }
  std::memcpy(first, ends[0].octets, ends[0].size);
  std::memcpy(last, ends[1].octets, ends[1].size);
  if (size != nullptr) *size = ends[0].size;
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_autonomous_systems_read(ortholan_octets value, int32_t mode,
                                                 ortholan_autonomous_systems* systems,
                                                 ortholan_refusal* refusal) {
  return Read(kAutonomousSystemsShape, value, mode, systems, refusal);
}

ortholan_reason ortholan_autonomous_system_next(const ortholan_list* systems, size_t* offset,
                                                ortholan_autonomous_system* system) {
  return Next(kAutonomousSystemShape, systems, offset, system);
}
