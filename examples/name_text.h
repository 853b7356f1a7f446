// A name's text, or why the library refuses it.
#ifndef ORTHOLAN_EXAMPLES_NAME_TEXT_H_
#define ORTHOLAN_EXAMPLES_NAME_TEXT_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <string>
#include <string_view>

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

// The name in one line whatever it is: that text, or where there is none a list of all attributes,
// "+" between those of one RDN.
std::string NameLine(const Ortholan::IdentObj& name);
// The same of a single RDN, from the content of its SET.
std::string RdnLine(std::string_view attributes);

// Throws the Failure for a name that a decoder refused with `code`.
[[noreturn]] void FailToDecode(Ortholan::DWORD code, const Ortholan::IdentObj& name,
                               const char* role = "the name");

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_NAME_TEXT_H_
