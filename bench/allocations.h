// What the calling thread allocates. The program's own malloc and its kin stand in front of the C
// library's, so that allocations in shared libraries are counted too.
#ifndef ORTHOLAN_BENCH_ALLOCATIONS_H_
#define ORTHOLAN_BENCH_ALLOCATIONS_H_

#include <cstddef>
#include <cstdint>

namespace Bench {

// Blocks that this thread has allocated or resized since it began.
uint64_t AllocationCount();

// The most bytes that this thread held at once beyond those at the start of the scope, as the C
// library rounds blocks up. Only one scope at a time, and its blocks stay on its thread.
class PeakScope {
 public:
  PeakScope();
  PeakScope(const PeakScope&) = delete;
  PeakScope& operator=(const PeakScope&) = delete;
  ~PeakScope();

  uint64_t bytes() const;
};

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_ALLOCATIONS_H_
