// The entry point of the DLL; it is no part of the static library.

#include <ortholan/platform.h>

#include "platform/windows/own_module.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    Ortholan::windows::SetOwnModule(module);
    DisableThreadLibraryCalls(module);
  }
  return TRUE;
}

#ifdef ORTHOLAN_RUNTIME
extern "C" ORTHOLAN_EXPORT void ORTHOLAN_RUNTIME();
void ORTHOLAN_RUNTIME() {}
#endif
