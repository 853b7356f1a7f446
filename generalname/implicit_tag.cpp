#include "generalname/implicit_tag.h"

#include <limits>

#include "foundation/element_header.h"
#include "foundation/element_writer.h"
#include "foundation/status_code.h"

namespace Ortholan {
namespace {

// Identifier octets as they stand, the 1F form with however many groups it was written.
size_t IdentifierOctets(ByteView element) {
  size_t octets = 1;
  if ((element[0] & kTagMask) == kHighTagNumber) {
    while ((element[octets] & kLongForm) != 0) ++octets;
    ++octets;
  }
  return octets;
}

}  // namespace

IdentObj WithContextTag(const IdentObj& element, DWORD tag) {
  const ByteView bytes(element);
  ElementHeader header;
  if (ReadHeader(bytes, &header) != Status::kOk) return element;
  const ByteView rest = bytes.From(IdentifierOctets(bytes));
  const size_t size = IdentifierSize(tag) + rest.size;
  if (size > std::numeric_limits<DWORD>::max()) ThrowNoMemory();
  IdentObj tagged;
  tagged.Allocate(static_cast<DWORD>(size));
  WriteBytes(WriteIdentifier(tagged.pbData, kContextSpecific | kConstructed, tag), rest);
  return tagged;
}

}  // namespace Ortholan
