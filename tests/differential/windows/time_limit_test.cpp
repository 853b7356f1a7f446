// A call that never returns is given up, and the process still ends.

#include "tests/differential/windows/time_limit.h"

#include <gtest/gtest.h>

namespace Ortholan::testing {
namespace {

TEST(TimeLimit, IsKept) {
  EXPECT_EQ(WithinTimeLimit([] { return 7; }), 7);
  const auto forever = [] {
    Sleep(INFINITE);
    return 7;
  };
  EXPECT_FALSE(WithinTimeLimit(forever, 50).has_value());
}

}  // namespace
}  // namespace Ortholan::testing
