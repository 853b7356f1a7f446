#include "strict/der/set_order.h"

#include <algorithm>
#include <vector>

#include "strict/der/reader.h"

namespace Ortholan::strict {

void SortSetOf(uint8_t* elements, size_t size) {
  std::vector<ByteView> parts;
  bool sorted = true;
  Reader reader({elements, size}, Leniency::kLenient, nullptr);
  for (Element part; reader.Read(&part);) {
    sorted = sorted && (parts.empty() || IsAscending(parts.back(), part.bytes));
    parts.push_back(part.bytes);
  }
  if (sorted) return;
  std::stable_sort(parts.begin(), parts.end(),
                   [](ByteView a, ByteView b) { return !IsAscending(b, a); });
  std::vector<uint8_t> ordered;
  ordered.reserve(size);
  for (const ByteView part : parts) ordered.insert(ordered.end(), part.begin(), part.end());
  std::memcpy(elements, ordered.data(), size);
}

}  // namespace Ortholan::strict
