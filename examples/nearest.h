// The word that somebody who mistyped another may have meant.
#ifndef ORTHOLAN_EXAMPLES_NEAREST_H_
#define ORTHOLAN_EXAMPLES_NEAREST_H_

#include <string>
#include <vector>

namespace Example {

// "; did you mean WORD?" with the nearest of `words`: one that `text` is a part of, or that takes
// at most a third of its letters to change. Empty where none is near.
std::string DidYouMean(const std::string& text, const std::vector<std::string>& words);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_NEAREST_H_
