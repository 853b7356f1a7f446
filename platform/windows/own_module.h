// Where OwnModule() finds the library's string resources.

#ifndef ORTHOLAN_PLATFORM_WINDOWS_OWN_MODULE_H_
#define ORTHOLAN_PLATFORM_WINDOWS_OWN_MODULE_H_

#include <ortholan/platform.h>

namespace Ortholan::windows {

// Records the DLL's handle. Called once, when the DLL is loaded, before anything else of it runs.
void SetOwnModule(HMODULE module) noexcept;

}  // namespace Ortholan::windows

#endif  // ORTHOLAN_PLATFORM_WINDOWS_OWN_MODULE_H_
