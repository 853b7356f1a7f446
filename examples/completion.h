// What a shell offers behind the cursor. The scripts for bash, zsh and fish ask for it by
//
//   x509name --complete WORD...
//
// with the words up to the cursor, and split nothing themselves.
#ifndef ORTHOLAN_EXAMPLES_COMPLETION_H_
#define ORTHOLAN_EXAMPLES_COMPLETION_H_

#include <string>
#include <vector>

namespace Example {

// A line for each word that may stand in place of the last of `words`: the word, a tab, and what it
// means. The line ":files" says that names of files may.
std::string Completions(std::vector<std::string> words);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COMPLETION_H_
