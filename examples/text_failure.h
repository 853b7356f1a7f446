// A name text that is refused, shown with a mark under the place.
#ifndef ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_
#define ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_

#include <ortholan/name_text_error.h>

#include <cstddef>
#include <string>

namespace Example {

// Octets from the start of UTF-8, and how many were met there.
struct TextPlace {
  std::size_t position;
  std::size_t length;
};
[[noreturn]] void FailAtText(const std::string& text, const TextPlace& place,
                             const std::string& message);
// Throws the Failure for a fault of the text; returns where there is none.
void FailAtText(const std::wstring& text, const Ortholan::NameTextError& error);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_TEXT_FAILURE_H_
