// Rows that name a call of the library and what it answers: a test is a table of calls, its facts
// are a file of tests/data/vectors/.
//
//   call     label   in         out
//   trim     blanks  "  a "     a
//   encode   C       C=RU       30 0D 31 0B 30 09 06 03 55 04 06 13 02 52 55
//
//   TEST(Names, Answer) { RunCalls("names.tsv", {{"trim", Trim}, {"encode", Encode}}); }
//
// A column "where" limits a row to some of the realisations native, windows and wine; what differs
// among them is a row for each.
#ifndef ORTHOLAN_TESTS_SUPPORT_CALLS_H_
#define ORTHOLAN_TESTS_SUPPORT_CALLS_H_

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/vectors.h"

namespace Ortholan::testing {

// What a call answers, to be compared with the row's "out".
using Answer = std::string (*)(const VectorRow& row);

struct Call {
  std::string_view name;
  Answer answer;
};

// Each row's call, and that each call has a row; rows of a file without a column "call" are all of
// the one call given.
void RunCalls(const std::string& file, const std::vector<Call>& calls);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_CALLS_H_
