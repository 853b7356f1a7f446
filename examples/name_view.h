// A name for a person's eyes: its text, its tree, and why the library refuses it.
#ifndef ORTHOLAN_EXAMPLES_NAME_VIEW_H_
#define ORTHOLAN_EXAMPLES_NAME_VIEW_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <string>

namespace Example {

struct NameText {
  bool accepted = false;
  std::wstring text;
  // Where it is not accepted:
  std::string reason;
  Ortholan::DWORD code = 0;
  // The encoding is in order; it has an RDN of several attributes, which no decoder takes.
  bool isMultiValued = false;
};

// The name's text with short keys (style 3).
NameText ReadNameText(const Ortholan::IdentObj& name);

// Prints the name as a tree: a line an RDN, below it a line an attribute with its type, string type
// and value. Also for names that the decoders refuse, as far as their encoding goes.
void PrintNameTree(const Ortholan::IdentObj& name, const std::string& indent);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_NAME_VIEW_H_
