// Extensions of certificates and revocation lists (RFC 5280 4.2 and 5.2) by what they mean.
#ifndef ORTHOLAN_EXAMPLES_EXTENSIONS_H_
#define ORTHOLAN_EXAMPLES_EXTENSIONS_H_

#include <string>
#include <string_view>
#include <vector>

#include "examples/general_names.h"

namespace Example {

struct ExtensionReading {
  std::string_view record;  // its whole encoding
  bool isRead = false;      // whether what follows is there
  std::string oid;
  std::string title;  // for people; empty for one that is not known
  bool isCritical = false;
  std::string_view value;
  // Of one that is known: its value as JSON, and as lines that are safe to show, further in by
  // kExtensionIndent; empty where the value is none of that extension.
  std::string json;
  std::string lines;
  std::string refusal;  // why the value is not what DER and the extension prescribe
  // Of alternative names, also where the list as a whole is refused.
  std::vector<GeneralNameReading> names;

  // Whether something that is known cannot be read, or not all of it.
  bool IsFaulty() const { return !title.empty() && json.empty(); }
  bool HasLibraryText() const { return !names.empty() && !names[0].libraryText.empty(); }
};

constexpr std::size_t kExtensionIndent = 6;

// Views into what `record` is a view of. What is no DER is read as far as it can be.
ExtensionReading ReadExtension(std::string_view record);

// What there is to call it by: the title, or the identifier.
std::string ExtensionTitle(const ExtensionReading& extension);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_EXTENSIONS_H_
