// Extensions of single vendors as structures: one shape each.
#include <ortholan/strict/extension_vendors.h>

#include "strict/extensions/vendor_shapes.h"
#include "strict/face/value_call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

ortholan_reason ortholan_entrust_version_read(ortholan_octets value, int32_t mode,
                                              ortholan_entrust_version* version,
                                              ortholan_refusal* refusal) {
  return Read(kEntrustVersionShape, value, mode, version, refusal);
}

ortholan_reason ortholan_proxy_information_read(ortholan_octets value, int32_t mode,
                                                ortholan_proxy_information* information,
                                                ortholan_refusal* refusal) {
  return Read(kProxyInformationShape, value, mode, information, refusal);
}

ortholan_reason ortholan_issuer_sign_tool_read(ortholan_octets value, int32_t mode,
                                               ortholan_issuer_sign_tool* tools,
                                               ortholan_refusal* refusal) {
  return Read(kIssuerSignToolShape, value, mode, tools, refusal);
}

ortholan_reason ortholan_adobe_timestamp_read(ortholan_octets value, int32_t mode,
                                              ortholan_adobe_timestamp* timestamp,
                                              ortholan_refusal* refusal) {
  return Read(kAdobeTimestampShape, value, mode, timestamp, refusal);
}

ortholan_reason ortholan_adobe_archive_read(ortholan_octets value, int32_t mode,
                                            ortholan_adobe_archive* archive,
                                            ortholan_refusal* refusal) {
  return Read(kAdobeArchiveShape, value, mode, archive, refusal);
}
