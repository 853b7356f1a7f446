// Names and extensions of two documents, side by side as lines.
#ifndef ORTHOLAN_EXAMPLES_DIFFERENCES_H_
#define ORTHOLAN_EXAMPLES_DIFFERENCES_H_

#include <string>
#include <vector>

#include "examples/document.h"

namespace Example {

// One name or extension that is not the same, be it missing on one side.
struct Difference {
  std::string title;  // "subject", "2.5.29.17 Subject Alternative Name"
  const NameReading* names[2] = {};
  const ExtensionReading* extensions[2] = {};
  // What it is made of, a line each, without colour: of both, of the first and of the second alone.
  std::vector<std::string> common;
  std::vector<std::string> removed;
  std::vector<std::string> added;
};

// Names that one kind of document has not are left out, as an issuer beside a request. Views into
// the two documents. Where octets differ that no line shows, the lines are these octets.
std::vector<Difference> Compare(const Document& first, const Document& second);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_DIFFERENCES_H_
