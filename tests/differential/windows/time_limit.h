// Calls of the system with a limit to the time they may take: some of its converters never return.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_

#include <ortholan/platform.h>

#include <memory>
#include <optional>
#include <utility>

namespace Ortholan::testing {

// A call and what it returned, shared with the thread that makes it.
template <class Call>
struct LimitedCall {
  explicit LimitedCall(Call to_make) : call(std::move(to_make)) {}

  static DWORD WINAPI Make(void* argument) {
    const std::unique_ptr<std::shared_ptr<LimitedCall>> self(
        static_cast<std::shared_ptr<LimitedCall>*>(argument));
    (*self)->answer = (*self)->call();
    return 0;
  }

  Call call;
  std::optional<decltype(call())> answer;
};

// What `call` returns, run on a thread of its own; nothing where that takes longer.
// The thread is then left to itself and ends with the process: `call` owns what it uses.
template <class Call>
auto WithinTimeLimit(Call call, DWORD milliseconds = 10000) -> std::optional<decltype(call())> {
  using Limited = LimitedCall<Call>;
  const auto limited = std::make_shared<Limited>(std::move(call));
  auto argument = std::make_unique<std::shared_ptr<Limited>>(limited);
  const HANDLE thread = CreateThread(nullptr, 0, &Limited::Make, argument.get(), 0, nullptr);
  if (thread == nullptr) return std::nullopt;
  argument.release();
  const bool ended = WaitForSingleObject(thread, milliseconds) == WAIT_OBJECT_0;
  CloseHandle(thread);
  if (!ended) return std::nullopt;
  return std::move(limited->answer);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_
