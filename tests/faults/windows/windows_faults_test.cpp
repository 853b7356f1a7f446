// What the calls' realisation on Windows makes of failures that no other has.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>

#include "tests/faults/rows.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {
namespace {

constexpr char kModule[] = "ortholan.dll";  // beside the program, and not loaded

std::string Loaded() {
  CZEPString text("before");
  text.LoadString(206, kModule);
  const std::string loaded = text.c_str();
  return loaded.empty() || loaded == "before" ? "text " + loaded : "found";
}

std::string DecodedText() {
  std::wstring text;
  return Told(
      X500NameDecoder().Decode(Blob("30 0E 31 0C 30 0A 06 03 55 04 03 0C 03 61 62 63"), text, 3));
}

const Row kRows[] = {
    {"DecodeStringValue", 0, "more room is wanted than there is",
     [] {
       // Asked again with as much room, the system must not be asked for ever.
       plan.always = true;
       plan.error = ERROR_MORE_DATA;
       return DecodedText();
     },
     "false 234"},
    {"GetModuleHandleA", 0, "LoadString, module loaded for the call", [] { return Loaded(); },
     "found"},
    {"GetModuleFileNameA", 0, "LoadString", [] { return Loaded(); }, "text before"},
    {"LoadLibraryA", 0, "LoadString", [] { return Loaded(); }, "text before"},
    {"LoadStringA", 0, "LoadString", [] { return Loaded(); }, "text "},
    {"FreeLibrary", 0, "LoadString", [] { return Loaded(); }, "found"},
};

TEST(WindowsFaults, AreAnsweredAsPromised) { RunRows(kRows); }

}  // namespace
}  // namespace Ortholan::testing
