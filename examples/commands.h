// What the program can do: a row for each command, beside its handler.
#ifndef ORTHOLAN_EXAMPLES_COMMANDS_H_
#define ORTHOLAN_EXAMPLES_COMMANDS_H_

#include "examples/command_table.h"

namespace Example {

// name_commands.cpp
extern const Command kEncodeCommand;
extern const Command kDecodeCommand;
extern const Command kPairsCommand;
extern const Command kEqualCommand;

// attribute_commands.cpp
extern const Command kGetCommand;
extern const Command kSetCommand;

// show.cpp, survey.cpp
extern const Command kShowCommand;
extern const Command kSurveyCommand;

// extension_commands.cpp
extern const Command kExtensionCommand;
extern const Command kGeneralNameCommand;

// make_command.cpp
extern const Command kMakeCommand;

// strict_matching.cpp
extern const Command kWithinCommand;
extern const Command kKeyCommand;
extern const Command kTypesCommand;

// strict_constraints.cpp
extern const Command kPermittedCommand;
// strict_identity.cpp
extern const Command kIdentifyCommand;

// Of several commands.
extern const Option kJsonOption;  // --json

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COMMANDS_H_
