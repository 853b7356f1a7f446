// The structures that CryptEncodeObject and CryptDecodeObject know.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_TABLE_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_TABLE_H_

#include <ortholan/platform.h>

#include <cstdint>

#include "platform/posix/structures/field.h"

namespace Ortholan::posix {

struct Structure {
  std::uintptr_t constant;  // the X509_ or PKCS_ constant's value
  const Field* field;       // the one element that it is written as
  std::size_t size;         // bytes of the structure itself
};

// By constant, or by the dotted text of an extension's identifier. Null where there is none.
const Structure* FindStructure(LPCSTR structType);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_TABLE_H_
