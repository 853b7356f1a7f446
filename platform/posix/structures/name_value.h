// What the two realisations of CERT_NAME_VALUE share: one string value as the structure holds it
// and as DER. X509_NAME_VALUE has octets as the type has them, UTF-16LE for UTF8String and
// BMPString; X509_UNICODE_NAME_VALUE has UTF-16LE whatever the type.

#ifndef ORTHOLAN_PLATFORM_POSIX_STRUCTURES_NAME_VALUE_H_
#define ORTHOLAN_PLATFORM_POSIX_STRUCTURES_NAME_VALUE_H_

#include <ortholan/platform.h>

#include <cstddef>

#include "bytes/byte_view.h"
#include "platform/posix/structures/field.h"

namespace Ortholan::posix {

// The content of a CERT_RDN_BMP_STRING, of even size, or a CERT_RDN_UTF8_STRING as UTF-16LE octets,
// of which the latter gives up to twice as many as it has. Returns how many.
std::size_t ReadUtf16Le(DWORD type, ByteView content, BYTE* out) noexcept;

// Writes octets of the type unchecked: 8-bit text as it is, UTF-16LE as the type has it. Fails: 87
// (octets counted but not there), 0x80070057 (type 0), 0x8009310C (a type that has no form here).
DWORD WriteNameValue(const Field& field, const BYTE* value, DerWriter* out);

// Reads an attribute's value that is no string of the types read here: an OCTET STRING by its
// content, anything else as a whole element.
DWORD ReadOtherValue(const Element& element, std::size_t place, StructRoom* room);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_STRUCTURES_NAME_VALUE_H_
