// A call made to fail, and how the operation above it answers.

#ifndef ORTHOLAN_TESTS_FAULTS_ROWS_H_
#define ORTHOLAN_TESTS_FAULTS_ROWS_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/faults/plan.h"

namespace Ortholan::testing {

struct Row {
  const char* call;
  int number;
  const char* label;
  std::string (*run)();
  const char* outcome;
};

template <size_t N>
void RunRows(const Row (&rows)[N]) {
  constexpr DWORD kUntouched = 77;
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.call) + ": " + row.label);
    SetLastError(kUntouched);
    plan = {row.call, row.number};
    const std::string outcome = row.run();
    EXPECT_LT(plan.number, 0) << "the call was not made";
    plan = {};
    EXPECT_EQ(row.outcome, outcome);
  }
}

// "true" or "false", and the last error.
inline std::string Told(bool done) {
  return (done ? "true " : "false ") + std::to_string(GetLastError());
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_FAULTS_ROWS_H_
