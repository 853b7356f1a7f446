// Whether an element without parts of a shape is what the shape asks for (X.690 8 and 11).
//
//   if (!CheckLeaf(shape, element, Leniency::kDer, &refusal)) return false;
#ifndef ORTHOLAN_STRICT_EXTENSIONS_LEAF_CHECK_H_
#define ORTHOLAN_STRICT_EXTENSIONS_LEAF_CHECK_H_

#include "strict/der/refusal.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Refuses the content at fault. The element's tag is in order.
bool CheckLeaf(const Shape& shape, const Element& element, Leniency leniency, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_LEAF_CHECK_H_
