#include "platform/calls.h"

namespace Ortholan {

// The system reads its registry of identifiers once.
uint16_t AttributeInfoVersion() noexcept { return 0; }

}  // namespace Ortholan
