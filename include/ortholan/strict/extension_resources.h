// Extensions that delegate addresses and autonomous systems (RFC 3779), taken apart as those of
// <ortholan/strict/extension_values.h> are.
//
//   ortholan_list families;
//   ortholan_address_family family;
//   ortholan_address_range range;
//   ortholan_address_families_read(extension.value, ORTHOLAN_READ_DER, &families, &refusal);
//   for (size_t at = 0; ortholan_address_family_next(&families, &at, &family) == 0;) {
//     for (size_t in = 0; ortholan_address_range_next(&family.ranges, &in, &range) == 0;) {
//       ortholan_address_range_ends(family.family, &range, first, last, &size);
//     }
//   }
#ifndef ORTHOLAN_STRICT_EXTENSION_RESOURCES_H_
#define ORTHOLAN_STRICT_EXTENSION_RESOURCES_H_

#include <ortholan/strict/extension_values.h>

#ifdef __cplusplus
extern "C" {
#endif

// Addresses of one family (RFC 3779 2.2.3.2).
typedef struct ortholan_address_family {
  ortholan_octets family;  // 00 01 is IPv4, 00 02 IPv6; a third octet tells what they are for
  ortholan_list ranges;    // not there where they are inherited
  int32_t is_inherited;    // 1 where they are those of the issuer
} ortholan_address_family;
// A prefix, or a range. Each has the content of its BIT STRING: the number of unused bits, and the
// bits; of a first address without zeros behind, of a last one without ones.
typedef struct ortholan_address_range {
  ortholan_octets prefix;  // this, or the two others
  ortholan_octets first;
  ortholan_octets last;
} ortholan_address_range;
// Reads ipAddrBlocks.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_families_read(ortholan_octets value, int32_t mode,
                                                               ortholan_list* families,
                                                               ortholan_refusal* refusal);
// The next family.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_family_next(const ortholan_list* families,
                                                             size_t* offset,
                                                             ortholan_address_family* family);
// The next prefix or range.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_range_next(const ortholan_list* ranges,
                                                            size_t* offset,
                                                            ortholan_address_range* range);
// The whole addresses that a prefix or a range begins and ends with.
//   first, last  room for 16 octets each
//   size         octets of each: 4 or 16
// Refuses ADDRESS_SIZE for a family that is not known and for more bits than it has.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_range_ends(ortholan_octets family,
                                                            const ortholan_address_range* range,
                                                            uint8_t* first, uint8_t* last,
                                                            size_t* size);

// Numbers of one kind (RFC 3779 3.2.3.2).
typedef struct ortholan_autonomous_system_list {
  ortholan_list systems;  // not there where they are inherited
  int32_t is_inherited;   // 1 where they are those of the issuer
} ortholan_autonomous_system_list;
// Both kinds, each of them optional: neither inherited nor systems where it is not there.
typedef struct ortholan_autonomous_systems {
  ortholan_autonomous_system_list numbers;
  ortholan_autonomous_system_list routing_domains;
} ortholan_autonomous_systems;
// One number, or a range.
typedef struct ortholan_autonomous_system {
  ortholan_integer first;
  ortholan_integer last;  // not there for one number
} ortholan_autonomous_system;
// Reads autonomousSysIds.
ORTHOLAN_EXPORT ortholan_reason
ortholan_autonomous_systems_read(ortholan_octets value, int32_t mode,
                                 ortholan_autonomous_systems* systems, ortholan_refusal* refusal);
// The next number or range.
ORTHOLAN_EXPORT ortholan_reason ortholan_autonomous_system_next(const ortholan_list* systems,
                                                                size_t* offset,
                                                                ortholan_autonomous_system* system);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSION_RESOURCES_H_
