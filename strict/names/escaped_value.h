// Values of strings as RFC 4514 section 2.4 writes them: what would end a value, and what cannot be
// seen, is escaped.
//
//   PutEscaped(kUtf8String, "a, b", &out);   // a\, b
#ifndef ORTHOLAN_STRICT_NAMES_ESCAPED_VALUE_H_
#define ORTHOLAN_STRICT_NAMES_ESCAPED_VALUE_H_

#include "bytes/byte_view.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

// Puts a string value with what has to be escaped in a name escaped; false, with nothing put, where
// the octets are no text.
bool PutEscaped(uint8_t identifier, ByteView content, Output* out);

// Puts UTF-8 with what cannot be seen escaped and all else as it is; false, with nothing put, for
// other octets.
bool PutVisible(ByteView text, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_ESCAPED_VALUE_H_
