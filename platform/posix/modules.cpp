// Modules and their message texts. The host program has no texts; this library's are compiled in;
// there are no others to find.

#include <ortholan/platform.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <string_view>

#include "platform/calls.h"
#include "platform/posix/fail.h"

namespace Ortholan {
namespace {

using posix::Fail;

struct Message {
  UINT id;
  std::string_view text;
};

// In ascending order of status codes.
constexpr Message kMessages[] = {
#define ORTHOLAN_MESSAGE(status, text) {status, text},
#include "platform/messages.inc"
#undef ORTHOLAN_MESSAGE
};

constexpr bool IsAscending() {
  for (std::size_t i = 1; i < std::size(kMessages); ++i) {
    if (kMessages[i - 1].id >= kMessages[i].id) return false;
  }
  return true;
}
static_assert(IsAscending(), "the messages are searched by halves");

// What the two handles point at has no meaning of its own.
char own_module;
char host_module;

std::string_view FindMessage(UINT id) {
  const auto* const row =
      std::lower_bound(std::begin(kMessages), std::end(kMessages), id,
                       [](const Message& message, UINT wanted) { return message.id < wanted; });
  return row != std::end(kMessages) && row->id == id ? row->text : std::string_view();
}

}  // namespace

HMODULE OwnModule() noexcept { return &own_module; }

HMODULE GetModuleHandleA(LPCSTR moduleName) noexcept {
  if (moduleName == nullptr) return &host_module;
  return Fail<HMODULE>(ERROR_MOD_NOT_FOUND);
}

DWORD GetModuleFileNameA(HMODULE module, LPSTR out, DWORD outChars) noexcept {
  if (module != nullptr && module != &host_module) return Fail<DWORD>(ERROR_MOD_NOT_FOUND);
  if (out == nullptr || outChars == 0) return Fail<DWORD>(ERROR_INSUFFICIENT_BUFFER);
  const ssize_t length = readlink("/proc/self/exe", out, outChars);
  if (length < 0) return Fail<DWORD>(ERROR_PATH_NOT_FOUND);
  const auto size = static_cast<DWORD>(length);
  if (size < outChars) {
    out[size] = '\0';
    return size;
  }
  out[outChars - 1] = '\0';
  SetLastError(ERROR_INSUFFICIENT_BUFFER);
  return outChars;
}

HMODULE LoadLibraryA(LPCSTR moduleName) noexcept {
  return Fail<HMODULE>(moduleName != nullptr ? ERROR_MOD_NOT_FOUND : ERROR_INVALID_PARAMETER);
}

BOOL FreeLibrary(HMODULE module) noexcept {
  // Neither module was loaded for a caller, so that nothing is released.
  return module == &host_module || module == &own_module ? TRUE : Fail(ERROR_INVALID_HANDLE);
}

int LoadStringA(HINSTANCE module, UINT id, LPSTR out, int outChars) noexcept {
  if (out == nullptr || outChars <= 0) return Fail(ERROR_INVALID_PARAMETER);
  out[0] = '\0';
  const std::string_view text = module == &own_module ? FindMessage(id) : std::string_view();
  if (text.empty()) return Fail(ERROR_RESOURCE_NAME_NOT_FOUND);
  const std::size_t size = text.copy(out, static_cast<std::size_t>(outChars) - 1);
  out[size] = '\0';
  return static_cast<int>(size);
}

}  // namespace Ortholan
