#include "tests/strict/reasons.h"

namespace Ortholan::testing {

std::string ReasonName(ortholan_reason reason) {
  if (reason == ORTHOLAN_REASON_NONE) return "";
  const std::string name = ortholan_reason_name(reason);
  return name.empty() ? std::to_string(reason) : name;
}

}  // namespace Ortholan::testing
