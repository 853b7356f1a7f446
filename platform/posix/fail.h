// How a call of the platform reports failure: the thread's last error and a result of 0.

#ifndef ORTHOLAN_PLATFORM_POSIX_FAIL_H_
#define ORTHOLAN_PLATFORM_POSIX_FAIL_H_

#include <ortholan/platform.h>

namespace Ortholan::posix {

// 0 stands for FALSE, for "nothing converted" and for a null handle.
template <class Result = BOOL>
Result Fail(DWORD code) noexcept {
  SetLastError(code);
  return Result{};
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_FAIL_H_
