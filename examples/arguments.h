// The command line after the command: options and operands.
#ifndef ORTHOLAN_EXAMPLES_ARGUMENTS_H_
#define ORTHOLAN_EXAMPLES_ARGUMENTS_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Example {

struct Option {
  const char* name = nullptr;      // with its two hyphens; null behind the last
  const char* argument = nullptr;  // what its value is called; null where it takes none
  const char* about = nullptr;
};

class Arguments {
 public:
  // Reads everything from `first` on: options anywhere, as `--name value` or `--name=value`, until
  // `--`. Throws UsageError for an option that is not in `options`.
  Arguments(const std::vector<std::string>& all, std::size_t first, const Option* options);

  bool Has(const char* option) const;
  std::optional<std::string> Value(const char* option) const;
  // The option's number in C notation; throws UsageError for anything else.
  Ortholan::DWORD Number(const char* option, Ortholan::DWORD byDefault) const;

  std::vector<std::string> operands;

 private:
  std::map<std::string, std::string> values_;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_ARGUMENTS_H_
