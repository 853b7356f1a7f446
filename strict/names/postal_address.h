// Postal addresses (X.520 6.6.1: SEQUENCE OF DirectoryString) as the text of RFC 4517 3.3.28: lines
// with "$" between them, "$" and "\" of a line written \24 and \5C. In the text of a name those
// backslashes are escaped once more.
//
//   Road 1$1010 Town$Land -> SEQUENCE { "Road 1", "1010 Town", "Land" }
#ifndef ORTHOLAN_STRICT_NAMES_POSTAL_ADDRESS_H_
#define ORTHOLAN_STRICT_NAMES_POSTAL_ADDRESS_H_

#include <string>

#include "strict/names/string_choice.h"

namespace Ortholan::strict {

// Puts the whole value of checked UTF-8 in place of what `*element` holds. Refuses TEXT_LINE at the
// octet where a line is empty or a backslash is followed by anything else. Throws std::bad_alloc.
StringChoice ReadPostalAddress(ByteView text, StringPolicy policy, std::string* element);

// Puts the text of a value in place of what `*text` holds. False for a value that is no such
// SEQUENCE, that has an empty line or none, and with `exact` for one that its text would not be
// read as. Throws std::bad_alloc.
bool WritePostalAddress(const Element& value, StringPolicy policy, bool exact, std::string* text);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_POSTAL_ADDRESS_H_
