// The commands: what they are called, take and say of themselves. Each stands in a file with its
// siblings and is listed in command_table.cpp; another way to do a command's work is an option with
// a handler of its own, in whichever file:
//
//   const Command kDecodeCommand = {"decode", RunDecode, 1, 1, "NAME", ...,
//                            {{"--rfc4514", nullptr, "as RFC 4514 has it", RunDecodeRfc4514}}};
#ifndef ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_
#define ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "examples/arguments.h"
#include "examples/stream/stream.h"

namespace Example {

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Command {
  const char* name;
  // Prints to standard output and returns the exit status; Failure and UsageError are thrown.
  int (*run)(const Arguments&);
  std::size_t leastOperands;
  std::size_t mostOperands;
  const char* operands;  // for the line of usage
  const char* about;     // a few words
  const char* details;
  // Lines for a shell; what they print stands indented below them.
  const char* examples;
  std::vector<Option> options;
  // --lines, for those that have it; with it any number of operands are files.
  LineWork lines = {};
};

// The command's own options and, where it has --lines, those that go with it.
std::vector<Option> OptionsOf(const Command& command);

// In the order of the help.
const std::vector<const Command*>& AllCommands();

// Throws UsageError where there is none.
const Command& FindCommand(const std::string& name);

// Options of every command.
const std::vector<Option>& CommonOptions();

// Reads what stands behind the command's name and does the work.
int RunCommand(const Command& command, const std::vector<std::string>& all);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_
