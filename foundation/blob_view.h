// The platform's blobs as views.
#ifndef ORTHOLAN_FOUNDATION_BLOB_VIEW_H_
#define ORTHOLAN_FOUNDATION_BLOB_VIEW_H_

#include <ortholan/platform.h>

#include "bytes/byte_view.h"

namespace Ortholan {

// A blob with a size and no pointer holds nothing that could be read.
inline ByteView ViewOf(const CRYPT_DATA_BLOB& blob) { return AsBytes(blob.pbData, blob.cbData); }

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_BLOB_VIEW_H_
