#include "generalname/implicit_tag.h"

#include <limits>

#include "bytes/der_identifier.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "foundation/blob_view.h"
#include "foundation/element_header.h"
#include "foundation/report.h"

namespace Ortholan {
IdentObj WithContextTag(const IdentObj& element, DWORD tag) {
  const ByteView bytes = ViewOf(element);
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
