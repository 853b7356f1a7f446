#include "platform/posix/structures/set_order.h"

#include <algorithm>
#include <memory>
#include <new>

#include "bytes/set_order.h"
#include "platform/posix/der.h"

namespace Ortholan::posix {
namespace {

std::size_t Split(ByteView content, ByteView* elements) {
  std::size_t count = 0;
  Element element;
  for (; !content.empty() && TakeElement(&content, &element) == ERROR_SUCCESS; ++count) {
    if (elements != nullptr) elements[count] = element.whole;
  }
  return count;
}

}  // namespace

bool SortSet(BYTE* content, std::size_t size) {
  const std::size_t count = Split({content, size}, nullptr);
  const std::unique_ptr<ByteView[]> elements(new (std::nothrow) ByteView[count]);
  const std::unique_ptr<BYTE[]> sorted(new (std::nothrow) BYTE[size]);
  if (elements == nullptr || sorted == nullptr) return false;
  Split({content, size}, elements.get());
  std::sort(elements.get(), elements.get() + count,
            [](ByteView a, ByteView b) { return !IsAscending(b, a); });
  BYTE* end = sorted.get();
  for (std::size_t i = 0; i < count; ++i) end = WriteBytes(end, elements[i]);
  // Octets that are no element, which a caller's own encoding may end in, stay at the end.
  std::copy(sorted.get(), end, content);
  return true;
}

}  // namespace Ortholan::posix
