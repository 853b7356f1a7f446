// Extensions of single vendors and communities, taken apart as those of
// <ortholan/strict/extension_values.h> are: Entrust's version, proxy certificates, signing tools,
// Adobe's timestamps and revocation information.
#ifndef ORTHOLAN_STRICT_EXTENSION_VENDORS_H_
#define ORTHOLAN_STRICT_EXTENSION_VENDORS_H_

#include <ortholan/strict/extension_values.h>

#ifdef __cplusplus
extern "C" {
#endif

// entrustVersInfo: flags.
enum {
  ORTHOLAN_ENTRUST_KEY_UPDATE_ALLOWED = 1,
  ORTHOLAN_ENTRUST_NEW_EXTENSIONS = 2,
  ORTHOLAN_ENTRUST_PKIX_CERTIFICATE = 4,
  ORTHOLAN_ENTRUST_ENTERPRISE_CATEGORY = 8,
  ORTHOLAN_ENTRUST_WEB_CATEGORY = 16,
  ORTHOLAN_ENTRUST_SET_CATEGORY = 32
};
// entrustVersInfo
typedef struct ortholan_entrust_version {
  ortholan_octets version;  // ASCII, "V8.1"
  ortholan_bits flags;
} ortholan_entrust_version;
// Reads entrustVersInfo.
ORTHOLAN_EXPORT ortholan_reason ortholan_entrust_version_read(ortholan_octets value, int32_t mode,
                                                              ortholan_entrust_version* version,
                                                              ortholan_refusal* refusal);

// ProxyPolicy (RFC 3820 3.8.2)
typedef struct ortholan_proxy_policy {
  ortholan_octets language;  // content octets of an identifier
  ortholan_octets policy;    // in that language; optional
} ortholan_proxy_policy;
// proxyCertInfo (RFC 3820 3.8)
typedef struct ortholan_proxy_information {
  ortholan_integer path_length;  // optional
  ortholan_proxy_policy policy;
} ortholan_proxy_information;
// Reads proxyCertInfo.
ORTHOLAN_EXPORT ortholan_reason
ortholan_proxy_information_read(ortholan_octets value, int32_t mode,
                                ortholan_proxy_information* information, ortholan_refusal* refusal);

// issuerSignTool: the tools of a signing authority, and the numbers of their own certificates.
// subjectSignTool is a string by itself.
typedef struct ortholan_issuer_sign_tool {
  ortholan_string tool;
  ortholan_string authority_tool;
  ortholan_string tool_certificate;
  ortholan_string authority_tool_certificate;
} ortholan_issuer_sign_tool;
// Reads issuerSignTool.
ORTHOLAN_EXPORT ortholan_reason ortholan_issuer_sign_tool_read(ortholan_octets value, int32_t mode,
                                                               ortholan_issuer_sign_tool* tools,
                                                               ortholan_refusal* refusal);

// adobeTimestamp: where timestamps for signatures by this key are made.
typedef struct ortholan_adobe_timestamp {
  ortholan_integer version;
  ortholan_octets location;  // a whole GeneralName
  int32_t needs_authentication;
} ortholan_adobe_timestamp;
// Reads adobeTimestamp.
ORTHOLAN_EXPORT ortholan_reason ortholan_adobe_timestamp_read(ortholan_octets value, int32_t mode,
                                                              ortholan_adobe_timestamp* timestamp,
                                                              ortholan_refusal* refusal);

// adobeArchiveRevInfo: revocation information goes into signatures by this key.
typedef struct ortholan_adobe_archive {
  ortholan_integer version;
} ortholan_adobe_archive;
// Reads adobeArchiveRevInfo.
ORTHOLAN_EXPORT ortholan_reason ortholan_adobe_archive_read(ortholan_octets value, int32_t mode,
                                                            ortholan_adobe_archive* archive,
                                                            ortholan_refusal* refusal);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSION_VENDORS_H_
