// The options of the commands that write names or their text: by name, or as the library's words.
#ifndef ORTHOLAN_EXAMPLES_NAME_OPTIONS_H_
#define ORTHOLAN_EXAMPLES_NAME_OPTIONS_H_

#include <ortholan/platform.h>

#include "examples/arguments.h"

namespace Example {

extern const Option kUtf8Option;        // --utf8
extern const Option kUtf8AlwaysOption;  // --utf8-always
extern const Option kSeparatorOption;   // --separator S
extern const Option kStyleOption;       // --style STYLE
extern const Option kOptionsOption;     // --options N

// The option words that the command line asks for; UsageError for a bit that means nothing.
Ortholan::DWORD EncoderOptions(const Arguments& arguments);
// The style in the lower half; short keys where none is asked for.
Ortholan::DWORD DecoderOptions(const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_NAME_OPTIONS_H_
