// Names of the identifiers that stand inside extensions: purposes of keys, access methods,
// policies, qualifiers, statements, attributes.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_OID_NAMES_H_
#define ORTHOLAN_STRICT_EXTENSIONS_OID_NAMES_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

// Puts dotted digits, or, for an identifier of too many octets, "#" and these.
void PutDotted(ByteView oid, Output* out);
// Puts the name of an identifier where it has one, else as PutDotted does.
void PutIdentifierName(ByteView oid, Output* out);

// Puts the content octets that a name, dotted digits or "#" and octets stand for; false for any
// other text.
bool PutIdentifierOf(std::string_view text, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_OID_NAMES_H_
