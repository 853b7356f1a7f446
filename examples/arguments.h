// The command line after the command: options and operands.
#ifndef ORTHOLAN_EXAMPLES_ARGUMENTS_H_
#define ORTHOLAN_EXAMPLES_ARGUMENTS_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Example {

class Arguments;

struct Option {
  const char* name;      // with its two hyphens
  const char* argument;  // what its value is called; null where it takes none
  const char* about;
  // Where the option is given, it does the command's work; null for an option of the command's own.
  int (*run)(const Arguments&) = nullptr;
  const char* values = nullptr;  // the words that its value may be, for completion
};

class Arguments {
 public:
  // Reads everything from `first` on: options anywhere, as `--name value` or `--name=value`, until
  // `--`. Throws UsageError for an option that is not in `options`, and for one letter behind a
  // hyphen.
  Arguments(const std::vector<std::string>& all, std::size_t first,
            const std::vector<Option>& options);

  bool Has(const char* option) const;
  // Throws UsageError where one of `others` is given, which say nothing of what `option` asks for.
  void RequireNone(std::initializer_list<const char*> others, const char* option) const;
  std::optional<std::string> Value(const char* option) const;
  // The option's number in C notation; throws UsageError for anything else.
  Ortholan::DWORD Number(const char* option, Ortholan::DWORD byDefault) const;

  std::vector<std::string> operands;

 private:
  std::map<std::string, std::string> values_;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_ARGUMENTS_H_
