// Shapes of the extensions of Windows' certificate services.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_WINDOWS_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_WINDOWS_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kTemplateShape;
extern const Shape kSecurityIdentifierShape;
extern const Shape kNextPublishShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_WINDOWS_SHAPES_H_
