#include "strict/extensions/windows_shapes.h"

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// 1.3.6.1.4.1.311.21.7
static constexpr Field kTemplateFields[] = {
    {"templateID", "template", &kOidShape},
    {"templateMajorVersion", "major version", &kNumberShape, Presence::kOptional},
    {"templateMinorVersion", "minor version", &kNumberShape, Presence::kOptional},
};
const Shape kTemplateShape = Sequence(kTemplateFields);

// 1.3.6.1.4.1.311.25.2: an other name whose value is the text of a security identifier.
static constexpr Shape kSidShape = AsciiIn(kOctetString);
static constexpr OpenType kSidTypes[] = {{"1.3.6.1.4.1.311.25.2.1", &kSidShape}};
static constexpr Shape kSidValueShape = Open(kSidTypes);
static constexpr Field kSidFields[] = {
    {"type-id", "", &kOidShape},
    {"value", "value", &kSidValueShape, Presence::kRequired, Tagging::kExplicit, 0},
};
static constexpr Shape kSidNameShape = Sequence(kSidFields, "name");
static constexpr Field kSidNameFields[] = {
    {"otherName", "name", &kSidNameShape, Presence::kRequired, Tagging::kImplicit, 0},
};
const Shape kSecurityIdentifierShape = Sequence(kSidNameFields);

// 1.3.6.1.4.1.311.21.4: a Time of X.509.
static constexpr Shape kUtcTimeShape = {ShapeKind::kUtcTime};
static constexpr Field kTimeFields[] = {
    {"utcTime", "time", &kUtcTimeShape},
    {"generalTime", "time", &kTimeShape},
};
const Shape kNextPublishShape = Choice(kTimeFields);

}  // namespace Ortholan::strict
