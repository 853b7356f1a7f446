// Shapes of extensions of single vendors and smaller standards.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_VENDOR_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_VENDOR_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kNetscapeTypeShape;
extern const Shape kEntrustVersionShape;
extern const Shape kCapabilitiesShape;
extern const Shape kProxyInformationShape;
extern const Shape kIssuerSignToolShape;
extern const Shape kAdobeTimestampShape;
extern const Shape kAdobeArchiveShape;

// Parts of these.
extern const Shape kCapabilityShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_VENDOR_SHAPES_H_
