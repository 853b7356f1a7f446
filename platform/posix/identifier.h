// OBJECT IDENTIFIER content and its dotted text, X.690 8.19.

#ifndef ORTHOLAN_PLATFORM_POSIX_IDENTIFIER_H_
#define ORTHOLAN_PLATFORM_POSIX_IDENTIFIER_H_

#include <ortholan/platform.h>

#include "platform/posix/codec.h"

namespace Ortholan::posix {

// Writes a whole element. Fails with 0x80093100 for null, and for a text that is not two or more
// arcs of decimal digits joined by single dots, each at most 4294967295, or whose first two arcs do
// not go together.
DWORD WriteIdentifier(BYTE tag, LPCSTR dotted, DerWriter* out);

// Puts the terminated text of the content into `room`. Fails with 0x80093103 (empty, or the last
// arc not finished) or 0x80093104 (an arc above 32 bits).
DWORD ReadIdentifier(ByteView content, StructRoom* room, LPSTR* dotted);

}  // namespace Ortholan::posix

#endif  // ORTHOLAN_PLATFORM_POSIX_IDENTIFIER_H_
