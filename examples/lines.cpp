#include "examples/lines.h"

#include <cstddef>
#include <string_view>

#include "examples/failure.h"
#include "examples/input.h"
#include "examples/text.h"

namespace Example {

int RunLines(const std::string& command, const std::string& path,
             const std::function<std::string(const std::string& line)>& convert) {
  const std::string content = ReadOctets(path);
  std::string_view rest = content;
  std::size_t number = 0;
  int status = 0;
  while (!rest.empty()) {
    const std::string line(TakeLine(rest));
    ++number;
    try {
      Print(convert(line));
    } catch (const Failure& failure) {
      // Both streams in the order of the lines, where they go to one place.
      FinishOutput();
      Report(command + ": line " + std::to_string(number), failure);
      status = 1;
    }
    Print("\n");
  }
  return status;
}

}  // namespace Example
