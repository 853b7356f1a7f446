#include "examples/completion.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string_view>

#include "examples/command_table.h"

namespace Example {
namespace {

constexpr const char* kFiles = ":files\n";

// The attributes that names are written with.
constexpr const char* kKeys =
    "CN C O OU L S T E title serialNumber postalAddress pseudonym department";

// One line, for the first line of what is told.
std::string Line(const std::string& word, std::string_view about) {
  about = about.substr(0, about.find('\n'));
  return word + (about.empty() ? "" : "\t" + std::string(about)) + "\n";
}

bool Starts(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string WordsOf(const std::string& list, std::string_view start, const std::string& before) {
  std::istringstream words(list);
  std::string lines;
  for (std::string word; words >> word;) {
    if (Starts(word, start)) lines += Line(before + word, "");
  }
  return lines;
}

std::vector<Option> AllOptionsOf(const Command& command) {
  std::vector<Option> options = OptionsOf(command);
  options.insert(options.end(), CommonOptions().begin(), CommonOptions().end());
  return options;
}

std::string OptionLines(const std::vector<Option>& options, std::string_view start) {
  std::string lines;
  for (const Option& option : options) {
    if (Starts(option.name, start)) lines += Line(option.name, option.about);
  }
  return lines;
}

std::string CommandLines(std::string_view start) {
  std::string lines;
  for (const Command* command : AllCommands()) {
    if (Starts(command->name, start)) lines += Line(command->name, command->about);
  }
  if (start.empty()) return lines;
  lines += OptionLines(CommonOptions(), start);
  return lines + (Starts("--version", start) ? Line("--version", "the version") : "");
}

// The option that waits for its value in the word behind `word`, or null.
const Option* Waiting(const std::vector<Option>& options, const std::string& word) {
  const auto found = std::find_if(options.begin(), options.end(), [&word](const Option& each) {
    return each.argument != nullptr && word == each.name;
  });
  return found != options.end() ? &*found : nullptr;
}

std::string ValueLines(const Option& option, std::string_view start, const std::string& before) {
  if (option.values != nullptr) return WordsOf(option.values, start, before);
  return std::string_view(option.argument) == "FILE" ? kFiles : "";
}

// `place` counts operands from 0; the last kind stands for all that follow it.
std::string OperandLines(const Command& command, std::size_t place, std::string_view start) {
  std::istringstream kinds(command.operands);
  std::string kind;
  for (std::size_t i = 0; i <= place && kinds >> kind; ++i) continue;
  if (kind == "TYPE") return WordsOf(kKeys, start, "");
  // What is typed rather than lying in a file.
  return kind == "TEXT" || kind == "VALUE" ? "" : kFiles;
}

// bash takes "--style=oids" for three words.
void JoinSplit(std::vector<std::string>& words) {
  if (words.back() == "=") words.emplace_back();
  for (std::size_t i = 1; i + 1 < words.size(); ++i) {
    if (words[i] == "=") words.erase(words.begin() + static_cast<std::ptrdiff_t>(i--));
  }
}

std::string ArgumentLines(const Command& command, const std::vector<std::string>& words) {
  const std::vector<Option> options = AllOptionsOf(command);
  const std::string& last = words.back();
  std::size_t operands = 0;
  bool isValue = false;
  for (std::size_t i = 1; i + 1 < words.size(); ++i) {
    const bool isOption = words[i].size() > 1 && words[i][0] == '-';
    if (!isOption && !isValue) ++operands;
    isValue = !isValue && Waiting(options, words[i]) != nullptr;
  }
  if (isValue) return ValueLines(*Waiting(options, words[words.size() - 2]), last, "");
  const std::size_t equals = last.find('=');
  if (const Option* const option = Waiting(options, last.substr(0, equals))) {
    if (equals != std::string::npos) {
      return ValueLines(*option, std::string_view(last).substr(equals + 1),
                        last.substr(0, equals + 1));
    }
  }
  if (last.size() > 1 && last[0] == '-') return OptionLines(options, last);
  return OperandLines(command, operands, last);
}

}  // namespace

std::string Completions(std::vector<std::string> words) {
  if (words.empty()) return {};
  if (words.size() == 1) return CommandLines(words[0]);
  JoinSplit(words);
  for (const Command* command : AllCommands()) {
    if (words[0] == command->name) return ArgumentLines(*command, words);
  }
  return {};
}

}  // namespace Example
