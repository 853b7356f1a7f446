// The white space that the encoder cuts: CR, LF, tab and blank.
#ifndef ORTHOLAN_NAMES_ENCODER_TRIM_H_
#define ORTHOLAN_NAMES_ENCODER_TRIM_H_

#include <string_view>

namespace Ortholan {

// The part of `text` without white space at its ends. Text of white space alone keeps its first
// character, so a value of one blank stays a value.
std::wstring_view Trimmed(std::wstring_view text);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_TRIM_H_
