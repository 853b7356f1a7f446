// Both sides of the agreement about the runtime: the DLL's function, or a program that asks for it.
#include <ortholan/export.h>
#include <ortholan/runtime.h>

#ifdef ORTHOLAN_BUILDING
extern "C" ORTHOLAN_EXPORT void ORTHOLAN_RUNTIME() {}
#else
int main() { return 0; }
#endif
