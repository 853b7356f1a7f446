#include "tests/faults/plan.h"

#include <cstring>

namespace Ortholan::testing {

Plan plan;

// Asked before main as well, by the runtime's own calls.
bool Fails(const char* call) {
  if (std::strcmp(plan.call, call) != 0) return false;
  if (plan.number-- > 0 || (plan.number < -1 && !plan.always)) return false;
  SetLastError(plan.error);
  return true;
}

}  // namespace Ortholan::testing
