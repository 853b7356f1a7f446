// Which realisation of the platform a test runs on; the build picks this header or its native
// namesake.

#ifndef ORTHOLAN_TESTS_SUPPORT_REALISATION_H_
#define ORTHOLAN_TESTS_SUPPORT_REALISATION_H_

#include <ortholan/platform.h>

namespace Ortholan::testing {

// A set of these says on which realisations something holds.
enum Realisation : unsigned { kNative = 1, kWindows = 2, kWine = 4 };

inline Realisation ThisRealisation() {
  static const bool wine =
      GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
  return wine ? kWine : kWindows;
}

// The system's registry cannot be emptied: a test that needs that skips itself.
class EmptyAttributeRegistry {
 public:
  static constexpr bool kPossible = false;
};

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_REALISATION_H_
