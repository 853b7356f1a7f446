// The platform's types, constants and calls as the library and its applications use them.
//
// On Windows this is the system's own header, and `Ortholan` merely names what lies in it. On other
// systems the same structures (with the layouts of 64-bit Windows), the same numbers and the same
// calls are declared here inside the namespace `Ortholan`, where they clash with nobody's. After
// `using namespace Ortholan;` one source text serves both:
//
//   DWORD size = 0;
//   if (!CryptEncodeObject(X509_ASN_ENCODING, X509_NAME_VALUE, &value, nullptr, &size)) {
//     return GetLastError();
//   }
//
// Structure types and constants keep the platform's names; constants are macros on Windows and
// typed values elsewhere, so they are written unqualified. A CRYPT_E_* code is signed on Windows:
// compare it as static_cast<DWORD>(code).
//
// Wide text holds one UTF-16 unit a wchar_t on every platform, also where wchar_t has four bytes.

#ifndef ORTHOLAN_PLATFORM_H_
#define ORTHOLAN_PLATFORM_H_

#include <ortholan/export.h>
#include <ortholan/runtime.h>

#if defined(_WIN32)

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// wincrypt.h needs windows.h before it.
#include <wincrypt.h>

// Macros of the system's header that would rename members of the library's string class.
#undef LoadString
#undef FormatMessage

namespace Ortholan {

using ::BOOL;
using ::BYTE;
using ::DWORD;
using ::HINSTANCE;
using ::HMODULE;
using ::LPCSTR;
using ::LPCWSTR;
using ::LPSTR;
using ::LPWSTR;
using ::UINT;
using ::WORD;

using ::FILETIME;
using ::SYSTEMTIME;

using ::_CRYPTOAPI_BLOB;
using ::CERT_BLOB;
using ::CERT_NAME_BLOB;
using ::CERT_RDN_VALUE_BLOB;
using ::CRYPT_ATTR_BLOB;
using ::CRYPT_DATA_BLOB;
using ::CRYPT_DER_BLOB;
using ::CRYPT_DIGEST_BLOB;
using ::CRYPT_HASH_BLOB;
using ::CRYPT_INTEGER_BLOB;
using ::CRYPT_OBJID_BLOB;
using ::CRYPT_UINT_BLOB;
using ::DATA_BLOB;

using ::CERT_ACCESS_DESCRIPTION;
using ::CERT_ALT_NAME_ENTRY;
using ::CERT_ALT_NAME_INFO;
using ::CERT_AUTHORITY_INFO_ACCESS;
using ::CERT_AUTHORITY_KEY_ID2_INFO;
using ::CERT_AUTHORITY_KEY_ID_INFO;
using ::CERT_BASIC_CONSTRAINTS2_INFO;
using ::CERT_BASIC_CONSTRAINTS_INFO;
using ::CERT_BIOMETRIC_DATA;
using ::CERT_BIOMETRIC_EXT_INFO;
using ::CERT_ENHKEY_USAGE;
using ::CERT_EXTENSION;
using ::CERT_EXTENSIONS;
using ::CERT_GENERAL_SUBTREE;
using ::CERT_HASHED_URL;
using ::CERT_NAME_CONSTRAINTS_INFO;
using ::CERT_NAME_INFO;
using ::CERT_NAME_VALUE;
using ::CERT_OTHER_NAME;
using ::CERT_POLICIES_INFO;
using ::CERT_POLICY_CONSTRAINTS_INFO;
using ::CERT_POLICY_INFO;
using ::CERT_POLICY_MAPPING;
using ::CERT_POLICY_MAPPINGS_INFO;
using ::CERT_POLICY_QUALIFIER_INFO;
using ::CERT_POLICY_QUALIFIER_NOTICE_REFERENCE;
using ::CERT_POLICY_QUALIFIER_USER_NOTICE;
using ::CERT_QC_STATEMENT;
using ::CERT_QC_STATEMENTS_EXT_INFO;
using ::CERT_RDN;
using ::CERT_RDN_ATTR;
using ::CERT_TEMPLATE_EXT;
using ::CRL_DIST_POINT;
using ::CRL_DIST_POINT_NAME;
using ::CRL_DIST_POINTS_INFO;
using ::CRL_ISSUING_DIST_POINT;
using ::CROSS_CERT_DIST_POINTS_INFO;
using ::CRYPT_ALGORITHM_IDENTIFIER;
using ::CRYPT_ATTRIBUTE;
using ::CRYPT_ATTRIBUTES;
using ::CRYPT_BIT_BLOB;
using ::CRYPT_OID_INFO;
using ::CRYPT_SEQUENCE_OF_ANY;
using ::CTL_USAGE;
using ::PCCRYPT_OID_INFO;
using ::PCERT_ALT_NAME_ENTRY;
using ::PCERT_EXTENSION;
using ::PCERT_NAME_INFO;
using ::PCERT_NAME_VALUE;
using ::PCERT_OTHER_NAME;
using ::PCERT_RDN;
using ::PCERT_RDN_ATTR;
using ::PCERT_RDN_VALUE_BLOB;

using ::CertRDNValueToStrA;
using ::CertRDNValueToStrW;
using ::CryptDecodeObject;
using ::CryptEncodeObject;
using ::CryptFindOIDInfo;
using ::FileTimeToSystemTime;
using ::FreeLibrary;
using ::GetLastError;
using ::GetModuleFileNameA;
using ::GetModuleHandleA;
using ::LoadLibraryA;
using ::LoadStringA;
using ::lstrlenA;
using ::lstrlenW;
using ::MultiByteToWideChar;
using ::SetLastError;
using ::SystemTimeToFileTime;
using ::WideCharToMultiByte;

}  // namespace Ortholan

#else

#include <cstdint>

// All of the library but its C interface; elsewhere than on Windows the platform's declarations
// too.
namespace Ortholan {

// The names and widths that they have on 64-bit Windows.
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using BOOL = std::int32_t;
using UINT = unsigned int;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
// A module that holds texts, opaque.
using HINSTANCE = void*;
using HMODULE = void*;

// The two values of BOOL; every other one but 0 counts as true.
inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

// 100-nanosecond steps since 1601-01-01 00:00 UTC.
struct FILETIME {
  DWORD dwLowDateTime;   // low 32 bits of the count
  DWORD dwHighDateTime;  // high 32 bits
};

// A time in UTC, proleptic Gregorian calendar.
struct SYSTEMTIME {
  WORD wYear;          // 1601 to 30827
  WORD wMonth;         // 1 to 12
  WORD wDayOfWeek;     // 0 is Sunday
  WORD wDay;           // 1 to 31
  WORD wHour;          // 0 to 23
  WORD wMinute;        // 0 to 59
  WORD wSecond;        // 0 to 59
  WORD wMilliseconds;  // 0 to 999
};

// Bytes with their number. Who owns them is said where a blob is handed over.
struct _CRYPTOAPI_BLOB {
  DWORD cbData;  // bytes
  BYTE* pbData;  // null where there are none
};
// The blob by what it holds.
using CERT_BLOB = _CRYPTOAPI_BLOB;
using CERT_NAME_BLOB = _CRYPTOAPI_BLOB;
using CERT_RDN_VALUE_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_ATTR_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_DATA_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_DER_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_DIGEST_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_HASH_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_INTEGER_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_OBJID_BLOB = _CRYPTOAPI_BLOB;
using CRYPT_UINT_BLOB = _CRYPTOAPI_BLOB;
using DATA_BLOB = _CRYPTOAPI_BLOB;
using PCERT_RDN_VALUE_BLOB = _CRYPTOAPI_BLOB*;

// A BIT STRING.
struct CRYPT_BIT_BLOB {
  DWORD cbData;       // bytes
  BYTE* pbData;       // first bit in the highest bit of the first byte
  DWORD cUnusedBits;  // low bits of the last byte that are no part of the string
};

// A string with its type.
struct CERT_NAME_VALUE {
  DWORD dwValueType;          // CERT_RDN_*
  CERT_RDN_VALUE_BLOB Value;  // types 12 and 13: UTF-16LE; 1: a whole element; else its octets
};
// Pointer to it.
using PCERT_NAME_VALUE = CERT_NAME_VALUE*;

// One attribute (X.501 AttributeTypeAndValue).
struct CERT_RDN_ATTR {
  LPSTR pszObjId;             // dotted text
  DWORD dwValueType;          // CERT_RDN_*
  CERT_RDN_VALUE_BLOB Value;  // bytes as the type has them
};
// Pointer to it.
using PCERT_RDN_ATTR = CERT_RDN_ATTR*;

// A RelativeDistinguishedName: a set of attributes.
struct CERT_RDN {
  DWORD cRDNAttr;            // number of attributes
  PCERT_RDN_ATTR rgRDNAttr;  // array of them
};
// Pointer to it.
using PCERT_RDN = CERT_RDN*;

// A Name as a tree.
struct CERT_NAME_INFO {
  DWORD cRDN;       // number of RDNs
  PCERT_RDN rgRDN;  // array of them, in the order of the encoding
};
// Pointer to it.
using PCERT_NAME_INFO = CERT_NAME_INFO*;

// One extension (RFC 5280 4.1).
struct CERT_EXTENSION {
  LPSTR pszObjId;          // dotted text
  BOOL fCritical;          // TRUE for a critical one
  CRYPT_OBJID_BLOB Value;  // content of the OCTET STRING
};
// Pointer to it.
using PCERT_EXTENSION = CERT_EXTENSION*;

// Extensions (RFC 5280 4.1).
struct CERT_EXTENSIONS {
  DWORD cExtension;             // number of extensions
  PCERT_EXTENSION rgExtension;  // array of them
};

// What the registry knows of an identifier.
struct CRYPT_OID_INFO {
  DWORD cbSize;      // bytes of this structure
  LPCSTR pszOID;     // dotted text
  LPCWSTR pwszName;  // display name, "CN"
  DWORD dwGroupId;   // CRYPT_RDN_ATTR_OID_GROUP_ID for attributes
  union {
    DWORD dwValue;   // not used for attributes
    DWORD Algid;     // the same octets
    DWORD dwLength;  // the same octets
  };
  CRYPT_DATA_BLOB ExtraInfo;  // empty here
};
// Pointer to it; the record lives as long as the process.
using PCCRYPT_OID_INFO = const CRYPT_OID_INFO*;

// Whole elements one after another.
struct CRYPT_SEQUENCE_OF_ANY {
  DWORD cValue;             // number of elements
  CRYPT_DER_BLOB* rgValue;  // array of them
};

// AlgorithmIdentifier (RFC 5280 4.1.1.2).
struct CRYPT_ALGORITHM_IDENTIFIER {
  LPSTR pszObjId;               // dotted text
  CRYPT_OBJID_BLOB Parameters;  // one whole element; no bytes: absent
};

// Attribute (X.501 13.3).
struct CRYPT_ATTRIBUTE {
  LPSTR pszObjId;            // dotted text
  DWORD cValue;              // number of values
  CRYPT_ATTR_BLOB* rgValue;  // array of them, each one whole element
};

// SubjectDirectoryAttributes (RFC 5280 4.2.1.8).
struct CRYPT_ATTRIBUTES {
  DWORD cAttr;              // number of attributes
  CRYPT_ATTRIBUTE* rgAttr;  // array of them
};

// BasicConstraints as extension 2.5.29.10 had it before X.509 (1997).
struct CERT_BASIC_CONSTRAINTS_INFO {
  CRYPT_BIT_BLOB SubjectType;            // CERT_CA_SUBJECT_FLAG, CERT_END_ENTITY_SUBJECT_FLAG
  BOOL fPathLenConstraint;               // the length below counts
  DWORD dwPathLenConstraint;             // authorities that may follow
  DWORD cSubtreesConstraint;             // number of names
  CERT_NAME_BLOB* rgSubtreesConstraint;  // array of them, the encoding of a Name each
};

// BasicConstraints (RFC 5280 4.2.1.9).
struct CERT_BASIC_CONSTRAINTS2_INFO {
  BOOL fCA;                   // the subject is an authority
  BOOL fPathLenConstraint;    // the length below counts
  DWORD dwPathLenConstraint;  // authorities that may follow
};

// ExtKeyUsageSyntax (RFC 5280 4.2.1.12).
struct CTL_USAGE {
  DWORD cUsageIdentifier;       // number of purposes
  LPSTR* rgpszUsageIdentifier;  // array of dotted texts
};
// The structure by its purpose.
using CERT_ENHKEY_USAGE = CTL_USAGE;

// An otherName (RFC 5280 4.2.1.6).
struct CERT_OTHER_NAME {
  LPSTR pszObjId;          // dotted text
  CRYPT_OBJID_BLOB Value;  // one whole element
};
// Pointer to it.
using PCERT_OTHER_NAME = CERT_OTHER_NAME*;

// One alternative name (RFC 5280 4.2.1.6 GeneralName).
struct CERT_ALT_NAME_ENTRY {
  DWORD dwAltNameChoice;  // CERT_ALT_NAME_*, one more than the tag number
  union {
    PCERT_OTHER_NAME pOtherName;   // choice 1
    LPWSTR pwszRfc822Name;         // choice 2, terminated
    LPWSTR pwszDNSName;            // choice 3, terminated
    CERT_NAME_BLOB DirectoryName;  // choice 5: the encoding of a Name
    LPWSTR pwszURL;                // choice 7, terminated
    CRYPT_DATA_BLOB IPAddress;     // choice 8: 4 or 16 octets, with a mask 8 or 32
    LPSTR pszRegisteredID;         // choice 9: dotted text
  };
};
// Pointer to it.
using PCERT_ALT_NAME_ENTRY = CERT_ALT_NAME_ENTRY*;

// GeneralNames (RFC 5280 4.2.1.6).
struct CERT_ALT_NAME_INFO {
  DWORD cAltEntry;                  // number of names
  PCERT_ALT_NAME_ENTRY rgAltEntry;  // array of them
};

// AuthorityKeyIdentifier as extension 2.5.29.1 had it before X.509 (1997).
struct CERT_AUTHORITY_KEY_ID_INFO {
  CRYPT_DATA_BLOB KeyId;                // no bytes: absent
  CERT_NAME_BLOB CertIssuer;            // the encoding of a Name; no bytes: absent
  CRYPT_INTEGER_BLOB CertSerialNumber;  // least significant byte first; no bytes: absent
};

// AuthorityKeyIdentifier (RFC 5280 4.2.1.1).
struct CERT_AUTHORITY_KEY_ID2_INFO {
  CRYPT_DATA_BLOB KeyId;                         // no bytes: absent
  CERT_ALT_NAME_INFO AuthorityCertIssuer;        // no names: absent
  CRYPT_INTEGER_BLOB AuthorityCertSerialNumber;  // least significant byte first
};

// PolicyQualifierInfo (RFC 5280 4.2.1.4).
struct CERT_POLICY_QUALIFIER_INFO {
  LPSTR pszPolicyQualifierId;  // dotted text
  CRYPT_OBJID_BLOB Qualifier;  // one whole element; no bytes: absent
};

// PolicyInformation (RFC 5280 4.2.1.4).
struct CERT_POLICY_INFO {
  LPSTR pszPolicyIdentifier;                      // dotted text
  DWORD cPolicyQualifier;                         // number of qualifiers
  CERT_POLICY_QUALIFIER_INFO* rgPolicyQualifier;  // array of them
};

// CertificatePolicies (RFC 5280 4.2.1.4).
struct CERT_POLICIES_INFO {
  DWORD cPolicyInfo;               // number of policies
  CERT_POLICY_INFO* rgPolicyInfo;  // array of them
};

// NoticeReference (RFC 5280 4.2.1.4).
struct CERT_POLICY_QUALIFIER_NOTICE_REFERENCE {
  LPSTR pszOrganization;  // terminated, octets as the encoding has them
  DWORD cNoticeNumbers;   // number of numbers
  int* rgNoticeNumbers;   // array of them
};

// UserNotice (RFC 5280 4.2.1.4).
struct CERT_POLICY_QUALIFIER_USER_NOTICE {
  CERT_POLICY_QUALIFIER_NOTICE_REFERENCE* pNoticeReference;  // null: absent
  LPWSTR pszDisplayText;                                     // terminated; null: absent
};

// One pair of PolicyMappings (RFC 5280 4.2.1.5).
struct CERT_POLICY_MAPPING {
  LPSTR pszIssuerDomainPolicy;   // dotted text
  LPSTR pszSubjectDomainPolicy;  // dotted text
};

// PolicyMappings (RFC 5280 4.2.1.5).
struct CERT_POLICY_MAPPINGS_INFO {
  DWORD cPolicyMapping;                  // number of pairs
  CERT_POLICY_MAPPING* rgPolicyMapping;  // array of them
};

// PolicyConstraints (RFC 5280 4.2.1.11).
struct CERT_POLICY_CONSTRAINTS_INFO {
  BOOL fRequireExplicitPolicy;             // the number below counts
  DWORD dwRequireExplicitPolicySkipCerts;  // certificates that come before
  BOOL fInhibitPolicyMapping;              // the number below counts
  DWORD dwInhibitPolicyMappingSkipCerts;   // certificates that come before
};

// GeneralSubtree (RFC 5280 4.2.1.10).
struct CERT_GENERAL_SUBTREE {
  CERT_ALT_NAME_ENTRY Base;
  DWORD dwMinimum;  // 0 where absent
  BOOL fMaximum;    // the number below counts
  DWORD dwMaximum;
};

// NameConstraints (RFC 5280 4.2.1.10).
struct CERT_NAME_CONSTRAINTS_INFO {
  DWORD cPermittedSubtree;                   // 0: absent
  CERT_GENERAL_SUBTREE* rgPermittedSubtree;  // array of them
  DWORD cExcludedSubtree;                    // 0: absent
  CERT_GENERAL_SUBTREE* rgExcludedSubtree;   // array of them
};

// DistributionPointName (RFC 5280 4.2.1.13).
struct CRL_DIST_POINT_NAME {
  DWORD dwDistPointNameChoice;  // CRL_DIST_POINT_*
  union {
    CERT_ALT_NAME_INFO FullName;  // choice 1; a name relative to the issuer has no place
  };
};

// DistributionPoint (RFC 5280 4.2.1.13).
struct CRL_DIST_POINT {
  CRL_DIST_POINT_NAME DistPointName;
  CRYPT_BIT_BLOB ReasonFlags;    // no bytes: absent
  CERT_ALT_NAME_INFO CRLIssuer;  // no names: absent
};

// CRLDistributionPoints (RFC 5280 4.2.1.13), FreshestCRL too.
struct CRL_DIST_POINTS_INFO {
  DWORD cDistPoint;             // number of points
  CRL_DIST_POINT* rgDistPoint;  // array of them
};

// IssuingDistributionPoint (RFC 5280 5.2.5), without onlyContainsAttributeCerts.
struct CRL_ISSUING_DIST_POINT {
  CRL_DIST_POINT_NAME DistPointName;
  BOOL fOnlyContainsUserCerts;
  BOOL fOnlyContainsCACerts;
  CRYPT_BIT_BLOB OnlySomeReasonFlags;  // no bytes: absent
  BOOL fIndirectCRL;
};

// Where certificates are that two authorities issued to each other (1.3.6.1.4.1.311.10.9.1).
struct CROSS_CERT_DIST_POINTS_INFO {
  DWORD dwSyncDeltaTime;            // seconds between updates; 0: absent
  DWORD cDistPoint;                 // number of points
  CERT_ALT_NAME_INFO* rgDistPoint;  // array of them
};

// AccessDescription (RFC 5280 4.2.2.1).
struct CERT_ACCESS_DESCRIPTION {
  LPSTR pszAccessMethod;  // dotted text
  CERT_ALT_NAME_ENTRY AccessLocation;
};

// AuthorityInfoAccessSyntax and SubjectInfoAccessSyntax (RFC 5280 4.2.2).
struct CERT_AUTHORITY_INFO_ACCESS {
  DWORD cAccDescr;                      // number of descriptions
  CERT_ACCESS_DESCRIPTION* rgAccDescr;  // array of them
};

// The template that a certificate was made by (1.3.6.1.4.1.311.21.7).
struct CERT_TEMPLATE_EXT {
  LPSTR pszObjId;  // dotted text
  DWORD dwMajorVersion;
  BOOL fMinorVersion;  // the number below counts
  DWORD dwMinorVersion;
};

// QCStatement (RFC 3739 3.2.6).
struct CERT_QC_STATEMENT {
  LPSTR pszStatementId;            // dotted text
  CRYPT_OBJID_BLOB StatementInfo;  // one whole element; no bytes: absent
};

// QCStatements (RFC 3739 3.2.6).
struct CERT_QC_STATEMENTS_EXT_INFO {
  DWORD cStatement;                // number of statements
  CERT_QC_STATEMENT* rgStatement;  // array of them
};

// Hash and place of what a certificate refers to.
struct CERT_HASHED_URL {
  CRYPT_ALGORITHM_IDENTIFIER HashAlgorithm;
  CRYPT_HASH_BLOB Hash;
  LPWSTR pwszUrl;  // terminated; null: absent
};

// BiometricData (RFC 3739 3.2.5).
struct CERT_BIOMETRIC_DATA {
  DWORD dwTypeOfBiometricDataChoice;  // CERT_BIOMETRIC_*_DATA_CHOICE
  union {
    DWORD dwPredefined;  // choice 1
    LPSTR pszObjId;      // choice 2: dotted text
  };
  CERT_HASHED_URL HashedUrl;
};

// BiometricSyntax (RFC 3739 3.2.5).
struct CERT_BIOMETRIC_EXT_INFO {
  DWORD cBiometricData;                  // number of data
  CERT_BIOMETRIC_DATA* rgBiometricData;  // array of them
};

// The encoding type of the two calls; certificates take the first, both are accepted.
inline constexpr DWORD X509_ASN_ENCODING = 0x00000001;
inline constexpr DWORD PKCS_7_ASN_ENCODING = 0x00010000;

// Structure types of CryptEncodeObject and CryptDecodeObject: small numbers in place of a pointer
// to the text of an object identifier.
inline const LPCSTR X509_EXTENSIONS = reinterpret_cast<LPCSTR>(5);
inline const LPCSTR X509_NAME_VALUE = reinterpret_cast<LPCSTR>(6);
inline const LPCSTR X509_NAME = reinterpret_cast<LPCSTR>(7);
inline const LPCSTR X509_AUTHORITY_KEY_ID = reinterpret_cast<LPCSTR>(9);
inline const LPCSTR X509_ALTERNATE_NAME = reinterpret_cast<LPCSTR>(12);
inline const LPCSTR X509_BASIC_CONSTRAINTS = reinterpret_cast<LPCSTR>(13);
inline const LPCSTR X509_KEY_USAGE = reinterpret_cast<LPCSTR>(14);
inline const LPCSTR X509_BASIC_CONSTRAINTS2 = reinterpret_cast<LPCSTR>(15);
inline const LPCSTR X509_CERT_POLICIES = reinterpret_cast<LPCSTR>(16);
inline const LPCSTR PKCS_UTC_TIME = reinterpret_cast<LPCSTR>(17);
inline const LPCSTR X509_UNICODE_NAME = reinterpret_cast<LPCSTR>(20);
inline const LPCSTR PKCS_ATTRIBUTE = reinterpret_cast<LPCSTR>(22);
inline const LPCSTR X509_UNICODE_NAME_VALUE = reinterpret_cast<LPCSTR>(24);
inline const LPCSTR X509_OCTET_STRING = reinterpret_cast<LPCSTR>(25);
inline const LPCSTR X509_BITS = reinterpret_cast<LPCSTR>(26);
inline const LPCSTR X509_INTEGER = reinterpret_cast<LPCSTR>(27);
inline const LPCSTR X509_MULTI_BYTE_INTEGER = reinterpret_cast<LPCSTR>(28);
inline const LPCSTR X509_ENUMERATED = reinterpret_cast<LPCSTR>(29);
inline const LPCSTR X509_CHOICE_OF_TIME = reinterpret_cast<LPCSTR>(30);
inline const LPCSTR X509_AUTHORITY_KEY_ID2 = reinterpret_cast<LPCSTR>(31);
inline const LPCSTR X509_AUTHORITY_INFO_ACCESS = reinterpret_cast<LPCSTR>(32);
inline const LPCSTR X509_SEQUENCE_OF_ANY = reinterpret_cast<LPCSTR>(34);
inline const LPCSTR X509_CRL_DIST_POINTS = reinterpret_cast<LPCSTR>(35);
inline const LPCSTR X509_ENHANCED_KEY_USAGE = reinterpret_cast<LPCSTR>(36);
inline const LPCSTR X509_MULTI_BYTE_UINT = reinterpret_cast<LPCSTR>(38);
inline const LPCSTR X509_QC_STATEMENTS_EXT = reinterpret_cast<LPCSTR>(42);
inline const LPCSTR X509_PKIX_POLICY_QUALIFIER_USERNOTICE = reinterpret_cast<LPCSTR>(46);
inline const LPCSTR X509_ISSUING_DIST_POINT = reinterpret_cast<LPCSTR>(54);
inline const LPCSTR X509_NAME_CONSTRAINTS = reinterpret_cast<LPCSTR>(55);
inline const LPCSTR X509_POLICY_MAPPINGS = reinterpret_cast<LPCSTR>(56);
inline const LPCSTR X509_POLICY_CONSTRAINTS = reinterpret_cast<LPCSTR>(57);
inline const LPCSTR X509_CROSS_CERT_DIST_POINTS = reinterpret_cast<LPCSTR>(58);
inline const LPCSTR X509_CERTIFICATE_TEMPLATE = reinterpret_cast<LPCSTR>(64);
inline const LPCSTR X509_BIOMETRIC_EXT = reinterpret_cast<LPCSTR>(71);
inline const LPCSTR X509_OBJECT_IDENTIFIER = reinterpret_cast<LPCSTR>(73);
inline const LPCSTR X509_ALGORITHM_IDENTIFIER = reinterpret_cast<LPCSTR>(74);
inline const LPCSTR X509_SUBJECT_DIR_ATTRS = reinterpret_cast<LPCSTR>(84);
// The same structures by another name.
inline const LPCSTR X509_SUBJECT_INFO_ACCESS = X509_AUTHORITY_INFO_ACCESS;
inline const LPCSTR X509_CRL_REASON_CODE = X509_ENUMERATED;
inline const LPCSTR PKCS_SMIME_CAPABILITIES = X509_QC_STATEMENTS_EXT;

// Identifiers of extensions whose structures the two calls know by them (RFC 5280 4.2, 5.2; RFC
// 3739 3.2; RFC 7633; Windows' own).
inline constexpr char szOID_AUTHORITY_KEY_IDENTIFIER[] = "2.5.29.1";
inline constexpr char szOID_LEGACY_POLICY_MAPPINGS[] = "2.5.29.5";
inline constexpr char szOID_SUBJECT_ALT_NAME[] = "2.5.29.7";
inline constexpr char szOID_ISSUER_ALT_NAME[] = "2.5.29.8";
inline constexpr char szOID_SUBJECT_DIR_ATTRS[] = "2.5.29.9";
inline constexpr char szOID_BASIC_CONSTRAINTS[] = "2.5.29.10";
inline constexpr char szOID_SUBJECT_KEY_IDENTIFIER[] = "2.5.29.14";
inline constexpr char szOID_KEY_USAGE[] = "2.5.29.15";
inline constexpr char szOID_SUBJECT_ALT_NAME2[] = "2.5.29.17";
inline constexpr char szOID_ISSUER_ALT_NAME2[] = "2.5.29.18";
inline constexpr char szOID_BASIC_CONSTRAINTS2[] = "2.5.29.19";
inline constexpr char szOID_CRL_NUMBER[] = "2.5.29.20";
inline constexpr char szOID_CRL_REASON_CODE[] = "2.5.29.21";
inline constexpr char szOID_DELTA_CRL_INDICATOR[] = "2.5.29.27";
inline constexpr char szOID_ISSUING_DIST_POINT[] = "2.5.29.28";
inline constexpr char szOID_NAME_CONSTRAINTS[] = "2.5.29.30";
inline constexpr char szOID_CRL_DIST_POINTS[] = "2.5.29.31";
inline constexpr char szOID_CERT_POLICIES[] = "2.5.29.32";
inline constexpr char szOID_POLICY_MAPPINGS[] = "2.5.29.33";
inline constexpr char szOID_AUTHORITY_KEY_IDENTIFIER2[] = "2.5.29.35";
inline constexpr char szOID_POLICY_CONSTRAINTS[] = "2.5.29.36";
inline constexpr char szOID_ENHANCED_KEY_USAGE[] = "2.5.29.37";
inline constexpr char szOID_FRESHEST_CRL[] = "2.5.29.46";
inline constexpr char szOID_INHIBIT_ANY_POLICY[] = "2.5.29.54";
inline constexpr char szOID_AUTHORITY_INFO_ACCESS[] = "1.3.6.1.5.5.7.1.1";
inline constexpr char szOID_BIOMETRIC_EXT[] = "1.3.6.1.5.5.7.1.2";
inline constexpr char szOID_QC_STATEMENTS_EXT[] = "1.3.6.1.5.5.7.1.3";
inline constexpr char szOID_SUBJECT_INFO_ACCESS[] = "1.3.6.1.5.5.7.1.11";
inline constexpr char szOID_TLS_FEATURES_EXT[] = "1.3.6.1.5.5.7.1.24";
inline constexpr char szOID_PKIX_POLICY_QUALIFIER_USERNOTICE[] = "1.3.6.1.5.5.7.2.2";
inline constexpr char szOID_CERT_EXTENSIONS[] = "1.3.6.1.4.1.311.2.1.14";
inline constexpr char szOID_RSA_certExtensions[] = "1.2.840.113549.1.9.14";
inline constexpr char szOID_RSA_SMIMECapabilities[] = "1.2.840.113549.1.9.15";
inline constexpr char szOID_NEXT_UPDATE_LOCATION[] = "1.3.6.1.4.1.311.10.2";
inline constexpr char szOID_CROSS_CERT_DIST_POINTS[] = "1.3.6.1.4.1.311.10.9.1";
inline constexpr char szOID_ENROLL_CERTTYPE_EXTENSION[] = "1.3.6.1.4.1.311.20.2";
inline constexpr char szOID_CERTSRV_CA_VERSION[] = "1.3.6.1.4.1.311.21.1";
inline constexpr char szOID_CERTSRV_PREVIOUS_CERT_HASH[] = "1.3.6.1.4.1.311.21.2";
inline constexpr char szOID_CRL_VIRTUAL_BASE[] = "1.3.6.1.4.1.311.21.3";
inline constexpr char szOID_CRL_NEXT_PUBLISH[] = "1.3.6.1.4.1.311.21.4";
inline constexpr char szOID_CERTIFICATE_TEMPLATE[] = "1.3.6.1.4.1.311.21.7";
inline constexpr char szOID_APPLICATION_CERT_POLICIES[] = "1.3.6.1.4.1.311.21.10";
inline constexpr char szOID_APPLICATION_POLICY_MAPPINGS[] = "1.3.6.1.4.1.311.21.11";
inline constexpr char szOID_APPLICATION_POLICY_CONSTRAINTS[] = "1.3.6.1.4.1.311.21.12";
inline constexpr char szOID_CRL_SELF_CDP[] = "1.3.6.1.4.1.311.21.14";
inline constexpr char szOID_CERTSRV_CROSSCA_VERSION[] = "1.3.6.1.4.1.311.21.22";

// Value types of one attribute, and the flags that may stand beside them.
inline constexpr DWORD CERT_RDN_TYPE_MASK = 0x000000FF;
inline constexpr DWORD CERT_RDN_FLAGS_MASK = 0xFF000000;
inline constexpr DWORD CERT_RDN_ANY_TYPE = 0;
inline constexpr DWORD CERT_RDN_ENCODED_BLOB = 1;
inline constexpr DWORD CERT_RDN_OCTET_STRING = 2;
inline constexpr DWORD CERT_RDN_NUMERIC_STRING = 3;
inline constexpr DWORD CERT_RDN_PRINTABLE_STRING = 4;
inline constexpr DWORD CERT_RDN_TELETEX_STRING = 5;
inline constexpr DWORD CERT_RDN_T61_STRING = 5;
inline constexpr DWORD CERT_RDN_VIDEOTEX_STRING = 6;
inline constexpr DWORD CERT_RDN_IA5_STRING = 7;
inline constexpr DWORD CERT_RDN_GRAPHIC_STRING = 8;
inline constexpr DWORD CERT_RDN_VISIBLE_STRING = 9;
inline constexpr DWORD CERT_RDN_ISO646_STRING = 9;
inline constexpr DWORD CERT_RDN_GENERAL_STRING = 10;
inline constexpr DWORD CERT_RDN_UNIVERSAL_STRING = 11;
inline constexpr DWORD CERT_RDN_INT4_STRING = 11;
inline constexpr DWORD CERT_RDN_BMP_STRING = 12;
inline constexpr DWORD CERT_RDN_UNICODE_STRING = 12;
inline constexpr DWORD CERT_RDN_UTF8_STRING = 13;
inline constexpr DWORD CERT_RDN_DISABLE_IE4_UTF8_FLAG = 0x01000000;
inline constexpr DWORD CERT_RDN_ENABLE_PUNYCODE_FLAG = 0x02000000;
inline constexpr DWORD CERT_RDN_FORCE_UTF8_UNICODE_FLAG = 0x10000000;
inline constexpr DWORD CERT_RDN_ENABLE_UTF8_UNICODE_FLAG = 0x20000000;
inline constexpr DWORD CERT_RDN_DISABLE_CHECK_TYPE_FLAG = 0x40000000;
inline constexpr DWORD CERT_RDN_ENABLE_T61_UNICODE_FLAG = 0x80000000;

// Name styles and the flags of the option words.
inline constexpr DWORD CERT_SIMPLE_NAME_STR = 1;
inline constexpr DWORD CERT_OID_NAME_STR = 2;
inline constexpr DWORD CERT_X500_NAME_STR = 3;
inline constexpr DWORD CERT_NAME_STR_DISABLE_IE4_UTF8_FLAG = 0x00010000;
inline constexpr DWORD CERT_NAME_STR_ENABLE_T61_UNICODE_FLAG = 0x00020000;
inline constexpr DWORD CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG = 0x00040000;
inline constexpr DWORD CERT_NAME_STR_FORCE_UTF8_DIR_STR_FLAG = 0x00080000;
inline constexpr DWORD CERT_NAME_STR_DISABLE_UTF8_DIR_STR_FLAG = 0x00100000;
inline constexpr DWORD CERT_NAME_STR_REVERSE_FLAG = 0x02000000;
inline constexpr DWORD CERT_NAME_STR_COMMA_FLAG = 0x04000000;
inline constexpr DWORD CERT_NAME_STR_CRLF_FLAG = 0x08000000;
inline constexpr DWORD CERT_NAME_STR_NO_QUOTING_FLAG = 0x10000000;
inline constexpr DWORD CERT_NAME_STR_NO_PLUS_FLAG = 0x20000000;
inline constexpr DWORD CERT_NAME_STR_SEMICOLON_FLAG = 0x40000000;

// Choices of CERT_ALT_NAME_ENTRY.
inline constexpr DWORD CERT_ALT_NAME_OTHER_NAME = 1;
inline constexpr DWORD CERT_ALT_NAME_RFC822_NAME = 2;
inline constexpr DWORD CERT_ALT_NAME_DNS_NAME = 3;
inline constexpr DWORD CERT_ALT_NAME_X400_ADDRESS = 4;
inline constexpr DWORD CERT_ALT_NAME_DIRECTORY_NAME = 5;
inline constexpr DWORD CERT_ALT_NAME_EDI_PARTY_NAME = 6;
inline constexpr DWORD CERT_ALT_NAME_URL = 7;
inline constexpr DWORD CERT_ALT_NAME_IP_ADDRESS = 8;
inline constexpr DWORD CERT_ALT_NAME_REGISTERED_ID = 9;

// Choices of CRL_DIST_POINT_NAME.
inline constexpr DWORD CRL_DIST_POINT_NO_NAME = 0;
inline constexpr DWORD CRL_DIST_POINT_FULL_NAME = 1;
inline constexpr DWORD CRL_DIST_POINT_ISSUER_RDN_NAME = 2;

// Choices of CERT_BIOMETRIC_DATA.
inline constexpr DWORD CERT_BIOMETRIC_PREDEFINED_DATA_CHOICE = 1;
inline constexpr DWORD CERT_BIOMETRIC_OID_DATA_CHOICE = 2;

// Bits of CERT_BASIC_CONSTRAINTS_INFO.
inline constexpr BYTE CERT_END_ENTITY_SUBJECT_FLAG = 0x40;
inline constexpr BYTE CERT_CA_SUBJECT_FLAG = 0x80;

// What CryptFindOIDInfo looks for, and where.
inline constexpr DWORD CRYPT_OID_INFO_OID_KEY = 1;
inline constexpr DWORD CRYPT_OID_INFO_NAME_KEY = 2;
inline constexpr DWORD CRYPT_RDN_ATTR_OID_GROUP_ID = 5;

// Code pages. The first two are UTF-8 here; 20127 is US-ASCII; there are no others.
inline constexpr UINT CP_ACP = 0;
inline constexpr UINT CP_THREAD_ACP = 3;
inline constexpr UINT CP_UTF8 = 65001;

// Flags of the two text conversions.
inline constexpr DWORD MB_ERR_INVALID_CHARS = 0x00000008;
inline constexpr DWORD WC_ERR_INVALID_CHARS = 0x00000080;
inline constexpr DWORD WC_NO_BEST_FIT_CHARS = 0x00000400;

// Last-error codes (docs/status-codes.md).
inline constexpr DWORD ERROR_SUCCESS = 0;
inline constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
inline constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
inline constexpr DWORD ERROR_ACCESS_DENIED = 5;
inline constexpr DWORD ERROR_INVALID_HANDLE = 6;
inline constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
inline constexpr DWORD ERROR_INVALID_DATA = 13;
inline constexpr DWORD ERROR_WRITE_FAULT = 29;
inline constexpr DWORD ERROR_READ_FAULT = 30;
inline constexpr DWORD ERROR_GEN_FAILURE = 31;
inline constexpr DWORD ERROR_HANDLE_EOF = 38;
inline constexpr DWORD ERROR_FILE_EXISTS = 80;
inline constexpr DWORD ERROR_CANNOT_MAKE = 82;
inline constexpr DWORD ERROR_INVALID_PARAMETER = 87;
inline constexpr DWORD ERROR_OPEN_FAILED = 110;
inline constexpr DWORD ERROR_DISK_FULL = 112;
inline constexpr DWORD ERROR_CALL_NOT_IMPLEMENTED = 120;
inline constexpr DWORD ERROR_INSUFFICIENT_BUFFER = 122;
inline constexpr DWORD ERROR_INVALID_NAME = 123;
inline constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
inline constexpr DWORD ERROR_NEGATIVE_SEEK = 131;
inline constexpr DWORD ERROR_BAD_ARGUMENTS = 160;
inline constexpr DWORD ERROR_ALREADY_EXISTS = 183;
inline constexpr DWORD ERROR_MORE_DATA = 234;
inline constexpr DWORD ERROR_INVALID_FLAGS = 1004;
inline constexpr DWORD ERROR_NO_UNICODE_TRANSLATION = 1113;
inline constexpr DWORD ERROR_LOGON_FAILURE = 1326;
inline constexpr DWORD ERROR_INTERNAL_ERROR = 1359;
inline constexpr DWORD ERROR_INTERNAL_DB_CORRUPTION = 1358;
inline constexpr DWORD ERROR_FUNCTION_FAILED = 1627;
inline constexpr DWORD ERROR_RESOURCE_NAME_NOT_FOUND = 1814;

// Last-error codes of encodings (docs/status-codes.md).
inline constexpr DWORD CRYPT_E_BAD_ENCODE = 0x80092002;
inline constexpr DWORD CRYPT_E_NOT_FOUND = 0x80092004;
inline constexpr DWORD CRYPT_E_INVALID_NUMERIC_STRING = 0x80092020;
inline constexpr DWORD CRYPT_E_INVALID_PRINTABLE_STRING = 0x80092021;
inline constexpr DWORD CRYPT_E_INVALID_IA5_STRING = 0x80092022;
inline constexpr DWORD CRYPT_E_INVALID_X500_STRING = 0x80092023;
inline constexpr DWORD CRYPT_E_NOT_CHAR_STRING = 0x80092024;
inline constexpr DWORD CRYPT_E_ASN1_ERROR = 0x80093100;
inline constexpr DWORD CRYPT_E_ASN1_EOD = 0x80093102;
inline constexpr DWORD CRYPT_E_ASN1_CORRUPT = 0x80093103;
inline constexpr DWORD CRYPT_E_ASN1_LARGE = 0x80093104;
inline constexpr DWORD CRYPT_E_ASN1_CONSTRAINT = 0x80093105;
inline constexpr DWORD CRYPT_E_ASN1_MEMORY = 0x80093106;
inline constexpr DWORD CRYPT_E_ASN1_BADTAG = 0x8009310B;
inline constexpr DWORD CRYPT_E_ASN1_CHOICE = 0x8009310C;
inline constexpr DWORD CRYPT_E_ASN1_RULE = 0x8009310D;

// The thread's last-error code, 0 at its start. Calls that succeed leave it alone.
ORTHOLAN_EXPORT void SetLastError(DWORD code) noexcept;
// What was set last in this thread.
ORTHOLAN_EXPORT DWORD GetLastError() noexcept;

// 8-bit text to UTF-16 units. A size of -1 means terminated text, whose terminator is converted and
// counted. Returns the units written, or needed where `outUnits` is 0. Broken UTF-8 gives U+FFFD
// for each maximal broken part, unless MB_ERR_INVALID_CHARS is set. Returns 0 on failure: 87 (null
// text, size 0, null `out` with a size, unknown code page), 122 (`out` too small), 1004 (unknown
// flags), 1113 (broken text).
ORTHOLAN_EXPORT int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int textBytes,
                                        LPWSTR out, int outUnits) noexcept;
// UTF-16 units to 8-bit text; sizes and failures as above, in bytes. An unpaired surrogate becomes
// U+FFFD, and in US-ASCII a unit of 0x80 and above "?". The last two arguments may be null.
ORTHOLAN_EXPORT int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int textUnits,
                                        LPSTR out, int outBytes, LPCSTR defaultChar,
                                        BOOL* usedDefaultChar) noexcept;
// Length in characters without the terminator; 0 for null.
ORTHOLAN_EXPORT int lstrlenA(LPCSTR text) noexcept;
// The same in UTF-16 units.
ORTHOLAN_EXPORT int lstrlenW(LPCWSTR text) noexcept;

// Encodes the structure that `structType` names. With a null `out` the needed size is stored in
// `*outBytes`; otherwise it is the room in bytes on entry and the size used on return. FALSE on
// failure: 2 (no codec for this structure type), 234 (room too small; the needed size is stored),
// 87 (a count without an array), 0x80070057 (a choice that the structure cannot hold), and the
// CRYPT_E_ codes for what cannot be written. Where a text is refused, the place of its first bad
// unit is stored for the size: the unit in the low 16 bits, above them the indexes of what it lies
// in, as the GET_..._ERR_INDEX macros of Windows' header take them apart.
ORTHOLAN_EXPORT BOOL CryptEncodeObject(DWORD encodingType, LPCSTR structType,
                                       const void* structInfo, BYTE* out, DWORD* outBytes) noexcept;
// Decodes into a structure at the front of `out`, with pointers into `out`; sizes as above, flags
// 0. FALSE on failure: 2, 234, 0x80093103 (cut short or malformed), 0x8009310B (another tag).
ORTHOLAN_EXPORT BOOL CryptDecodeObject(DWORD encodingType, LPCSTR structType, const BYTE* encoded,
                                       DWORD encodedBytes, DWORD flags, void* out,
                                       DWORD* outBytes) noexcept;
// The registry's record of an attribute type, by dotted text (CRYPT_OID_INFO_OID_KEY, `const
// char*`) or by name without regard to ASCII case (CRYPT_OID_INFO_NAME_KEY, `const wchar_t*`). Null
// where there is none.
ORTHOLAN_EXPORT PCCRYPT_OID_INFO CryptFindOIDInfo(DWORD keyType, void* key, DWORD groupId) noexcept;
// A value as terminated text. Returns the characters with the terminator: those written, or those
// needed with a null `out`. Too little room: an empty text, 1, last error 122. Types 3 to 10 are
// 8-bit text, 12 and 13 UTF-16LE up to the first NUL, 1 and 2 give "#" and upper-case hexadecimal
// digits; any other type gives 0.
ORTHOLAN_EXPORT DWORD CertRDNValueToStrA(DWORD valueType, CERT_RDN_VALUE_BLOB* value, LPSTR out,
                                         DWORD outChars) noexcept;
// The same in UTF-16 units.
ORTHOLAN_EXPORT DWORD CertRDNValueToStrW(DWORD valueType, CERT_RDN_VALUE_BLOB* value, LPWSTR out,
                                         DWORD outChars) noexcept;

// Both directions between the two forms of a time, in UTC. FALSE with 87 for a time that has no
// other form: the top bit of a FILETIME, a field out of range, a year outside 1601 to 30827.
ORTHOLAN_EXPORT BOOL FileTimeToSystemTime(const FILETIME* fileTime,
                                          SYSTEMTIME* systemTime) noexcept;
// The way back; the day of the week is not read.
ORTHOLAN_EXPORT BOOL SystemTimeToFileTime(const SYSTEMTIME* systemTime,
                                          FILETIME* fileTime) noexcept;

// The host program for null; no other module is found (126).
ORTHOLAN_EXPORT HMODULE GetModuleHandleA(LPCSTR moduleName) noexcept;
// The path of a module, terminated also where it was cut; the result is then `outChars`.
ORTHOLAN_EXPORT DWORD GetModuleFileNameA(HMODULE module, LPSTR out, DWORD outChars) noexcept;
// No module is ever found: null, 126.
ORTHOLAN_EXPORT HMODULE LoadLibraryA(LPCSTR moduleName) noexcept;
// Undoes LoadLibraryA; releases nothing, as nothing is loaded.
ORTHOLAN_EXPORT BOOL FreeLibrary(HMODULE module) noexcept;
// A text of a module by number, cut to `outChars` with its terminator. Returns its characters
// without the terminator, 0 where there is none. Only the library itself has texts.
ORTHOLAN_EXPORT int LoadStringA(HINSTANCE module, UINT id, LPSTR out, int outChars) noexcept;

// Not a call of Windows: empties (false) or restores (true) the registry behind CryptFindOIDInfo
// for the whole process, so that a test sees the library's own attribute keys answer.
ORTHOLAN_EXPORT void SetAttributeRegistryEnabled(bool enabled) noexcept;

}  // namespace Ortholan

#endif  // defined(_WIN32)

#endif  // ORTHOLAN_PLATFORM_H_
