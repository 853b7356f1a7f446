// Inputs changed a little, the same ones in every run: octets flipped, replaced, put in, taken out,
// copied elsewhere, lengths of elements made wrong or right again, and pieces of two inputs joined.
#ifndef ORTHOLAN_FUZZ_MUTATOR_H_
#define ORTHOLAN_FUZZ_MUTATOR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Ortholan::fuzzing {

// Numbers that look random and are the same everywhere (Marsaglia's xorshift).
class Numbers {
 public:
  uint32_t Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    return state_ ^= state_ << 5;
  }
  // 0 to `count` - 1; 0 for none.
  size_t Below(size_t count) { return count != 0 ? Next() % count : 0; }

 private:
  uint32_t state_ = 2463534242;
};

class Mutator {
 public:
  // At least one input, which must outlive the mutator.
  explicit Mutator(const std::vector<std::string>& inputs) : inputs_(inputs) {}

  // One of the inputs, changed in one to four places.
  std::string Next();

 private:
  void Change(std::string* octets);

  const std::vector<std::string>& inputs_;
  Numbers numbers_;
};

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_MUTATOR_H_
