// The names of an alternative name extension.
#ifndef ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
#define ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_

#include <ortholan/ident_obj.h>

#include <list>
#include <string>

namespace Example {

struct GeneralNameReading {
  Ortholan::IdentObj octets;
  bool isRead = false;  // whether what follows is there
  std::string kind;     // RFC 5280's word for the alternative
  std::wstring text;    // the library's
  // What the octets hold where the library's text is raw octets; empty for the other kinds.
  std::wstring meaning;
};

struct GeneralNamesReading {
  std::list<GeneralNameReading> names;
  Ortholan::IdentObj faulty;  // the whole value where the sequence has a fault
  bool isWhole = false;       // every name can be read
};

// From the value of the extension, a GeneralNames sequence.
GeneralNamesReading ReadGeneralNames(const Ortholan::IdentObj& value);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_GENERAL_NAMES_H_
