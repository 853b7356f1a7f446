#include "examples/console.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace Example {
namespace {

bool TakesSequences(int descriptor) {
  const char* const kind = std::getenv("TERM");
  return kind != nullptr && std::string_view(kind) != "dumb" && isatty(descriptor) != 0;
}

}  // namespace

std::vector<std::string> OpenConsole(int argc, char** argv) {
  if (argc < 1) return {};
  return {argv + 1, argv + argc};
}

bool IsTerminal(Stream stream) {
  static const bool output = TakesSequences(STDOUT_FILENO);
  static const bool error = TakesSequences(STDERR_FILENO);
  return stream == Stream::kOutput ? output : error;
}

}  // namespace Example
