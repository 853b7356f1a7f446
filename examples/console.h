// What a command-line program gets from its system: octets in and out, and a command line in UTF-8.
// posix/ and windows/ hold one realisation each.
#ifndef ORTHOLAN_EXAMPLES_CONSOLE_H_
#define ORTHOLAN_EXAMPLES_CONSOLE_H_

#include <string>
#include <vector>

namespace Example {

// The arguments in UTF-8, without the program's name. From here on the standard streams carry
// octets as they are, without a translation of line ends.
std::vector<std::string> OpenConsole(int argc, char** argv);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_CONSOLE_H_
