// A document as JSON; the manual page tells its shape.
#ifndef ORTHOLAN_EXAMPLES_SHOW_JSON_H_
#define ORTHOLAN_EXAMPLES_SHOW_JSON_H_

#include <cstddef>
#include <string>

#include "examples/document.h"
#include "examples/json.h"

namespace Example {

// "certificateRequest"
const char* KindWord(Kind kind);
// An object that begins with file and number; without them where they are empty and 0.
JsonObject JsonPlace(const std::string& path, std::size_t number);

std::string NameJson(const NameReading& name);
// One name by itself, with the number that the library has for its tag and its text there.
std::string GeneralNameJson(const GeneralNameReading& name, unsigned tag,
                            const std::string& libraryText);
std::string ExtensionJson(const ExtensionReading& extension);

// Without a path or with number 0 there is no such member.
std::string DocumentJson(const std::string& path, std::size_t number, const Document& document);

// What takes the place of a document that cannot be read, and of a file, with number 0.
std::string RefusedJson(const std::string& path, std::size_t number, const std::string& what);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOW_JSON_H_
