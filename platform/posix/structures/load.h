// Values out of structures that need not be aligned.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_LOAD_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_LOAD_H_

#include <ortholan/platform.h>

#include <cstring>

#include "bytes/byte_view.h"

namespace Ortholan::posix {

template <class Value>
Value Load(const BYTE* at) {
  Value value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

// False for a blob that counts octets and has none.
inline bool LoadOctets(const BYTE* at, ByteView* octets) {
  const auto blob = Load<CRYPT_DATA_BLOB>(at);
  *octets = {blob.pbData, blob.cbData};
  return blob.pbData != nullptr || blob.cbData == 0;
}

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_LOAD_H_
