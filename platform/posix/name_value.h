// The codecs of X509_NAME_VALUE and X509_UNICODE_NAME_VALUE: one string value as CERT_NAME_VALUE
// holds it and as DER.

#ifndef ORTHOLAN_PLATFORM_POSIX_NAME_VALUE_H_
#define ORTHOLAN_PLATFORM_POSIX_NAME_VALUE_H_

#include <ortholan/platform.h>

#include <cstddef>

#include "platform/posix/der.h"

namespace Ortholan::posix {

// Writes the element. Sizes as for CryptEncodeObject: with a null `out` only the size is stored.
// Fails: 87 (octets counted but not there), 234, 0x80070057 (type 0), 0x8009310C (a type that has
// no form here), 0x80093104 (the element would pass 32 bits).
BOOL EncodeNameValue(const CERT_NAME_VALUE& value, BYTE* out, DWORD* outBytes) noexcept;

// Reads a primitive UTF8String, PrintableString, TeletexString, IA5String, VisibleString or
// BMPString at the front of `encoded`; what follows it is not looked at. `out` receives a
// CERT_NAME_VALUE and behind it the value octets, UTF-16LE for UTF8String and BMPString; `pbData`
// is null where there are none.
// Fails: 0x8009310B (another tag), 0x80093103 (cut short; half a character), 234.
BOOL DecodeNameValue(const BYTE* encoded, DWORD encodedBytes, void* out, DWORD* outBytes) noexcept;

// The same for text: whatever the type, the value is UTF-16LE octets. Written text is checked
// against its type, with 0x80092020 to 0x80092023 for what the type does not take and the position
// of the first such unit stored as the size, 0x80092024 for types that are no text. Every string
// tag is read, 8-bit octets as the units of their value; the text is followed by U+0000, which
// `cbData` does not count.
BOOL EncodeUnicodeNameValue(const CERT_NAME_VALUE& value, BYTE* out, DWORD* outBytes) noexcept;
BOOL DecodeUnicodeNameValue(const BYTE* encoded, DWORD encodedBytes, void* out,
                            DWORD* outBytes) noexcept;

// The content of a CERT_RDN_BMP_STRING, of even size, or a CERT_RDN_UTF8_STRING as UTF-16LE octets,
// of which the latter gives up to twice as many as it has. Returns how many.
std::size_t ReadUtf16Le(DWORD type, ByteView content, BYTE* out) noexcept;

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_NAME_VALUE_H_
