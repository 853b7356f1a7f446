// How many comparisons may still be made: the bound of the work for names and subtrees of
// strangers.
#ifndef ORTHOLAN_STRICT_CONSTRAINTS_BUDGET_H_
#define ORTHOLAN_STRICT_CONSTRAINTS_BUDGET_H_

#include <cstdint>

namespace Ortholan::strict {

class Budget {
 public:
  explicit Budget(uint64_t comparisons) : left_(comparisons) {}

  // False once they are used up.
  bool Take(uint64_t comparisons = 1) {
    if (comparisons > left_) {
      left_ = 0;
      is_spent_ = true;
      return false;
    }
    left_ -= comparisons;
    return true;
  }

  bool IsSpent() const { return is_spent_; }

 private:
  uint64_t left_;
  bool is_spent_ = false;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CONSTRAINTS_BUDGET_H_
