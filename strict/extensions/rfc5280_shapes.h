// Shapes of the extensions of RFC 5280 4.2 and 5.2.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_RFC5280_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_RFC5280_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kAuthorityKeyIdentifierShape;
extern const Shape kKeyUsageShape;
extern const Shape kKeyUsagePeriodShape;
extern const Shape kPoliciesShape;
extern const Shape kPolicyMappingsShape;
extern const Shape kDirectoryAttributesShape;
extern const Shape kBasicConstraintsShape;
extern const Shape kNameConstraintsShape;
extern const Shape kPolicyConstraintsShape;
extern const Shape kDistributionPointsShape;
extern const Shape kInformationAccessShape;
extern const Shape kIssuingDistributionPointShape;
extern const Shape kReasonCodeShape;

// Parts of these.
extern const Shape kPolicyShape;
extern const Shape kQualifierShape;
extern const Shape kNoticeShape;
extern const Shape kMappingShape;
extern const Shape kAttributeShape;
extern const Shape kSubtreeShape;
extern const Shape kPointShape;
extern const Shape kAccessShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_RFC5280_SHAPES_H_
