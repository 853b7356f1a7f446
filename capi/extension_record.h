// The DER record of an extension, for one and for a list.
#ifndef ORTHOLAN_CAPI_EXTENSION_RECORD_H_
#define ORTHOLAN_CAPI_EXTENSION_RECORD_H_

#include <ortholan/cert_extension.h>

#include "bytes/byte_view.h"
#include "capi/call.h"

namespace Ortholan::capi {

// Reads the one record that the octets have to be. ORTHOLAN_ERROR_DER.
Outcome ReadRecord(ByteView der, CertExtension* extension);
// Leaves the extension as it is, whose writer is not declared const. ORTHOLAN_ERROR_TYPE.
Outcome WriteRecord(CertExtension* extension, IdentObj* der);

}  // namespace Ortholan::capi

#endif  // ORTHOLAN_CAPI_EXTENSION_RECORD_H_
