#include "foundation/message_loader.h"

#include <string_view>

#include "bytes/ignore_case.h"
#include "platform/calls.h"

namespace Ortholan {
namespace {

constexpr size_t kPathBuffer = 261;
constexpr size_t kTextStep = 256;

// Releases the module on leaving where it was loaded for this call alone.
class Module {
 public:
  Module(HMODULE handle, bool loaded) : handle_(handle), loaded_(loaded) {}
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;
  ~Module() {
    if (loaded_) FreeLibrary(handle_);
  }
  HMODULE handle() const { return handle_; }

 private:
  HMODULE handle_;
  bool loaded_;
};

bool IsOwnName(std::string_view name) {
  const std::string_view own = kOwnModuleName;
  return CompareIgnoreCase(name.substr(0, own.size()), own) == 0;
}

// Path of `moduleName` in the host program's directory; "" where it cannot be formed whole.
std::string PathBesideHost(const char* moduleName) {
  char host[kPathBuffer];
  const DWORD length = GetModuleFileNameA(nullptr, host, kPathBuffer);
  if (length == 0 || length >= kPathBuffer) return std::string();
  std::string path(host, length);
  path.erase(path.find_last_of('\\') + 1);
  path += moduleName;
  return path.size() <= kPathBuffer ? path : std::string();
}

std::string ReadText(HMODULE module, UINT id) {
  std::string text;
  for (size_t capacity = kTextStep;; capacity += kTextStep) {
    text.resize(capacity);
    // The string has room for its terminator behind `capacity` characters.
    const int length = LoadStringA(module, id, text.data(), static_cast<int>(capacity) + 1);
    if (length < static_cast<int>(capacity)) {
      text.resize(length > 0 ? static_cast<size_t>(length) : 0);
      return text;
    }
  }
}

bool ReadFromFile(UINT id, const char* moduleName, std::string* text) {
  const std::string path = PathBesideHost(moduleName);
  if (path.empty()) return false;
  HMODULE found = GetModuleHandleA(path.c_str());
  const bool loaded = found == nullptr;
  if (loaded) found = LoadLibraryA(path.c_str());
  if (found == nullptr) return false;
  const Module module(found, loaded);
  *text = ReadText(module.handle(), id);
  return true;
}

}  // namespace

bool LoadMessage(UINT id, const char* moduleName, std::string* text) {
  if (moduleName != nullptr && !IsOwnName(moduleName)) return ReadFromFile(id, moduleName, text);
  *text = ReadText(moduleName != nullptr ? OwnModule() : GetModuleHandleA(nullptr), id);
  return true;
}

}  // namespace Ortholan
