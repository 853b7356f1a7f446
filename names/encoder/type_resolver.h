// Type text of a name ("CN", "2.5.4.3") to the attribute that it stands for.
#ifndef ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_
#define ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "names/attribute_table.h"
#include "names/encoder/remembered_types.h"
#include "platform/calls.h"

namespace Ortholan {

// Resolves the types of one text.
class TypeResolver {
 public:
  TypeResolver() : version_(AttributeInfoVersion()) {}

  // Resolves trimmed type text: a name that the platform knows, then a keyword in any letter case
  // or the dotted identifier of a row of kAttributes. False: refused. True with a null row: not
  // resolved, which the length of the text alone decides. The last error is left alone. 8-bit text
  // is ASCII.
  template <typename Char>
  bool Resolve(std::basic_string_view<Char> text, const AttributeRow** row) const {
    const RememberedText key = RememberedText::Of(text, version_);
    const uint8_t place = remembered_types.Find(key);
    if (place == RememberedTypes::kNone) return ResolveAfresh(text, key, row);
    *row = &kAttributes[place];
    return true;
  }

 private:
  // The whole rule, without what is remembered; keeps what the key's text resolved to.
  template <typename Char>
  static bool ResolveAfresh(std::basic_string_view<Char> text, RememberedText key,
                            const AttributeRow** row);

  uint16_t version_;
};

// The keywords of kAttributes, with ", " between them.
std::string ListKeywords();

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_TYPE_RESOLVER_H_
