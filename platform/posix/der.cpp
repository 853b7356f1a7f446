#include "platform/posix/der.h"

namespace Ortholan::posix {
bool MeasureIndefinite(ByteView in, std::size_t* size) {
  std::size_t depth = 1;
  std::size_t at = 0;
  while (in.size - at >= 2) {
    if (in[at] == 0 && in[at + 1] == 0) {
      if (--depth == 0) {
        *size = at;
        return true;
      }
      at += 2;
      continue;
    }
    const bool constructed = (in[at] & kConstructed) != 0;
    const std::size_t tag = IdentifierOctets(in.From(at));
    at += tag;
    if (tag == 0 || at == in.size) return false;
    if (in[at] == kLongForm) {
      if (!constructed) return false;
      ++depth;
      ++at;
      continue;
    }
    // A definite length reads alike behind the last octet of any tag.
    Element element;
    if (!ReadElement(in.From(at - 1), &element)) return false;
    at += element.whole.size - 1;
  }
  return false;
}

}  // namespace Ortholan::posix
