// What libFuzzer calls, compiled once for each target.
#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Ortholan::fuzzing::ORTHOLAN_FUZZ_FUNCTION(data, size);
  return 0;
}
