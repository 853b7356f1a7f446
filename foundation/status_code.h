// Results inside the library: a code to test, turned into an exception, a reported code or a
// last-error code only at the operation that promises one of these.
#ifndef ORTHOLAN_FOUNDATION_STATUS_CODE_H_
#define ORTHOLAN_FOUNDATION_STATUS_CODE_H_

#include <ortholan/platform.h>

namespace Ortholan {

enum class [[nodiscard]] Status : DWORD{
    kOk = 0,          kNotEncodable = 1, kNoMemory = 16, kBadArgument = 28,
    kWrongType = 131, kBadTag = 205,     kCorrupt = 206,
};

inline DWORD ToCode(Status status) { return static_cast<DWORD>(status); }

// A failure, or kOk, with the operation that it is reported under.
struct [[nodiscard]] Fault {
  Status status = Status::kOk;
  const char* where = nullptr;

  explicit operator bool() const { return status != Status::kOk; }
};

[[noreturn]] void Throw(const Fault& fault);
[[noreturn]] void ThrowNoMemory();

// Stores the code where the caller gave a place for it; otherwise a failure is thrown.
void ReportOrThrow(const Fault& fault, DWORD* status);

// Sets the thread's last-error code to the platform's code for `status`. Returns false, so that a
// refusal is one statement.
bool FailWith(Status status);

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_STATUS_CODE_H_
