// One comparison over everything there is to ask: real records, spoiled ones, and crafted ones.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/differential/differences.h"
#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {

// A record that shows what none of tests/data does, in hex.
struct Crafted {
  const char* label;
  const char* octets;
};

// Reads every record by both sides: what both take has to be the same, what one refuses needs a
// rule. A Case is made from octets and tells `theirs.value`, null where the other side refuses, and
// `taken()` for this one.
template <class Case>
class Comparison {
 public:
  template <size_t M, size_t N>
  Comparison(const Rule<Case> (&they_refuse)[M], const Rule<Case> (&we_refuse)[N])
      : they_refuse_(they_refuse), we_refuse_(we_refuse) {}

  // Expects at least so many records that both sides read: whole ones, and spoiled copies of those
  // of the file.
  template <size_t N, class Same>
  void Run(const char* file, const Crafted (&crafted)[N], size_t whole, size_t spoiled, Same same) {
    constexpr size_t kMutations = 400;
    size_t spoiled_alike = 0;
    size_t alike = 0;
    for (const std::string& octets : Samples(file)) {
      SCOPED_TRACE(Hex(octets));
      alike += Compare(octets, same);
      ForEachMutation(octets, kMutations, [&](const std::string& mutation) {
        SCOPED_TRACE("spoiled: " + Hex(mutation));
        spoiled_alike += Compare(mutation, same);
      });
    }
    for (const Crafted& record : crafted) {
      SCOPED_TRACE(record.label);
      Compare(Octets(record.octets), same);
    }
    EXPECT_GT(alike, whole);
    EXPECT_GT(spoiled_alike, spoiled);
    they_refuse_.ExpectEachApplied();
    we_refuse_.ExpectEachApplied();
  }

 private:
  template <class Same>
  size_t Compare(const std::string& octets, Same same) {
    const Case record(octets);
    const bool accepted = record.theirs.value != nullptr;
    if (accepted && record.taken()) {
      same(record);
      return 1;
    }
    if (accepted) {
      EXPECT_TRUE(we_refuse_.Explain(record)) << "refused here alone";
    } else if (record.taken()) {
      EXPECT_TRUE(they_refuse_.Explain(record)) << record.theirs.reason;
    }
    return 0;
  }

  Differences<Case> they_refuse_;
  Differences<Case> we_refuse_;
};

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_
