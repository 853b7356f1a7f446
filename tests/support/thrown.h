// What an operation throws, as text to compare.

#ifndef ORTHOLAN_TESTS_SUPPORT_THROWN_H_
#define ORTHOLAN_TESTS_SUPPORT_THROWN_H_

#include <gtest/gtest.h>
#include <ortholan/status.h>

#include <string>

namespace Ortholan::testing {

// The XZEPStatus that `call` throws, code and operation: "206 ASNTGetSequence", or "16" where no
// operation is told; "0" where `call` returns.
template <class Call>
std::string Thrown(Call&& call) {
  try {
    call();
  } catch (const XZEPStatus& failure) {
    const std::string where = failure.GetMessageText();
    return std::to_string(failure.GetStatus()) + (where.empty() ? "" : " ") + where;
  }
  return "0";
}

// Checks `call(DWORD* status)` under both conventions and returns what it gave with a place for
// the status. `outcome` is what Thrown tells without one.
template <class Call>
auto Reported(Call&& call, const std::string& outcome) {
  EXPECT_EQ(Thrown([&] { call(nullptr); }), outcome);
  DWORD status = 7;
  auto result = call(&status);
  EXPECT_EQ(std::to_string(status), outcome.substr(0, outcome.find(' ')));
  return result;
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_THROWN_H_
