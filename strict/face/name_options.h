// The caller's options of names as text.
#ifndef ORTHOLAN_STRICT_FACE_NAME_OPTIONS_H_
#define ORTHOLAN_STRICT_FACE_NAME_OPTIONS_H_

#include <ortholan/strict/names.h>

#include "strict/names/text_options.h"

namespace Ortholan::strict {

// Why the options cannot be taken; NONE for good ones. NULL is the defaults.
ortholan_reason ReadOptions(const ortholan_rfc4514_options* given, TextOptions* options);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_FACE_NAME_OPTIONS_H_
