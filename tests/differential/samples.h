// The records that another implementation is asked about too, and spoiled copies of them.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_SAMPLES_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_SAMPLES_H_

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Ortholan::testing {

// The octets of each record in the file of that name: those of tests/data, and where the
// environment variable ORTHOLAN_MORE_DATA names a directory, those of its file of that name too.
// A record is a line: octets in hex of either case behind an optional word, up to the first tab.
std::vector<std::string> Samples(const std::string& file);

// Calls `use` with `count` spoiled copies of `octets`, the same ones in every run: an octet
// replaced, the end cut off, or the length of an element changed.
void ForEachMutation(const std::string& octets, size_t count,
                     const std::function<void(const std::string&)>& use);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_SAMPLES_H_
