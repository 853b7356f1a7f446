#include "platform/posix/der.h"

namespace Ortholan::posix {
namespace {

// Octets of the tag at the front of `in`; 0 where it is not all there.
std::size_t TagSize(Bytes in) {
  if (in.size == 0) return 0;
  if ((in.data[0] & 0x1F) != 0x1F) return 1;
  std::size_t size = 1;
  while (size < in.size && in.data[size] >= 0x80) ++size;
  return size < in.size ? size + 1 : 0;
}

}  // namespace

bool MeasureIndefinite(Bytes in, std::size_t* size) {
  std::size_t depth = 1;
  std::size_t at = 0;
  while (in.size - at >= 2) {
    if (in.data[at] == 0 && in.data[at + 1] == 0) {
      if (--depth == 0) {
        *size = at;
        return true;
      }
      at += 2;
      continue;
    }
    const bool constructed = (in.data[at] & 0x20) != 0;
    const std::size_t tag = TagSize({in.data + at, in.size - at});
    at += tag;
    if (tag == 0 || at == in.size) return false;
    if (in.data[at] == 0x80) {
      if (!constructed) return false;
      ++depth;
      ++at;
      continue;
    }
    // A definite length reads alike behind the last octet of any tag.
    Element element;
    if (!ReadElement({in.data + at - 1, in.size - at + 1}, &element)) return false;
    at += element.size - 1;
  }
  return false;
}

}  // namespace Ortholan::posix
