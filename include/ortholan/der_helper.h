// Single DER values, and text between code pages.
//
//   IdentObj der = Ortholan::DerHelper::EncodeOid("2.5.4.3");         // 06 03 55 04 03
//   std::string dotted = Ortholan::DerHelper::DecodeOid(der, false);  // "2.5.4.3"
#ifndef ORTHOLAN_DER_HELPER_H_
#define ORTHOLAN_DER_HELPER_H_

#include <ortholan/asn1.h>
#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <cstddef>
#include <string>

namespace Ortholan {

// All operations report by throwing XZEPStatus with the operation's name: 205 and 206 for bytes
// that are no element, 131 for an element of another type (a colon and "wrong type" appended, in
// Russian and code page 1251), 1 for a value that cannot be encoded, WinErrorToStatus for a failed
// conversion.
namespace DerHelper {

// Tag number of an element.
ORTHOLAN_EXPORT DWORD GetTag(const IdentObj& element);
// Whether its class is universal.
ORTHOLAN_EXPORT bool IsUniversal(const IdentObj& element);
// Tag numbers 12, 18, 19, 20, 22 and 26, whatever the class.
ORTHOLAN_EXPORT bool IsStringTag(const ASNT_ASN_STRUCT_INFO& info) noexcept;

// Dotted text of an OBJECT IDENTIFIER. With `anyTag` a universal element is rendered by its own
// tag (a string's content as it stands), one of another class as an identifier.
ORTHOLAN_EXPORT std::string DecodeOid(const IdentObj& oid, bool anyTag);
// The OBJECT IDENTIFIER: two arcs or more, each of at most 32 bits.
ORTHOLAN_EXPORT IdentObj EncodeOid(const std::string& dotted);

// An OCTET STRING of these octets.
ORTHOLAN_EXPORT IdentObj EncodeOctetString(const IdentObj& bytes);
// A UTF8String; an unpaired surrogate becomes U+FFFD.
ORTHOLAN_EXPORT IdentObj EncodeUtf8String(const std::wstring& text);
// The first `maxLength` bytes of `text`; bytes of 0x80 and above become ".".
ORTHOLAN_EXPORT IdentObj EncodeIA5String(const std::string& text,
                                         size_t maxLength = std::string::npos);
// As above, converted to US-ASCII (code page 20127) first.
ORTHOLAN_EXPORT IdentObj EncodeIA5String(const std::wstring& text,
                                         size_t maxLength = std::string::npos);

// Content of a string element read as UTF-8; with `anyTag` of any element.
ORTHOLAN_EXPORT std::wstring DecodeUtf8String(const IdentObj& value, bool anyTag);

// UTF-16 text, one unit a character, as 8-bit text in `codePage`.
ORTHOLAN_EXPORT std::string ToString(const std::wstring& text, UINT codePage);
// 8-bit text in `codePage` as UTF-16 text, one unit a character.
ORTHOLAN_EXPORT std::wstring ToWString(const std::string& text, UINT codePage);

// "." for a byte of 0x80 and above, else the byte.
ORTHOLAN_EXPORT char ToPrintableChar(char character) noexcept;

}  // namespace DerHelper

// Converts terminated text into a buffer of `outSize` characters, terminator included. Returns
// `out`, or null when a pointer is null, `outSize` is 0 or less (nothing is written), or the text
// cannot be converted or does not fit (the buffer then holds ""). Nothing throws.
ORTHOLAN_EXPORT char* WideToNarrow(char* out, const wchar_t* in, int outSize, UINT codePage);
// The way back; fails in the same way.
ORTHOLAN_EXPORT wchar_t* NarrowToWide(wchar_t* out, const char* in, int outSize, UINT codePage);

}  // namespace Ortholan

#endif  // ORTHOLAN_DER_HELPER_H_
