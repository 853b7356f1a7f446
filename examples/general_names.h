// General names (RFC 5280 4.2.1.6) by what they mean.
#ifndef ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
#define ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_

#include <string_view>

#include "examples/der.h"
#include "examples/value.h"

namespace Example {

// A line of kind and text, or the octets of what is no general name.
//   kind  the alternative's name in the standard
//   type  of an other name: its identifier's name
Value GeneralNameValue(const Der& name);

// The names that `content`, without its header, is made of.
Value GeneralNamesValue(std::string_view content);

// Whether general names have the library's own text beside their meaning.
void SetLibraryText(bool isWanted);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
