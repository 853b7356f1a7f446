// A name in all the forms that the library decodes it to, and what another reader's answer makes
// them.

#ifndef ORTHOLAN_TESTS_DIFFERENTIAL_OUR_NAME_H_
#define ORTHOLAN_TESTS_DIFFERENTIAL_OUR_NAME_H_

#include <ortholan/name_decoder.h>

#include <list>
#include <string>
#include <utility>
#include <vector>

namespace Ortholan::testing {

struct OurAttribute {
  std::string type;
  bool decoded = false;  // the value is text; otherwise its encoding
  std::wstring text;
  std::string encoding;
};

struct OurName {
  explicit OurName(const std::string& octets);

  bool has_tree = false;
  bool has_pairs = false;
  bool has_text = false;
  std::vector<OurAttribute> tree;
  std::list<std::pair<std::wstring, std::list<std::wstring>>> pairs;  // by identifier
  std::wstring text;                                                  // by identifier, with ";"
  DWORD error = 0;                                                    // why there is no tree
};

// A value as the text form shows it: in quotes, and those in it doubled, where it is empty, begins
// or ends with white space or holds a character with a meaning.
std::wstring Quoted(const std::wstring& value);

// Lines joined by LF.
std::wstring Joined(const std::vector<std::wstring>& lines);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_DIFFERENTIAL_OUR_NAME_H_
