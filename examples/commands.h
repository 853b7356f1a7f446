// What the program can do. Each command prints to standard output and returns the exit status;
// Failure and UsageError are thrown.
#ifndef ORTHOLAN_EXAMPLES_COMMANDS_H_
#define ORTHOLAN_EXAMPLES_COMMANDS_H_

#include "examples/arguments.h"

namespace Example {

int RunEncode(const Arguments& arguments);
int RunDecode(const Arguments& arguments);
int RunPairs(const Arguments& arguments);
int RunGet(const Arguments& arguments);
int RunSet(const Arguments& arguments);
int RunEqual(const Arguments& arguments);

int RunShow(const Arguments& arguments);
int RunSurvey(const Arguments& arguments);

int RunExtension(const Arguments& arguments);
int RunGeneralName(const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COMMANDS_H_
