// Which call of the platform is to fail.

#ifndef ORTHOLAN_TESTS_FAULTS_PLAN_H_
#define ORTHOLAN_TESTS_FAULTS_PLAN_H_

#include <ortholan/platform.h>

namespace Ortholan::testing {

inline constexpr DWORD kFault =
    1114;  // maps to status 146, as no failure of the library's own does

// The call of that name, counted from `number` down, fails; with `always` those after it too. Calls
// are named as in platform/, where that gives them a name of its own.
struct Plan {
  const char* call = "";
  int number = 0;  // below 0: it has failed
  bool always = false;
  DWORD error = kFault;
};
extern Plan plan;

// To be asked by the stand-in of the call. Sets the last error where the call is to fail.
bool Fails(const char* call);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_FAULTS_PLAN_H_
