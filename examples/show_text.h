// A document as lines for a person's eyes.
#ifndef ORTHOLAN_EXAMPLES_SHOW_TEXT_H_
#define ORTHOLAN_EXAMPLES_SHOW_TEXT_H_

#include <cstddef>
#include <string>

#include "examples/document.h"

namespace Example {

// What an extension means, behind its title; empty for one that is not known.
std::string MeaningText(const ExtensionReading& extension);

// "certificate 1", without a number for 0.
std::string DocumentTitle(Kind kind, std::size_t number);

// `number` is the document's in its file, from 1; 0 for one that has none.
std::string DocumentText(std::size_t number, const Document& document);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOW_TEXT_H_
