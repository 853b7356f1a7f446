// One document as `show` prints it: a string that is made without printing anything, so that
// several can be made at once.
//
//   const Shown shown = ShowDocument({path, 1, der}, ShowForm::kJson);
//   Print(shown.output);
//   for (const std::string& fault : shown.faults) Complain(fault);
#ifndef ORTHOLAN_EXAMPLES_SHOWN_H_
#define ORTHOLAN_EXAMPLES_SHOWN_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Example {

enum class ShowForm { kText, kJson };

// A document and where it stands.
struct Source {
  std::string path;
  std::size_t number;  // in its file, from 1
  std::string_view der;
};

struct Shown {
  std::string output;  // text of whole lines, or one JSON object; empty text where the document
                       // cannot be read at all
  std::vector<std::string> faults;  // what could not be read; empty where all is in order
  bool isSound = true;              // whether there is neither a fault nor a finding
};

// These throw nothing but std::bad_alloc: what stops the reading is a fault.
//
// Names and extensions.
Shown ShowDocument(const Source& source, ShowForm form);
// What RFC 5280 forbids in them.
Shown CheckDocument(const Source& source, ShowForm form);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOWN_H_
