#include "platform/windows/own_module.h"

#include "platform/calls.h"

namespace Ortholan {
namespace {

// Stays null where the library is linked into the host program, whose module then is its own.
HMODULE own_module = nullptr;

}  // namespace

void windows::SetOwnModule(HMODULE module) noexcept { own_module = module; }

HMODULE OwnModule() noexcept {
  return own_module != nullptr ? own_module : GetModuleHandleA(nullptr);
}

}  // namespace Ortholan
