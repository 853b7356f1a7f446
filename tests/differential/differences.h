// Differences between two implementations that are known and meant: one line a rule. A difference
// that no rule explains fails the test, and so does a rule that explains none.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_DIFFERENCES_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_DIFFERENCES_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <iostream>
#include <string>
#include <vector>

namespace Ortholan::testing {

template <class Case>
struct Rule {
  const char* label;
  const char* reason;
  bool (*applies)(const Case&);
  bool rare = false;  // no record of tests/data needs it
};

// Counts what the rules of a table explain.
template <class Case>
class Differences {
 public:
  template <size_t N>
  explicit Differences(const Rule<Case> (&rules)[N]) : rules_(rules, rules + N), counts_(N) {}

  // Whether a rule explains the case; the first that does is counted.
  bool Explain(const Case& difference) {
    for (size_t i = 0; i < rules_.size(); ++i) {
      if (!rules_[i].applies(difference)) continue;
      ++counts_[i];
      return true;
    }
    return false;
  }

  void ExpectEachApplied() const {
    for (size_t i = 0; i < rules_.size(); ++i) {
      EXPECT_TRUE(rules_[i].rare || counts_[i] > 0) << rules_[i].label << ": explains nothing";
      std::cout << "  " << counts_[i] << "  " << rules_[i].label << " (" << rules_[i].reason
                << ")\n";
    }
  }

 private:
  std::vector<Rule<Case>> rules_;
  std::vector<size_t> counts_;
};

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_DIFFERENCES_H_
