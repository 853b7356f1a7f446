#include "examples/arguments.h"

#include <algorithm>

#include "examples/failure.h"
#include "examples/nearest.h"
#include "examples/text.h"

namespace Example {
namespace {

[[noreturn]] void FailAtOption(const std::string& name, const std::vector<Option>& options) {
  std::vector<std::string> names;
  for (const Option& option : options) names.emplace_back(option.name);
  // A letter behind one hyphen is the start of a word behind two.
  const std::string meant = name.compare(0, 2, "--") == 0 ? name : "-" + name;
  throw UsageError{"there is no option " + name + DidYouMean(meant, names)};
}

const Option& FindOption(const std::string& name, const std::vector<Option>& options) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [&name](const Option& option) { return name == option.name; });
  if (found == options.end()) FailAtOption(name, options);
  return *found;
}

}  // namespace

Arguments::Arguments(const std::vector<std::string>& all, std::size_t first,
                     const std::vector<Option>& options) {
  bool optionsEnded = false;
  for (std::size_t i = first; i < all.size(); ++i) {
    const std::string& argument = all[i];
    if (optionsEnded || argument.size() < 2 || argument[0] != '-') {
      operands.push_back(argument);
    } else if (argument == "--") {
      optionsEnded = true;
    } else {
      const std::size_t equals = argument.find('=');
      const std::string name = argument.substr(0, equals);
      const Option& option = FindOption(name, options);
      if (equals != std::string::npos) {
        if (option.argument == nullptr) throw UsageError{name + " takes no value"};
        values_[name] = argument.substr(equals + 1);
      } else if (option.argument == nullptr) {
        values_[name].clear();
      } else if (++i < all.size()) {
        values_[name] = all[i];
      } else {
        throw UsageError{name + " needs a value"};
      }
    }
  }
}

bool Arguments::Has(const char* option) const { return values_.count(option) != 0; }

void Arguments::RequireNone(std::initializer_list<const char*> others, const char* option) const {
  for (const char* const other : others) {
    if (Has(other)) throw UsageError{std::string(other) + " does not go with " + option};
  }
}

std::optional<std::string> Arguments::Value(const char* option) const {
  const auto found = values_.find(option);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

Ortholan::DWORD Arguments::Number(const char* option, Ortholan::DWORD byDefault) const {
  const std::optional<std::string> text = Value(option);
  if (!text) return byDefault;
  const std::optional<Ortholan::DWORD> number = ParseNumber(*text);
  if (!number) throw UsageError{std::string(option) + " needs a number below 2^32, not " + *text};
  return *number;
}

}  // namespace Example
