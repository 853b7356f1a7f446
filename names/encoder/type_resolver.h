// Type text of a name ("CN", "2.5.4.3") to the attribute that it stands for.
#ifndef ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_
#define ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_

#include <string>
#include <string_view>

#include "names/attribute_table.h"
#include "names/encoder/remembered_types.h"

namespace Ortholan {

// The whole rule, and keeps what short text resolved to.
template <typename Char>
bool ResolveAfresh(std::basic_string_view<Char> text, const AttributeRow** row);

// Resolves trimmed type text: a name that the platform knows, then a keyword in any letter case or
// the dotted identifier of a row of kAttributes. False: refused. True with a null row: not
// resolved, which the length of the text alone decides. The last error is left alone. 8-bit text is
// ASCII.
template <typename Char>
inline bool ResolveType(std::basic_string_view<Char> text, const AttributeRow** row) {
  *row = remembered_types.Find(RememberedTypes::Pack(text));
  return *row != nullptr || ResolveAfresh(text, row);
}

// The keywords of kAttributes, with ", " between them.
std::string ListKeywords();

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_
