// The codecs of single structures, for the table behind CryptEncodeObject and CryptDecodeObject.
// See codec.h for the shape.

#ifndef ORTHOLAN_PLATFORM_POSIX_CODECS_H_
#define ORTHOLAN_PLATFORM_POSIX_CODECS_H_

#include <ortholan/platform.h>

#include "platform/posix/codec.h"

namespace Ortholan::posix {

// BasicConstraints, RFC 5280 4.2.1.9.
DWORD WriteBasicConstraints(const CERT_BASIC_CONSTRAINTS2_INFO& info, DerWriter* out);
DWORD ReadBasicConstraints(ByteView der, StructRoom* room, CERT_BASIC_CONSTRAINTS2_INFO* info);

// BIT STRING, KeyUsage among them. Unused bits are written, and read, as zero; a count of eight or
// more takes whole octets off the end.
DWORD WriteBits(const CRYPT_BIT_BLOB& info, DerWriter* out);
DWORD ReadBits(ByteView der, StructRoom* room, CRYPT_BIT_BLOB* info);

DWORD WriteOctetString(const CRYPT_DATA_BLOB& info, DerWriter* out);
DWORD ReadOctetString(ByteView der, StructRoom* room, CRYPT_DATA_BLOB* info);

// ExtKeyUsageSyntax, RFC 5280 4.2.1.12.
DWORD WriteEnhancedKeyUsage(const CERT_ENHKEY_USAGE& info, DerWriter* out);
DWORD ReadEnhancedKeyUsage(ByteView der, StructRoom* room, CERT_ENHKEY_USAGE* info);

// GeneralNames, RFC 5280 4.2.1.6, without x400Address and ediPartyName, which the structure cannot
// hold. An IA5 text outside ASCII fails with 0x80092022 when written, its position (entry * 65536 +
// unit) stored as the size, and is widened octet by octet when read; a NUL in it is 0x8009310D.
DWORD WriteAlternateName(const CERT_ALT_NAME_INFO& info, DerWriter* out);
DWORD ReadAlternateName(ByteView der, StructRoom* room, CERT_ALT_NAME_INFO* info);

// The same with another tag than SEQUENCE's, and of the content alone.
DWORD WriteAlternateNameAs(BYTE tag, const CERT_ALT_NAME_INFO& info, DerWriter* out);
DWORD ReadAlternateNameContent(ByteView content, StructRoom* room, CERT_ALT_NAME_INFO* info);

// AuthorityKeyIdentifier, RFC 5280 4.2.1.1. The serial number is little-endian.
DWORD WriteAuthorityKeyId(const CERT_AUTHORITY_KEY_ID2_INFO& info, DerWriter* out);
DWORD ReadAuthorityKeyId(ByteView der, StructRoom* room, CERT_AUTHORITY_KEY_ID2_INFO* info);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_CODECS_H_
