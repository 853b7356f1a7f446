// The thread's last-error code.

#include <ortholan/platform.h>

namespace Ortholan {
namespace {

thread_local DWORD last_error = ERROR_SUCCESS;

}  // namespace

void SetLastError(DWORD code) noexcept { last_error = code; }

DWORD GetLastError() noexcept { return last_error; }

}  // namespace Ortholan
