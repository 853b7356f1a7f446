// The lines of a file of test data.

#ifndef ORTHOLAN_TESTS_SUPPORT_DATA_LINES_H_
#define ORTHOLAN_TESTS_SUPPORT_DATA_LINES_H_

#include <fstream>
#include <string>
#include <vector>

namespace Ortholan::testing {

// Without empty lines and those that start with "#"; none where there is no such file.
inline std::vector<std::string> DataLines(const std::string& name) {
  std::ifstream file(ORTHOLAN_TEST_DATA "/" + name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty() && line.front() != '#') lines.push_back(line);
  }
  return lines;
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_DATA_LINES_H_
