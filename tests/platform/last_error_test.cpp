// SetLastError, GetLastError.

#include <atomic>
#include <thread>

#include "tests/platform/contract.h"

namespace Ortholan::testing {
namespace {

// The threads take turns without a call of the system between, which might set codes of its own.
TEST(LastError, BelongsToTheThread) {
  std::atomic<int> turn{0};
  DWORD atStart = kAnyError;
  DWORD inside = kAnyError;
  std::thread other([&] {
    while (turn != 1) continue;
    atStart = GetLastError();
    SetLastError(87);
    inside = GetLastError();
    turn = 2;
  });
  SetLastError(0x80093103);
  turn = 1;
  while (turn != 2) continue;
  const DWORD after = GetLastError();
  other.join();
  EXPECT_NE(atStart, 0x80093103u);
  EXPECT_EQ(inside, 87u);
  EXPECT_EQ(after, 0x80093103u);
}

}  // namespace
}  // namespace Ortholan::testing
