// Pins the structures that applications and the platform share: the same sizes and offsets
// everywhere, those of 64-bit Windows.

#include <ortholan/platform.h>

#include <cstddef>

namespace Ortholan {

static_assert(sizeof(void*) == 8, "the structures are laid out for 64-bit pointers");

static_assert(sizeof(BYTE) == 1 && sizeof(WORD) == 2 && sizeof(DWORD) == 4);
static_assert(sizeof(BOOL) == 4 && sizeof(UINT) == 4 && sizeof(HMODULE) == 8);

static_assert(sizeof(FILETIME) == 8 && offsetof(FILETIME, dwHighDateTime) == 4);
static_assert(sizeof(SYSTEMTIME) == 16 && offsetof(SYSTEMTIME, wMilliseconds) == 14);

static_assert(sizeof(CRYPT_DATA_BLOB) == 16 && offsetof(CRYPT_DATA_BLOB, pbData) == 8);
static_assert(sizeof(CRYPT_BIT_BLOB) == 24 && offsetof(CRYPT_BIT_BLOB, cUnusedBits) == 16);

static_assert(sizeof(CERT_NAME_VALUE) == 24 && offsetof(CERT_NAME_VALUE, Value) == 8);
static_assert(sizeof(CERT_RDN_ATTR) == 32 && offsetof(CERT_RDN_ATTR, dwValueType) == 8 &&
              offsetof(CERT_RDN_ATTR, Value) == 16);
static_assert(sizeof(CERT_RDN) == 16 && offsetof(CERT_RDN, rgRDNAttr) == 8);
static_assert(sizeof(CERT_NAME_INFO) == 16 && offsetof(CERT_NAME_INFO, rgRDN) == 8);

static_assert(sizeof(CERT_EXTENSION) == 32 && offsetof(CERT_EXTENSION, fCritical) == 8 &&
              offsetof(CERT_EXTENSION, Value) == 16);
static_assert(sizeof(CERT_BASIC_CONSTRAINTS2_INFO) == 12 &&
              offsetof(CERT_BASIC_CONSTRAINTS2_INFO, dwPathLenConstraint) == 8);
static_assert(sizeof(CERT_ENHKEY_USAGE) == 16 &&
              offsetof(CERT_ENHKEY_USAGE, rgpszUsageIdentifier) == 8);
static_assert(sizeof(CERT_OTHER_NAME) == 24 && offsetof(CERT_OTHER_NAME, Value) == 8);
static_assert(sizeof(CERT_ALT_NAME_ENTRY) == 24 &&
              offsetof(CERT_ALT_NAME_ENTRY, pwszDNSName) == 8 &&
              offsetof(CERT_ALT_NAME_ENTRY, IPAddress) == 8);
static_assert(sizeof(CERT_ALT_NAME_INFO) == 16 && offsetof(CERT_ALT_NAME_INFO, rgAltEntry) == 8);
static_assert(sizeof(CERT_AUTHORITY_KEY_ID2_INFO) == 48 &&
              offsetof(CERT_AUTHORITY_KEY_ID2_INFO, AuthorityCertIssuer) == 16 &&
              offsetof(CERT_AUTHORITY_KEY_ID2_INFO, AuthorityCertSerialNumber) == 32);

static_assert(offsetof(CRYPT_OID_INFO, pszOID) == 8 && offsetof(CRYPT_OID_INFO, pwszName) == 16 &&
              offsetof(CRYPT_OID_INFO, dwGroupId) == 24 &&
              offsetof(CRYPT_OID_INFO, ExtraInfo) == 32);

}  // namespace Ortholan
