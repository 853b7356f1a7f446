// A module beside the program, which POSIX has none of: the linker sends the library's calls here
// (--wrap), and for one program and one module they answer as Windows does.

#include <gtest/gtest.h>
#include <ortholan/zep_string.h>

#include <string>

#include "platform/calls.h"
#include "tests/faults/plan.h"

namespace Ortholan {
namespace {

struct {
  std::string program;  // its path; empty where the platform answers
  std::string path;     // of the module
  std::string text;     // that it has
  bool in_memory = false;
  int loads = 0;
  int releases = 0;
} beside;

HMODULE Found(LPCSTR path) { return path == beside.path ? &beside : nullptr; }

}  // namespace

// Declares the platform's call and its stand-in, whose body follows.
#define MODULE_CALL(type, name, mangled, parameters) \
  type Real##name parameters asm("__real_" mangled); \
  type Own##name parameters asm("__wrap_" mangled);  \
  type Own##name parameters

MODULE_CALL(DWORD, GetModuleFileNameA, "_ZN8Ortholan18GetModuleFileNameAEPvPcj",
            (HMODULE module, LPSTR out, DWORD size)) {
  if (beside.program.empty()) return RealGetModuleFileNameA(module, out, size);
  return static_cast<DWORD>(beside.program.copy(out, size));
}
MODULE_CALL(HMODULE, GetModuleHandleA, "_ZN8Ortholan16GetModuleHandleAEPKc", (LPCSTR name)) {
  if (beside.program.empty() || name == nullptr) return RealGetModuleHandleA(name);
  return beside.in_memory ? Found(name) : nullptr;
}
MODULE_CALL(HMODULE, LoadLibraryA, "_ZN8Ortholan12LoadLibraryAEPKc", (LPCSTR name)) {
  if (beside.program.empty()) return RealLoadLibraryA(name);
  ++beside.loads;
  return Found(name);
}
MODULE_CALL(BOOL, FreeLibrary, "_ZN8Ortholan11FreeLibraryEPv", (HMODULE module)) {
  if (module != &beside) return RealFreeLibrary(module);
  return ++beside.releases;
}
MODULE_CALL(int, LoadStringA, "_ZN8Ortholan11LoadStringAEPvjPci",
            (HINSTANCE module, UINT id, LPSTR out, int size)) {
  if (testing::Fails("LoadStringA")) return 0;
  if (module != &beside) return RealLoadStringA(module, id, out, size);
  return static_cast<int>(beside.text.copy(out, static_cast<size_t>(size) - 1));
}

namespace testing {
namespace {

TEST(Modules, AreLookedForBesideTheProgram) {
  const std::string directory = "C:\\some\\";
  const struct {
    const char* label;
    std::string program;
    std::string module;
    std::string path;
    size_t characters;
    bool is_found;
  } rows[] = {
      {"beside", directory + "a.exe", "m.dll", directory + "m.dll", 1, true},
      {"elsewhere", directory + "a.exe", "m.dll", "m.dll", 1, false},
      {"program without directory", "a.exe", "m.dll", "m.dll", 255, true},
      {"text of a step", directory + "a.exe", "m.dll", directory + "m.dll", 256, true},
      {"text of more", directory + "a.exe", "m.dll", directory + "m.dll", 257, true},
      {"text of two steps", directory + "a.exe", "m.dll", directory + "m.dll", 512, true},
      {"longest program", std::string(260, 'p'), "m.dll", "m.dll", 1, true},
      {"program too long", std::string(261, 'p'), "m.dll", "m.dll", 1, false},
      {"longest path", "a.exe", std::string(261, 'm'), std::string(261, 'm'), 1, true},
      {"path too long", "a.exe", std::string(262, 'm'), std::string(262, 'm'), 1, false},
  };
  for (const auto& row : rows) {
    for (const bool in_memory : {false, true}) {
      SCOPED_TRACE(row.label);
      beside = {row.program, row.path, std::string(row.characters, 't'), in_memory, 0, 0};
      CZEPString text("old");
      EXPECT_EQ(text.LoadString(7, row.module.c_str()), row.is_found);
      EXPECT_EQ(text.c_str(), row.is_found ? beside.text : "old");
      EXPECT_EQ(beside.releases, row.is_found && !in_memory ? 1 : 0);
      EXPECT_LE(beside.loads, in_memory && row.is_found ? 0 : 1);
    }
  }
  beside = {};
}

}  // namespace
}  // namespace testing
}  // namespace Ortholan
