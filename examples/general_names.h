// The alternative names of a certificate (RFC 5280 4.2.1.6) one by one, so that one that is spoiled
// hides no other.
#ifndef ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
#define ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_

#include <string>
#include <string_view>
#include <vector>

namespace Example {

struct GeneralNameReading {
  std::string_view octets;
  // Empty for octets that are no general name; the names of the standard.
  std::string kind;
  std::string text;         // by its meaning, without its kind
  std::string type;         // dotted, of an other name
  std::string typeName;     // its name, or dotted as well
  std::string libraryText;  // where SetLibraryText asked for it
};

// One name that is the whole of `octets`.
GeneralNameReading ReadGeneralName(std::string_view octets);
// The names of a list that is the whole of `value`; octets that begin with no element are the last.
std::vector<GeneralNameReading> ReadGeneralNames(std::string_view value);

// Whether general names have the library's own text beside their meaning.
void SetLibraryText(bool isWanted);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
