// What --help prints.
#ifndef ORTHOLAN_EXAMPLES_HELP_H_
#define ORTHOLAN_EXAMPLES_HELP_H_

#include <string>

#include "examples/command_table.h"

namespace Example {

std::string ProgramHelp();
std::string CommandHelp(const Command& command);
// "usage: ...", in one line.
std::string UsageLine(const Command& command);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_HELP_H_
