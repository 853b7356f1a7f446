#include "examples/nearest.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace Example {
namespace {

// Letters to put in, take out, replace, or swap with their neighbour.
std::size_t Distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> before;
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, replaced});
      const bool isSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (isSwapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    before = last;
    last = row;
  }
  return last[b.size()];
}

}  // namespace

std::string DidYouMean(const std::string& text, const std::vector<std::string>& words) {
  // What nobody typed by mistake is not worth the time of a comparison.
  constexpr std::size_t kLongest = 40;
  std::string nearest;
  std::size_t least = kLongest;
  for (const std::string& word : words) {
    if (text.empty() || text.size() > kLongest) continue;
    const bool isPart = word.find(text) != std::string::npos;
    const std::size_t distance = isPart ? 1 : Distance(text, word);
    if (distance >= least || (!isPart && distance * 3 > word.size())) continue;
    least = distance;
    nearest = word;
  }
  return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

}  // namespace Example
