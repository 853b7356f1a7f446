// Every form of operator new in this program, counted and made to fail on demand.

#ifndef ORTHOLAN_TESTS_MEMORY_COUNTING_NEW_H_
#define ORTHOLAN_TESTS_MEMORY_COUNTING_NEW_H_

#include <cstddef>

namespace Ortholan::testing {

// Blocks and bytes that are allocated and not released.
std::size_t LiveBlocks();
std::size_t LiveBytes();

// The most bytes that were live at once since ResetPeak.
std::size_t PeakBytes();
void ResetPeak();

// While one of these lives, the allocation with the given number, counted from 0, fails; the
// others succeed.
class FailingAllocation {
 public:
  explicit FailingAllocation(std::size_t number);
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;
  ~FailingAllocation();
  // Whether the number was reached.
  static bool Failed();
};

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_MEMORY_COUNTING_NEW_H_
