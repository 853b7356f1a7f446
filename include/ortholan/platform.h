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

using ::CERT_ALT_NAME_ENTRY;
using ::CERT_ALT_NAME_INFO;
using ::CERT_AUTHORITY_KEY_ID2_INFO;
using ::CERT_BASIC_CONSTRAINTS2_INFO;
using ::CERT_ENHKEY_USAGE;
using ::CERT_EXTENSION;
using ::CERT_NAME_INFO;
using ::CERT_NAME_VALUE;
using ::CERT_OTHER_NAME;
using ::CERT_RDN;
using ::CERT_RDN_ATTR;
using ::CRYPT_BIT_BLOB;
using ::CRYPT_OID_INFO;
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

// AuthorityKeyIdentifier (RFC 5280 4.2.1.1).
struct CERT_AUTHORITY_KEY_ID2_INFO {
  CRYPT_DATA_BLOB KeyId;                         // no bytes: absent
  CERT_ALT_NAME_INFO AuthorityCertIssuer;        // no names: absent
  CRYPT_INTEGER_BLOB AuthorityCertSerialNumber;  // least significant byte first
};

// The encoding type of the two calls; certificates take the first, both are accepted.
inline constexpr DWORD X509_ASN_ENCODING = 0x00000001;
inline constexpr DWORD PKCS_7_ASN_ENCODING = 0x00010000;

// Structure types of CryptEncodeObject and CryptDecodeObject: small numbers in place of a pointer
// to the text of an object identifier.
inline const LPCSTR X509_NAME_VALUE = reinterpret_cast<LPCSTR>(6);
inline const LPCSTR X509_ALTERNATE_NAME = reinterpret_cast<LPCSTR>(12);
inline const LPCSTR X509_KEY_USAGE = reinterpret_cast<LPCSTR>(14);
inline const LPCSTR X509_BASIC_CONSTRAINTS2 = reinterpret_cast<LPCSTR>(15);
inline const LPCSTR X509_UNICODE_NAME_VALUE = reinterpret_cast<LPCSTR>(24);
inline const LPCSTR X509_OCTET_STRING = reinterpret_cast<LPCSTR>(25);
inline const LPCSTR X509_BITS = reinterpret_cast<LPCSTR>(26);
inline const LPCSTR X509_AUTHORITY_KEY_ID2 = reinterpret_cast<LPCSTR>(31);
inline const LPCSTR X509_ENHANCED_KEY_USAGE = reinterpret_cast<LPCSTR>(36);

// Identifiers of extensions (RFC 5280 4.2.1).
inline constexpr char szOID_KEY_USAGE[] = "2.5.29.15";
inline constexpr char szOID_SUBJECT_ALT_NAME[] = "2.5.29.7";
inline constexpr char szOID_ISSUER_ALT_NAME[] = "2.5.29.8";
inline constexpr char szOID_SUBJECT_KEY_IDENTIFIER[] = "2.5.29.14";
inline constexpr char szOID_SUBJECT_ALT_NAME2[] = "2.5.29.17";
inline constexpr char szOID_ISSUER_ALT_NAME2[] = "2.5.29.18";
inline constexpr char szOID_BASIC_CONSTRAINTS2[] = "2.5.29.19";
inline constexpr char szOID_AUTHORITY_KEY_IDENTIFIER2[] = "2.5.29.35";
inline constexpr char szOID_ENHANCED_KEY_USAGE[] = "2.5.29.37";

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
// and the CRYPT_E_ codes for what cannot be written.
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
