// What belongs to no handle.
#include <ortholan/ortholan_c.h>
#include <ortholan/version.h>

#include <new>

const char* ortholan_version(void) { return ORTHOLAN_VERSION_STRING; }

void ortholan_free(void* memory) { ::operator delete(memory); }
