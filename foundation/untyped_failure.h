// The failure that no type catches: only `catch (...)` sees it, and its cause is the thread's
// last-error code alone.
#ifndef ORTHOLAN_FOUNDATION_UNTYPED_FAILURE_H_
#define ORTHOLAN_FOUNDATION_UNTYPED_FAILURE_H_

#include <ortholan/platform.h>

namespace Ortholan {

[[noreturn]] void ThrowUntyped(DWORD lastError);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_UNTYPED_FAILURE_H_
