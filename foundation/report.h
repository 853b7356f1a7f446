// The ways in which operations report a status: an exception, a reported code, or a last-error
// code.
#ifndef ORTHOLAN_FOUNDATION_REPORT_H_
#define ORTHOLAN_FOUNDATION_REPORT_H_

#include <ortholan/platform.h>

#include "foundation/status_code.h"

namespace Ortholan {

// Throw XZEPStatus.
[[noreturn]] void Throw(const Fault& fault);
[[noreturn]] void ThrowNoMemory();

// Stores the code where the caller gave a place for it; otherwise a failure is thrown.
void ReportOrThrow(const Fault& fault, DWORD* status);

// Sets the thread's last-error code to the platform's code for `status`. Returns false, so that a
// refusal is one statement.
bool FailWith(Status status);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_REPORT_H_
