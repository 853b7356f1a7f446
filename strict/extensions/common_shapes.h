// Shapes that several extensions share.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_COMMON_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_COMMON_SHAPES_H_

#include "strict/der/string_value.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

constexpr Shape kFlagShape = {ShapeKind::kBoolean};
constexpr Shape kNumberShape = {ShapeKind::kInteger};
constexpr Shape kOctetsShape = {ShapeKind::kOctets};
constexpr Shape kNullShape = {ShapeKind::kNull};
constexpr Shape kOidShape = {ShapeKind::kOid};
constexpr Shape kOidsShape = SequenceOf(&kOidShape);
constexpr Shape kTimeShape = {ShapeKind::kTime};
constexpr Shape kNameShape = {ShapeKind::kGeneralName};
constexpr Shape kNamesShape = SequenceOf(&kNameShape);
constexpr Shape kIA5Shape = StringOf(1u << kIA5String);
constexpr Shape kUtf8Shape = StringOf(1u << kUtf8String);
constexpr Shape kPrintableShape = StringOf(1u << kPrintableString);
// DisplayText (RFC 5280 4.2.1.4).
constexpr Shape kDisplayTextShape =
    StringOf(1u << kIA5String | 1u << kVisibleString | 1u << kBmpString | 1u << kUtf8String);
// Strings that writers choose freely.
constexpr Shape kAnyStringShape = StringOf(kStrings);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_COMMON_SHAPES_H_
