// Which realisation of the platform a test runs on; the build picks this header or its namesake for
// Windows.

#ifndef ORTHOLAN_TESTS_SUPPORT_REALISATION_H_
#define ORTHOLAN_TESTS_SUPPORT_REALISATION_H_

#include <ortholan/platform.h>

namespace Ortholan::testing {

// A set of these says on which realisations something holds.
enum Realisation : unsigned { kNative = 1, kWindows = 2, kWine = 4 };

inline Realisation ThisRealisation() { return kNative; }

// Empties the attribute registry while it lives, where that can be done.
class EmptyAttributeRegistry {
 public:
  static constexpr bool kPossible = true;

  EmptyAttributeRegistry() { SetAttributeRegistryEnabled(false); }
  EmptyAttributeRegistry(const EmptyAttributeRegistry&) = delete;
  EmptyAttributeRegistry& operator=(const EmptyAttributeRegistry&) = delete;
  ~EmptyAttributeRegistry() { SetAttributeRegistryEnabled(true); }
};

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_REALISATION_H_
