#include "fuzz/law.h"

#include <cstdio>
#include <cstdlib>

namespace Ortholan::fuzzing {

void Break(const char* law, const char* file, int line) {
  std::fprintf(stderr, "%s:%d: broken law: %s\n", file, line, law);
  std::abort();
}

}  // namespace Ortholan::fuzzing
