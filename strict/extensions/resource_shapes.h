// Shapes of the extensions that delegate addresses and autonomous systems (RFC 3779).
#ifndef ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kAddressBlocksShape;
extern const Shape kAutonomousSystemsShape;

// Parts of these.
extern const Shape kAddressFamilyShape;
extern const Shape kAddressRangeShape;
extern const Shape kAutonomousSystemShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_RESOURCE_SHAPES_H_
