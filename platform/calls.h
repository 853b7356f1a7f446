// The seam: every call of the platform that the library makes, what it relies on in each, and the
// few functions that the seam adds. <ortholan/platform.h> declares the calls; platform/windows/ and
// platform/posix/ hold what differs, and the build compiles one of the two.
//
// Common to all calls: they take no ownership and allocate nothing that the caller must free (but
// LoadLibraryA, undone by FreeLibrary); sizes are 32 bits wide; a failure is reported by a result
// of 0 or FALSE and the thread's last error. Success leaves the last error alone natively, and is
// not relied on to do so on Windows.
//
// SetLastError(code), GetLastError()
//     One 32-bit code a thread, 0 at the thread's start.
//
// MultiByteToWideChar(codePage, flags, text, textBytes, out, outUnits)
// WideCharToMultiByte(codePage, flags, text, textUnits, out, outBytes, defaultChar, usedDefault)
//     Sizes are in bytes of 8-bit text and UTF-16 units of wide text. Size -1 means a terminated
//     text, whose terminator is converted and counted. With an out size of 0 the needed size is the
//     result, else the size written; nothing is appended. The library passes flags 0 and null
//     default characters.
//     Code pages: 65001, 20127, 0 (CP_ACP), 3 (CP_THREAD_ACP); natively the last two are UTF-8.
//     With flags 0 unreadable UTF-8 gives U+FFFD, one for each maximal broken part, and an unpaired
//     surrogate becomes EF BF BD. To US-ASCII a unit without counterpart becomes "?"; Windows
//     first looks for a similar letter. From US-ASCII the top bit of each byte is dropped.
//     Fails: 87 (null text, size 0, null out with a size, unknown code page), 122 (out too small),
//     1004 (unknown flags), 1113 (broken text, only with the flag that asks for this).
//
// lstrlenA(text), lstrlenW(text)
//     Length in bytes or units, without the terminator; 0 for null.
//
// CryptEncodeObject(encodingType, structType, info, out, outBytes)
// CryptDecodeObject(encodingType, structType, encoded, encodedBytes, flags, out, outBytes)
//     With a null `out` the needed size is stored; else `*outBytes` is the room on entry and the
//     size used on return. Encoding type 0x00010001, flags 0. A decoded structure stands at the
//     front of `out` and its pointers point into `out`, or are null for empty parts.
//     Fails: 2 (no codec for this type), 234 (room too small; the needed size is stored),
//     0x80093103 (the encoding is cut short or malformed), 0x8009310B (another tag was expected),
//     0x8009310C and 0x80070057 (a value type that cannot be written).
//     X509_NAME_VALUE over CERT_NAME_VALUE: `Value` holds 8-bit text for the types 3 to 10, any
//     octets for 2, a whole element for 1, UTF-16LE octets for 12 and 13. Encoding writes the
//     octets unchecked (12: big-endian; 13: as UTF-8; an odd last octet is dropped). The value type
//     that decoding reports follows the tag. Natively six string tags alone are read: 12, 19, 20,
//     22, 26, 30.
//     Extensions go through both calls with the caller's structure type, a constant or the
//     identifier of an extension. posix/structures/table.cpp has those that are known natively.
//
// CryptFindOIDInfo(keyType, key, groupId)
//     Called through FindAttributeInfo only. The record lives as long as the process.
//
// CertRDNValueToStrA(valueType, value, out, outChars), CertRDNValueToStrW(...)
//     The result counts the terminator. With a null `out` or size 0 it is the needed size; with too
//     little room the text is empty, the result 1, the last error 122. The types 3 to 10 are 8-bit
//     text in CP_ACP, 12 and 13 UTF-16LE octets. Natively 1 and 2 give "#" and upper-case hex, 12
//     and 13 end at the first NUL, and any other type has the size 0.
//
// FileTimeToSystemTime(fileTime, systemTime), SystemTimeToFileTime(systemTime, fileTime)
//     UTC, proleptic Gregorian calendar; the day of the week is written and never read. Fails: 87
//     (a FILETIME with the top bit set; a field out of range; a year outside 1601 to 30827).
//
// GetModuleHandleA(name), GetModuleFileNameA(module, out, outChars)
// LoadLibraryA(name), FreeLibrary(module)
//     GetModuleHandleA(nullptr) is the host program. A file name is terminated even when it was
//     cut; the result is then `outChars`. Natively no module but the host and this library is ever
//     found (126).
//
// LoadStringA(module, id, out, outChars)
//     The result counts the characters stored before the terminator: less than `outChars`, 0 when
//     there is no such text. Natively only OwnModule() has texts.

#ifndef ORTHOLAN_PLATFORM_CALLS_H_
#define ORTHOLAN_PLATFORM_CALLS_H_

#include <ortholan/platform.h>

#include <cstdint>

namespace Ortholan {

// The module whose string resources are this library's messages by status code: on Windows the DLL
// as it was loaded, or the host program where the library is linked into it; natively a token that
// only LoadStringA and GetModuleFileNameA know.
HMODULE OwnModule() noexcept;

// CryptFindOIDInfo in the RDN attribute group.
//   keyType  CRYPT_OID_INFO_OID_KEY (`key` is const char*, dotted text) or CRYPT_OID_INFO_NAME_KEY
//            (`key` is const wchar_t*, compared without regard to ASCII case); terminated either
//            way.
// Null when the platform knows no such attribute. The last error is left as it was. Answers may be
// remembered: what is registered while the process runs is not promised to be seen.
const CRYPT_OID_INFO* FindAttributeInfo(DWORD keyType, const void* key) noexcept;

// Changes whenever FindAttributeInfo may answer otherwise than before: what is derived from its
// answers may be remembered together with this number. Constant on Windows.
uint16_t AttributeInfoVersion() noexcept;

}  // namespace Ortholan

#endif  // ORTHOLAN_PLATFORM_CALLS_H_
