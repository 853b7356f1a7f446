#include "examples/command_table.h"

#include <algorithm>
#include <string_view>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/help.h"
#include "examples/input.h"
#include "examples/nearest.h"

namespace Example {

const std::vector<const Command*>& AllCommands() {
  static const std::vector<const Command*> all = {
      &kEncodeCommand,    &kDecodeCommand,      &kPairsCommand,  &kGetCommand,
      &kSetCommand,       &kEqualCommand,       &kWithinCommand, &kKeyCommand,
      &kIdentifyCommand,  &kPermittedCommand,   &kShowCommand,   &kSurveyCommand,
      &kExtensionCommand, &kGeneralNameCommand, &kMakeCommand, &kTypesCommand,
  };
  return all;
}

const Command& FindCommand(const std::string& name) {
  const std::vector<const Command*>& all = AllCommands();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&name](const Command* each) { return name == each->name; });
  if (found != all.end()) return **found;
  std::vector<std::string> names = {"help"};
  for (const Command* command : all) names.emplace_back(command->name);
  const std::string nearest = DidYouMean(name, names);
  throw UsageError{"there is no command " + name +
                   (nearest.empty() ? "; x509name --help lists them" : nearest)};
}

const std::vector<Option>& CommonOptions() {
  static const std::vector<Option> options = {
      {"--verbose", nullptr, "name the system's error codes"},
      {"--help", nullptr, "what the command takes"},
  };
  return options;
}

namespace {

const Option kLineJsonOption = {"--json", nullptr, "with --lines: an object a line"};

bool HasOwn(const Command& command, const Option& option) {
  return std::any_of(command.options.begin(), command.options.end(),
                     [&](const Option& own) { return own.name == std::string_view(option.name); });
}

void RequireLines(const Command& command, const Arguments& arguments) {
  for (const Option& option : {kJobsOption, kLineJsonOption}) {
    if (arguments.Has(option.name) && !HasOwn(command, option)) {
      throw UsageError{std::string(option.name) + " goes with --lines"};
    }
  }
}

}  // namespace

std::vector<Option> OptionsOf(const Command& command) {
  std::vector<Option> options = command.options;
  if (command.lines.make == nullptr) return options;
  if (!HasOwn(command, kLineJsonOption)) options.push_back(kLineJsonOption);
  options.push_back(kLinesOption);
  options.push_back(kJobsOption);
  return options;
}

int RunCommand(const Command& command, const std::vector<std::string>& all) {
  std::vector<Option> options = OptionsOf(command);
  options.insert(options.end(), CommonOptions().begin(), CommonOptions().end());
  const Arguments arguments(all, 1, options);
  SetVerbose(arguments.Has("--verbose"));
  if (arguments.Has(kLinesOption.name)) return RunStream(command.name, command.lines, arguments);
  RequireLines(command, arguments);
  const std::size_t count = arguments.operands.size();
  if (count < command.leastOperands || count > command.mostOperands) {
    throw UsageError{UsageLine(command)};
  }
  const auto other = std::find_if(options.begin(), options.end(), [&](const Option& option) {
    return option.run != nullptr && arguments.Has(option.name);
  });
  const int status = (other != options.end() ? other->run : command.run)(arguments);
  FinishOutput();
  return status;
}

}  // namespace Example
