// Which characters can be seen. The others (controls, line ends, spaces but U+0020, what turns the
// direction of writing, what joins or is there to be ignored, private and unassigned code points)
// could pass something off in a terminal or a log, and are escaped there.
#ifndef ORTHOLAN_STRICT_NAMES_SHOWN_CHARACTERS_H_
#define ORTHOLAN_STRICT_NAMES_SHOWN_CHARACTERS_H_

#include <cstdint>

namespace Ortholan::strict {

bool IsShown(uint32_t scalar);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_SHOWN_CHARACTERS_H_
