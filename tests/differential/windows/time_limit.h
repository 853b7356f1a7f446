// Calls of the system with a limit to the time they may take: some of its converters never return.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_

#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <utility>

namespace Ortholan::testing {

// What `call` returns, run on a thread of its own; nothing where that takes more than ten seconds.
// The thread is then left to itself and ends with the process: `call` owns what it uses.
template <class Call>
auto WithinTimeLimit(Call call) -> std::optional<decltype(call())> {
  std::packaged_task<decltype(call())()> task(std::move(call));
  std::future<decltype(call())> answer = task.get_future();
  std::thread(std::move(task)).detach();
  if (answer.wait_for(std::chrono::seconds(10)) != std::future_status::ready) return std::nullopt;
  return answer.get();
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_WINDOWS_TIME_LIMIT_H_
