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

static_assert(sizeof(CERT_EXTENSIONS) == 16 && offsetof(CERT_EXTENSIONS, rgExtension) == 8);
static_assert(sizeof(CRYPT_SEQUENCE_OF_ANY) == 16 && offsetof(CRYPT_SEQUENCE_OF_ANY, rgValue) == 8);
static_assert(sizeof(CRYPT_ALGORITHM_IDENTIFIER) == 24 &&
              offsetof(CRYPT_ALGORITHM_IDENTIFIER, Parameters) == 8);
static_assert(sizeof(CRYPT_ATTRIBUTE) == 24 && offsetof(CRYPT_ATTRIBUTE, cValue) == 8 &&
              offsetof(CRYPT_ATTRIBUTE, rgValue) == 16);
static_assert(sizeof(CRYPT_ATTRIBUTES) == 16 && offsetof(CRYPT_ATTRIBUTES, rgAttr) == 8);
static_assert(sizeof(CERT_BASIC_CONSTRAINTS_INFO) == 48 &&
              offsetof(CERT_BASIC_CONSTRAINTS_INFO, fPathLenConstraint) == 24 &&
              offsetof(CERT_BASIC_CONSTRAINTS_INFO, dwPathLenConstraint) == 28 &&
              offsetof(CERT_BASIC_CONSTRAINTS_INFO, cSubtreesConstraint) == 32 &&
              offsetof(CERT_BASIC_CONSTRAINTS_INFO, rgSubtreesConstraint) == 40);
static_assert(sizeof(CERT_AUTHORITY_KEY_ID_INFO) == 48 &&
              offsetof(CERT_AUTHORITY_KEY_ID_INFO, CertIssuer) == 16 &&
              offsetof(CERT_AUTHORITY_KEY_ID_INFO, CertSerialNumber) == 32);

static_assert(sizeof(CERT_POLICY_QUALIFIER_INFO) == 24 &&
              offsetof(CERT_POLICY_QUALIFIER_INFO, Qualifier) == 8);
static_assert(sizeof(CERT_POLICY_INFO) == 24 && offsetof(CERT_POLICY_INFO, cPolicyQualifier) == 8 &&
              offsetof(CERT_POLICY_INFO, rgPolicyQualifier) == 16);
static_assert(sizeof(CERT_POLICIES_INFO) == 16 && offsetof(CERT_POLICIES_INFO, rgPolicyInfo) == 8);
static_assert(sizeof(CERT_POLICY_QUALIFIER_NOTICE_REFERENCE) == 24 && sizeof(int) == 4 &&
              offsetof(CERT_POLICY_QUALIFIER_NOTICE_REFERENCE, cNoticeNumbers) == 8 &&
              offsetof(CERT_POLICY_QUALIFIER_NOTICE_REFERENCE, rgNoticeNumbers) == 16);
static_assert(sizeof(CERT_POLICY_QUALIFIER_USER_NOTICE) == 16 &&
              offsetof(CERT_POLICY_QUALIFIER_USER_NOTICE, pszDisplayText) == 8);
static_assert(sizeof(CERT_POLICY_MAPPING) == 16 &&
              offsetof(CERT_POLICY_MAPPING, pszSubjectDomainPolicy) == 8);
static_assert(sizeof(CERT_POLICY_MAPPINGS_INFO) == 16 &&
              offsetof(CERT_POLICY_MAPPINGS_INFO, rgPolicyMapping) == 8);
static_assert(sizeof(CERT_POLICY_CONSTRAINTS_INFO) == 16 &&
              offsetof(CERT_POLICY_CONSTRAINTS_INFO, dwRequireExplicitPolicySkipCerts) == 4 &&
              offsetof(CERT_POLICY_CONSTRAINTS_INFO, fInhibitPolicyMapping) == 8 &&
              offsetof(CERT_POLICY_CONSTRAINTS_INFO, dwInhibitPolicyMappingSkipCerts) == 12);
static_assert(sizeof(CERT_GENERAL_SUBTREE) == 40 &&
              offsetof(CERT_GENERAL_SUBTREE, dwMinimum) == 24 &&
              offsetof(CERT_GENERAL_SUBTREE, fMaximum) == 28 &&
              offsetof(CERT_GENERAL_SUBTREE, dwMaximum) == 32);
static_assert(sizeof(CERT_NAME_CONSTRAINTS_INFO) == 32 &&
              offsetof(CERT_NAME_CONSTRAINTS_INFO, rgPermittedSubtree) == 8 &&
              offsetof(CERT_NAME_CONSTRAINTS_INFO, cExcludedSubtree) == 16 &&
              offsetof(CERT_NAME_CONSTRAINTS_INFO, rgExcludedSubtree) == 24);
static_assert(sizeof(CRL_DIST_POINT_NAME) == 24 && offsetof(CRL_DIST_POINT_NAME, FullName) == 8);
static_assert(sizeof(CRL_DIST_POINT) == 64 && offsetof(CRL_DIST_POINT, ReasonFlags) == 24 &&
              offsetof(CRL_DIST_POINT, CRLIssuer) == 48);
static_assert(sizeof(CRL_DIST_POINTS_INFO) == 16 &&
              offsetof(CRL_DIST_POINTS_INFO, rgDistPoint) == 8);
static_assert(sizeof(CRL_ISSUING_DIST_POINT) == 64 &&
              offsetof(CRL_ISSUING_DIST_POINT, fOnlyContainsUserCerts) == 24 &&
              offsetof(CRL_ISSUING_DIST_POINT, fOnlyContainsCACerts) == 28 &&
              offsetof(CRL_ISSUING_DIST_POINT, OnlySomeReasonFlags) == 32 &&
              offsetof(CRL_ISSUING_DIST_POINT, fIndirectCRL) == 56);
static_assert(sizeof(CROSS_CERT_DIST_POINTS_INFO) == 16 &&
              offsetof(CROSS_CERT_DIST_POINTS_INFO, cDistPoint) == 4 &&
              offsetof(CROSS_CERT_DIST_POINTS_INFO, rgDistPoint) == 8);
static_assert(sizeof(CERT_ACCESS_DESCRIPTION) == 32 &&
              offsetof(CERT_ACCESS_DESCRIPTION, AccessLocation) == 8);
static_assert(sizeof(CERT_AUTHORITY_INFO_ACCESS) == 16 &&
              offsetof(CERT_AUTHORITY_INFO_ACCESS, rgAccDescr) == 8);
static_assert(sizeof(CERT_TEMPLATE_EXT) == 24 && offsetof(CERT_TEMPLATE_EXT, dwMajorVersion) == 8 &&
              offsetof(CERT_TEMPLATE_EXT, fMinorVersion) == 12 &&
              offsetof(CERT_TEMPLATE_EXT, dwMinorVersion) == 16);
static_assert(sizeof(CERT_QC_STATEMENT) == 24 && offsetof(CERT_QC_STATEMENT, StatementInfo) == 8);
static_assert(sizeof(CERT_QC_STATEMENTS_EXT_INFO) == 16 &&
              offsetof(CERT_QC_STATEMENTS_EXT_INFO, rgStatement) == 8);
static_assert(sizeof(CERT_HASHED_URL) == 48 && offsetof(CERT_HASHED_URL, Hash) == 24 &&
              offsetof(CERT_HASHED_URL, pwszUrl) == 40);
static_assert(sizeof(CERT_BIOMETRIC_DATA) == 64 && offsetof(CERT_BIOMETRIC_DATA, pszObjId) == 8 &&
              offsetof(CERT_BIOMETRIC_DATA, HashedUrl) == 16);
static_assert(sizeof(CERT_BIOMETRIC_EXT_INFO) == 16 &&
              offsetof(CERT_BIOMETRIC_EXT_INFO, rgBiometricData) == 8);

static_assert(offsetof(CRYPT_OID_INFO, pszOID) == 8 && offsetof(CRYPT_OID_INFO, pwszName) == 16 &&
              offsetof(CRYPT_OID_INFO, dwGroupId) == 24 &&
              offsetof(CRYPT_OID_INFO, ExtraInfo) == 32);

}  // namespace Ortholan
