// Registers operations with Google Benchmark under "work/subject", so that the same work by several
// subjects makes one row of the results.
#ifndef ORTHOLAN_BENCH_MEASURE_H_
#define ORTHOLAN_BENCH_MEASURE_H_

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/allocations.h"

namespace Bench {

struct Case {
  std::string work;
  std::string subject;
  // Does the work once and tells whether its result is right; what is wrong is not timed.
  std::function<bool()> is_right;
  // Bytes of the result, where peak memory is to be set against them.
  size_t output = 0;
  // Also measure on two threads at once, as "work/subject/real_time/threads:N".
  bool threads = false;
};

// The check, run once however often the case is measured.
class Verdict {
 public:
  explicit Verdict(std::function<bool()> is_right) : is_right_(std::move(is_right)) {}
  bool Right() {
    if (!right_) right_ = is_right_();
    return *right_;
  }

 private:
  std::function<bool()> is_right_;
  std::optional<bool> right_;
};

// Whatever else wants the second core slows two threads down: only runs with both cores free tell
// what the library itself shares.
inline constexpr int kThreadRepetitions = 25;

// Measures `operation`, which takes nothing and returns what the compiler must not optimise away.
// Counters: allocs, heap blocks an operation; peak and output, bytes.
template <typename Operation>
void Add(const Case& c, Operation operation) {
  const auto verdict = std::make_shared<Verdict>(c.is_right);
  const size_t output = c.output;
  auto* added = benchmark::RegisterBenchmark(
      (c.work + '/' + c.subject).c_str(), [verdict, operation, output](benchmark::State& state) {
        if (state.thread_index() == 0 && !verdict->Right()) {
          state.SkipWithError("wrong result");
          return;
        }
        if (output != 0) {
          const PeakScope scope;
          benchmark::DoNotOptimize(operation());
          state.counters["peak"] = static_cast<double>(scope.bytes());
          state.counters["output"] = static_cast<double>(output);
        }
        const uint64_t before = AllocationCount();
        for (auto _ : state) benchmark::DoNotOptimize(operation());
        state.counters["allocs"] = benchmark::Counter(
            static_cast<double>(AllocationCount() - before), benchmark::Counter::kAvgIterations);
      });
  added->ComputeStatistics("fastest", [](const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
  });
  if (c.threads) added->Threads(1)->Threads(2)->UseRealTime()->Repetitions(kThreadRepetitions);
}

// Has the file that it stands in add its cases before the program measures.
class Registration {
 public:
  // `version` is a peer's, for the heading of its column.
  Registration(const char* subject, std::string version, void (*add_cases)());
};

// Adds the cases of all files.
void AddAllCases();

// The works that several subjects do.
inline constexpr char kTextToDer[] = "text to DER";
inline constexpr char kDerToText[] = "DER to text";
inline constexpr char kDerToStrings[] = "DER to (type, value) strings";
inline constexpr char kCompare[] = "parse two names and compare";
inline constexpr char kCompareDisguised[] = "same name, other case and blanks";
inline constexpr char kLargeToDer[] = "value of 1 MB, text to DER";
inline constexpr char kLargeToText[] = "value of 1 MB, DER to text";
inline constexpr char kManyToDer[] = "10,000 attributes, text to DER";
inline constexpr char kManyToText[] = "10,000 attributes, DER to text";
inline constexpr char kGeneralName[] = "DNS general name to text";
inline constexpr char kGeneralNameDer[] = "DNS general name, DER to text";
inline constexpr char kRegisteredId[] = "registered ID general name to text";
inline constexpr char kReadExtension[] = "extension record, read";
inline constexpr char kWriteExtension[] = "extension record, write";
inline constexpr char kConstraints[] = "10 names against 5 subtrees";
inline constexpr char kManyConstraints[] = "10,000 names against 10,000 subtrees";

inline constexpr size_t kLargeSize = 1000000;
inline constexpr size_t kManyCount = 10000;

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_MEASURE_H_
