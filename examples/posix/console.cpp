#include "examples/console.h"

namespace Example {

std::vector<std::string> OpenConsole(int argc, char** argv) {
  if (argc < 1) return {};
  return {argv + 1, argv + argc};
}

}  // namespace Example
