// The commands: what they are called, take and say of themselves.
#ifndef ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_
#define ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_

#include <cstddef>
#include <string>

#include "examples/arguments.h"

namespace Example {

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Command {
  const char* name;
  int (*run)(const Arguments&);
  std::size_t leastOperands;
  std::size_t mostOperands;
  const char* usage;  // options and operands
  const char* about;  // a few words
  const char* details;
  // Lines for a shell; what they print stands indented below them.
  const char* examples;
  Option options[5];  // ended by a row without a name
};

struct CommandRange {
  const Command* first;
  const Command* last;
  const Command* begin() const { return first; }
  const Command* end() const { return last; }
};
CommandRange AllCommands();

// Null where there is none.
const Command* FindCommand(const std::string& name);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_COMMAND_TABLE_H_
