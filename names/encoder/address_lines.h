// The lines of an address.
#ifndef ORTHOLAN_NAMES_ENCODER_ADDRESS_LINES_H_
#define ORTHOLAN_NAMES_ENCODER_ADDRESS_LINES_H_

#include <string_view>

namespace Ortholan {

// Calls `use` with each line of `text`, in order, until it returns false; returns what the last
// call returned. Lines end at CR and LF, empty ones are passed over, nothing is trimmed; text
// without any line is one line itself.
template <typename Char, typename Use>
bool GetStrings(std::basic_string_view<Char> text, Use use) {
  const auto ends_line = [](Char c) { return c == Char('\r') || c == Char('\n'); };
  bool found = false;
  for (size_t i = 0; i < text.size();) {
    if (ends_line(text[i])) {
      ++i;
      continue;
    }
    const size_t start = i;
    while (i < text.size() && !ends_line(text[i])) ++i;
    found = true;
    if (!use(text.substr(start, i - start))) return false;
  }
  return found || use(text);
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_ADDRESS_LINES_H_
