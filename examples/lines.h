// Many in one run: a file's lines, each for itself.
#ifndef ORTHOLAN_EXAMPLES_LINES_H_
#define ORTHOLAN_EXAMPLES_LINES_H_

#include <functional>
#include <string>

namespace Example {

// Prints what `convert` makes of each line of the file, or of standard input for "-": a line each,
// without `convert`'s part where it throws Failure, which is told with the line's number. Returns
// the exit status.
int RunLines(const std::string& command, const std::string& path,
             const std::function<std::string(const std::string& line)>& convert);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_LINES_H_
