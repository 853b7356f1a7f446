// What a command-line program gets from its system: octets in and out, a command line in UTF-8, and
// whether somebody looks on.
// posix/ and windows/ hold one realisation each.
#ifndef ORTHOLAN_EXAMPLES_CONSOLE_H_
#define ORTHOLAN_EXAMPLES_CONSOLE_H_

#include <string>
#include <vector>

namespace Example {

// The arguments in UTF-8, without the program's name. From here on the standard streams carry
// octets as they are, without a translation of line ends.
std::vector<std::string> OpenConsole(int argc, char** argv);

enum class Stream { kOutput, kError };

// Whether the stream is a terminal that takes escape sequences (ECMA-48). To be asked after
// OpenConsole.
bool IsTerminal(Stream stream);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_CONSOLE_H_
