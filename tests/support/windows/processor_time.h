// The time that a thread has used the processor; the build picks this header or its native
// namesake.

#ifndef ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_
#define ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_

#include <ortholan/platform.h>

namespace Ortholan::testing {

// Seconds of the calling thread since it began.
inline double ProcessorSeconds() {
  FILETIME made, ended, kernel, user;
  if (!GetThreadTimes(GetCurrentThread(), &made, &ended, &kernel, &user)) return 0;
  const auto seconds = [](const FILETIME& time) {  // of 100 ns
    return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) * 1e-7;
  };
  return seconds(kernel) + seconds(user);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_PROCESSOR_TIME_H_
