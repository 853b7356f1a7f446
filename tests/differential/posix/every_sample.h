// One comparison over everything there is to ask: real records, spoiled ones, and crafted ones.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/differential/samples.h"
#include "tests/support/hex.h"

namespace Ortholan::testing {

// A record that shows what none of tests/data does, in hex.
struct Crafted {
  const char* label;
  const char* octets;
};

// How many records both sides read: whole ones, and spoiled copies of those of the file.
struct Agreed {
  size_t whole = 0;
  size_t spoiled = 0;
};

// Calls `compare`, which adds to the count that it is given, with each record.
template <size_t N, class Compare>
Agreed CompareEverySample(const char* file, size_t mutations, const Crafted (&crafted)[N],
                          Compare compare) {
  Agreed agreed;
  for (const std::string& octets : Samples(file)) {
    SCOPED_TRACE(Hex(octets));
    compare(octets, &agreed.whole);
    ForEachMutation(octets, mutations, [&](const std::string& mutation) {
      SCOPED_TRACE("spoiled: " + Hex(mutation));
      compare(mutation, &agreed.spoiled);
    });
  }
  for (const Crafted& record : crafted) {
    SCOPED_TRACE(record.label);
    compare(Octets(record.octets), &agreed.whole);
  }
  return agreed;
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_POSIX_EVERY_SAMPLE_H_
