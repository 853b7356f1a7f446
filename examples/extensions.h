// Extensions of certificates and revocation lists (RFC 5280 4.2 and 5.2) by what they mean.
#ifndef ORTHOLAN_EXAMPLES_EXTENSIONS_H_
#define ORTHOLAN_EXAMPLES_EXTENSIONS_H_

#include <optional>
#include <string>
#include <string_view>

#include "examples/der.h"
#include "examples/value.h"

namespace Example {

struct ExtensionReading {
  std::string_view record;  // its whole encoding
  bool isRead = false;      // whether what follows is there
  std::string oid;
  const char* name = nullptr;  // null for one that this program does not know
  bool isCritical = false;
  std::string_view value;
  std::optional<Value> content;  // of one that it can read
  bool hasNames = false;         // which is a list of general names
  bool isFaulty = false;         // it should be readable, but is not, or not all of it
};

// Views into what `record` is a view of.
ExtensionReading ReadExtension(const Der& record);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_EXTENSIONS_H_
