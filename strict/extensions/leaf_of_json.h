// Values without parts from their JSON: the content octets that a shape makes of one.
//
//   std::string content;
//   LeafOfJson(kFlagShape, json, &content, &refusal);   // true: FF
#ifndef ORTHOLAN_STRICT_EXTENSIONS_LEAF_OF_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_LEAF_OF_JSON_H_

#include "strict/extensions/json_value.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Refuses the value at its place. Throws std::bad_alloc.
bool LeafOfJson(const Shape& shape, const JsonValue& json, std::string* content, Refusal* refusal);

// The same for an address, whose text depends on the octets of its family.
bool AddressOfJson(const Shape& shape, const std::string& family, const JsonValue& json,
                   std::string* content, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_LEAF_OF_JSON_H_
