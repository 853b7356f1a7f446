#include "strict/extensions/windows_shapes.h"

#include <ortholan/strict/extension_values.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// 1.3.6.1.4.1.311.21.7
static constexpr Field kTemplateFields[] = {
    {"templateID", "template", &kOidShape, offsetof(ortholan_certificate_template, oid)},
    {"templateMajorVersion", "major version", &kNumberShape,
     offsetof(ortholan_certificate_template, major_version), Presence::kOptional},
    {"templateMinorVersion", "minor version", &kNumberShape,
     offsetof(ortholan_certificate_template, minor_version), Presence::kOptional},
};
const Shape kTemplateShape = Sequence(kTemplateFields);

// 1.3.6.1.4.1.311.25.2: an other name whose value is the text of a security identifier.
static constexpr Shape kSidShape = AsciiIn(kOctetString);
static constexpr Field kSidFields[] = {
    {"type-id", "", &kOidShape, offsetof(ortholan_security_name, type)},
    {"value", "value", &kSidShape, offsetof(ortholan_security_name, text), Presence::kRequired,
     Tagging::kExplicit, 0},
};
static constexpr Shape kSidNameShape = Sequence(kSidFields, "name");
static constexpr Field kSidNameFields[] = {
    {"otherName", "name", &kSidNameShape, offsetof(ortholan_security_identifier, name),
     Presence::kRequired, Tagging::kImplicit, 0},
};
const Shape kSecurityIdentifierShape = Sequence(kSidNameFields);

// 1.3.6.1.4.1.311.21.4: a Time of X.509.
static constexpr Shape kUtcTimeShape = {ShapeKind::kUtcTime};
static constexpr Field kTimeFields[] = {
    {"utcTime", "time", &kUtcTimeShape, kNoMember},
    {"generalTime", "time", &kTimeShape, kNoMember},
};
const Shape kNextPublishShape = Choice(kTimeFields);

}  // namespace Ortholan::strict
