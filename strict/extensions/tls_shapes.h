// Shapes of the extensions that TLS asks for: features (RFC 7633), timestamps of logs (RFC 6962).
#ifndef ORTHOLAN_STRICT_EXTENSIONS_TLS_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_TLS_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kTlsFeaturesShape;
extern const Shape kTimestampsShape;

// Parts of these.
extern const Shape kTimestampShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_TLS_SHAPES_H_
