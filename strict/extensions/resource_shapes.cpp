#include "strict/extensions/resource_shapes.h"

#include <ortholan/strict/extension_resources.h>

#include "strict/extensions/common_shapes.h"
#include "strict/extensions/resource_text.h"

namespace Ortholan::strict {
namespace {

constexpr Shape AddressOf(AddressRole role) {
  return {ShapeKind::kAddress, "", {}, {}, {}, {}, role};
}

}  // namespace

// 2.2.3.8, 2.2.3.9
static constexpr Shape kPrefixShape = AddressOf(kAddressPrefix);
static constexpr Shape kFirstShape = AddressOf(kFirstAddress);
static constexpr Shape kLastShape = AddressOf(kLastAddress);
static constexpr Field kEndsFields[] = {
    {"min", "first", &kFirstShape, offsetof(ortholan_address_range, first)},
    {"max", "last", &kLastShape, offsetof(ortholan_address_range, last)},
};
static constexpr Shape kEndsShape = Sequence(kEndsFields);
static constexpr Field kAddressRangeFields[] = {
    {"addressPrefix", "prefix", &kPrefixShape, offsetof(ortholan_address_range, prefix)},
    {"addressRange", "range", &kEndsShape, 0},
};
const Shape kAddressRangeShape = Choice(kAddressRangeFields);

// 2.2.3.2
static constexpr Shape kAddressRangesShape = SequenceOf(&kAddressRangeShape);
static constexpr Shape kInheritShape = {ShapeKind::kNull, "inherited"};
static constexpr Field kAddressChoiceFields[] = {
    {"inherit", "", &kInheritShape, offsetof(ortholan_address_family, is_inherited)},
    {"addressesOrRanges", "", &kAddressRangesShape, offsetof(ortholan_address_family, ranges)},
};
static constexpr Shape kAddressChoiceShape = Choice(kAddressChoiceFields);
static constexpr Shape kFamilyShape = {ShapeKind::kAddressFamily};
static constexpr Field kAddressFamilyFields[] = {
    {"addressFamily", "", &kFamilyShape, offsetof(ortholan_address_family, family)},
    {"ipAddressChoice", "", &kAddressChoiceShape, 0},
};
const Shape kAddressFamilyShape = Sequence(kAddressFamilyFields, "addresses");
const Shape kAddressBlocksShape = SequenceOf(&kAddressFamilyShape);

// 3.2.3.5; a number by itself is the first of its range, and none is the last.
static constexpr Field kNumbersFields[] = {
    {"min", "first", &kNumberShape, offsetof(ortholan_autonomous_system, first)},
    {"max", "last", &kNumberShape, offsetof(ortholan_autonomous_system, last)},
};
static constexpr Shape kNumberRangeShape = Sequence(kNumbersFields);
static constexpr Field kAutonomousSystemFields[] = {
    {"id", "number", &kNumberShape, offsetof(ortholan_autonomous_system, first)},
    {"range", "range", &kNumberRangeShape, 0},
};
const Shape kAutonomousSystemShape = Choice(kAutonomousSystemFields);

// 3.2.3.1, 3.2.3.2
static constexpr Shape kAutonomousSystemListShape = SequenceOf(&kAutonomousSystemShape);
static constexpr Field kSystemsChoiceFields[] = {
    {"inherit", "", &kInheritShape, offsetof(ortholan_autonomous_system_list, is_inherited)},
    {"asIdsOrRanges", "", &kAutonomousSystemListShape,
     offsetof(ortholan_autonomous_system_list, systems)},
};
static constexpr Shape kSystemsChoiceShape = Choice(kSystemsChoiceFields);
static constexpr Field kAutonomousSystemsFields[] = {
    {"asnum", "autonomous systems", &kSystemsChoiceShape,
     offsetof(ortholan_autonomous_systems, numbers), Presence::kOptional, Tagging::kExplicit, 0},
    {"rdi", "routing domains", &kSystemsChoiceShape,
     offsetof(ortholan_autonomous_systems, routing_domains), Presence::kOptional,
     Tagging::kExplicit, 1},
};
const Shape kAutonomousSystemsShape = Sequence(kAutonomousSystemsFields);

}  // namespace Ortholan::strict
