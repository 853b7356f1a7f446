// Colour on a terminal: never where the output goes elsewhere, nor where the environment variable
// NO_COLOR is set and not empty.
#ifndef ORTHOLAN_EXAMPLES_COLOUR_H_
#define ORTHOLAN_EXAMPLES_COLOUR_H_

#include <string>

#include "examples/console.h"

namespace Example {

enum class Colour { kHeading, kKey, kNotable, kFault };

// `text` for `stream`, between escape sequences (ECMA-48, SGR) where it may have colour.
std::string Paint(Colour colour, const std::string& text, Stream stream = Stream::kOutput);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COLOUR_H_
