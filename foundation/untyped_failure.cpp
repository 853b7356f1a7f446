#include "foundation/untyped_failure.h"

#include <exception>

namespace Ortholan {
namespace {

// Local, without a base and in no header, so that no handler can name it.
struct Untyped {};

}  // namespace

void ThrowUntyped(DWORD lastError) {
  // A thread's first exception makes the runtime set up its state, which on Windows resets the
  // last error; so let that happen before the code is set.
  static_cast<void>(std::current_exception());
  SetLastError(lastError);
  throw Untyped{};
}

}  // namespace Ortholan
