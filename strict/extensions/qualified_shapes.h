// Shapes of statements about qualified certificates (RFC 3739, ETSI EN 319 412-5, TS 119 495) and
// of the identifier of an organization (CA/Browser Forum, EV guidelines).
#ifndef ORTHOLAN_STRICT_EXTENSIONS_QUALIFIED_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_QUALIFIED_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kQualifiedStatementsShape;
extern const Shape kOrganizationIdentifierShape;

// Parts of these.
extern const Shape kStatementShape;
extern const Shape kSemanticsShape;
extern const Shape kValueShape;
extern const Shape kPlaceShape;
extern const Shape kPlacesShape;
extern const Shape kCountriesShape;
extern const Shape kRoleShape;
extern const Shape kPaymentShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_QUALIFIED_SHAPES_H_
