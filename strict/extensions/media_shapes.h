// Shapes of the extensions that point to media: logotypes, biometric information.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_MEDIA_SHAPES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_MEDIA_SHAPES_H_

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

extern const Shape kLogotypesShape;
extern const Shape kBiometricInformationShape;

// Parts of these.
extern const Shape kMediaHashShape;
extern const Shape kLogotypeShape;
extern const Shape kOtherLogotypeShape;
extern const Shape kLogotypeImageShape;
extern const Shape kLogotypeAudioShape;
extern const Shape kBiometricDataShape;

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_MEDIA_SHAPES_H_
