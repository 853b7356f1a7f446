#include "names/encoder/rdn_writer.h"

#include <ortholan/status.h>

#include <limits>

#include "foundation/report.h"

namespace Ortholan {

bool AllocateName(uint64_t rdns, IdentObj* name, BYTE** out) {
  const uint64_t size = ElementSize(rdns);
  if (size > std::numeric_limits<DWORD>::max()) return FailWith(Status::kNoMemory);
  try {
    name->Allocate(static_cast<DWORD>(size));
  } catch (const XZEPStatus&) {
    return FailWith(Status::kNoMemory);
  }
  *out = WriteHeader(name->pbData, kSequenceOctet, rdns);
  return true;
}

}  // namespace Ortholan
