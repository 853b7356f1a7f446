// The time that a thread has used the processor; the build picks this header or its namesake for
// Windows.

#ifndef ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_
#define ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_

#include <time.h>

namespace Ortholan::testing {

// Seconds of the calling thread since it began.
inline double ProcessorSeconds() {
  timespec used = {};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_
