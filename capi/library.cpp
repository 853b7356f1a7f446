// What belongs to no handle.
#include <ortholan/ortholan_c.h>

#include <new>

const char* ortholan_version(void) { return ORTHOLAN_VERSION; }

void ortholan_free(void* memory) { ::operator delete(memory); }
