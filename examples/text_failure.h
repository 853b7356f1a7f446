// A name text that is refused, shown with a mark under the place.
#ifndef ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_
#define ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_

#include <ortholan/name_text_error.h>

#include <string>

namespace Example {

// Throws the Failure for a fault of the text; returns where there is none.
void FailAtText(const std::wstring& text, const Ortholan::NameTextError& error);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_
