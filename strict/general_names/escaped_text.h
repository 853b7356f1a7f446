// Characters of a general name in its text: "\\" is a backslash, "\0A" an octet.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

enum class Characters { kAscii, kUtf8 };

// Puts characters with what cannot be seen, blanks at both ends and those of `ends` escaped.
void PutEscapedText(std::string_view text, Characters characters, std::string_view ends,
                    Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_
