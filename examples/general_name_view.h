// General names for a person's eyes.
#ifndef ORTHOLAN_EXAMPLES_GENERAL_NAME_VIEW_H_
#define ORTHOLAN_EXAMPLES_GENERAL_NAME_VIEW_H_

#include <ortholan/ident_obj.h>

#include <string>

namespace Example {

// Prints each name of a GeneralNames sequence on a line: its kind and the library's text for it.
// Where that text is raw octets a second line says what they hold. False where the value, or a name
// in it, cannot be read; the others are printed all the same.
bool PrintGeneralNames(const Ortholan::IdentObj& value, const std::string& indent);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_GENERAL_NAME_VIEW_H_
