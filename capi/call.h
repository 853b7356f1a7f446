// The border of the C interface: each function's body runs inside Call, which turns whatever comes
// out of it into a result and the thread's last error.
#ifndef ORTHOLAN_CAPI_CALL_H_
#define ORTHOLAN_CAPI_CALL_H_

#include <ortholan/ortholan_c.h>
#include <ortholan/platform.h>

#include <string_view>

#include "foundation/status_code.h"

namespace Ortholan::capi {

// How a body ended. `detail` is a text that says more than the result's own, or null: static, or
// what KeptDetail gave.
struct [[nodiscard]] Outcome {
  ortholan_result result = ORTHOLAN_OK;
  DWORD status = 0;
  DWORD system_error = 0;
  const char* detail = nullptr;

  explicit operator bool() const { return result == ORTHOLAN_OK; }
};

inline Outcome Done() { return {}; }
Outcome NullArgument();
Outcome NotFound();
// A refusal by the library's own status.
Outcome Refused(ortholan_result result, Status status, const char* detail = nullptr);
// A refusal that left its cause in the thread's last error; `status` where it left none. Out of
// memory is told apart.
Outcome RefusedByLastError(ortholan_result result, Status status, const char* detail = nullptr);
// A copy of `detail` that stays until the next one in this thread.
const char* KeptDetail(std::string_view detail);
// The exception in flight.
Outcome FromException();

// Keeps the outcome, a failure, for the ortholan_last_ functions of this thread.
ortholan_result Report(const char* function, const Outcome& outcome);

// The last error starts at 0, so that what RefusedByLastError finds there comes from this call.
template <typename Body>
ortholan_result Call(const char* function, const Body& body) noexcept {
  SetLastError(ERROR_SUCCESS);
  Outcome outcome;
  try {
    outcome = body();
  } catch (...) {
    outcome = FromException();
  }
  return outcome ? ORTHOLAN_OK : Report(function, outcome);
}

// Makes the outputs null or 0, which they stay where the call fails. False where one is missing.
template <typename... Values>
bool Clear(Values*... outputs) {
  ((outputs != nullptr ? static_cast<void>(*outputs = Values()) : static_cast<void>(0)), ...);
  return (... && (outputs != nullptr));
}

}  // namespace Ortholan::capi

#endif  // ORTHOLAN_CAPI_CALL_H_
