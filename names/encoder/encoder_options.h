// The bits of the encoder's option word that it acts on.
#ifndef ORTHOLAN_NAMES_ENCODER_ENCODER_OPTIONS_H_
#define ORTHOLAN_NAMES_ENCODER_ENCODER_OPTIONS_H_

#include <ortholan/platform.h>

namespace Ortholan {

constexpr DWORD kOptionCommaOnly = 0x04000000;
constexpr DWORD kOptionSemicolonOnly = 0x40000000;
constexpr DWORD kOptionCrLfOnly = 0x08000000;
constexpr DWORD kOptionUtf8 = 0x00040000;
// With kOptionUtf8: every value of a free-text attribute as UTF8String.
constexpr DWORD kOptionAlways = 0x00100000;
constexpr DWORD kOptionAlwaysUtf8 = kOptionUtf8 | kOptionAlways;

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_ENCODER_OPTIONS_H_
