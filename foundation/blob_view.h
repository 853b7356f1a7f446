// The platform's blobs as views.
#ifndef ORTHOLAN_FOUNDATION_BLOB_VIEW_H_
#define ORTHOLAN_FOUNDATION_BLOB_VIEW_H_

#include <ortholan/platform.h>

#include <cstring>

#include "bytes/byte_view.h"

namespace Ortholan {

// A blob with a size and no pointer holds nothing that could be read.
inline ByteView ViewOf(const CRYPT_DATA_BLOB& blob) { return AsBytes(blob.pbData, blob.cbData); }

// Where it is written, it is that many zero octets. Returns the end.
inline BYTE* WriteBlob(BYTE* out, const CRYPT_DATA_BLOB& blob) {
  if (blob.pbData != nullptr) return WriteBytes(out, ViewOf(blob));
  if (blob.cbData != 0) std::memset(out, 0, blob.cbData);
  return out + blob.cbData;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_BLOB_VIEW_H_
