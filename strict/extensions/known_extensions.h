// The extensions that are known: identifier, names and shape, one row each.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_KNOWN_EXTENSIONS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_KNOWN_EXTENSIONS_H_

#include <string_view>

#include "strict/extensions/shape.h"

namespace Ortholan::strict {

struct KnownExtension {
  OidConstant oid;
  const char* name;   // as its standard calls it
  const char* title;  // for people
  const Shape* shape;
};

// All of them, in ascending order of size and octets of the identifier.
Rows<KnownExtension> KnownExtensions();

// Null for one that is not known.
const KnownExtension* FindExtension(ByteView oid);
const KnownExtension* FindExtension(std::string_view name);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_KNOWN_EXTENSIONS_H_
