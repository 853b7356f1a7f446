// Types found by what text calls them: a name of the caller's or the table's, or dotted digits.
//
//   NamedType type;
//   if (TypeFinder(options).Find("CN", false, &type) == ORTHOLAN_REASON_NONE) use(type.oid);
#ifndef ORTHOLAN_STRICT_NAMES_TYPE_FINDER_H_
#define ORTHOLAN_STRICT_NAMES_TYPE_FINDER_H_

#include <string>
#include <string_view>

#include "strict/names/text_options.h"

namespace Ortholan::strict {

class TypeFinder {
 public:
  explicit TypeFinder(const TextOptions& options) : options_(options) {}

  // Why there is no such type, or NONE. What was found may point into the finder until the next
  // call.
  ortholan_reason Find(std::string_view type, bool dotted, NamedType* found) {
    if (dotted) return FindDotted(type, found);
    if (!FindNamed(type, options_, found)) return ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE;
    return ORTHOLAN_REASON_NONE;
  }

 private:
  ortholan_reason FindDotted(std::string_view type, NamedType* found);

  const TextOptions& options_;
  uint8_t oid_[32];  // of dotted digits; nearly all fit
  std::string long_oid_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_TYPE_FINDER_H_
