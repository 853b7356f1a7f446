// Names and strings from their JSON: text, its kind, and the octets where text does not tell them.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_NAME_OF_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_NAME_OF_JSON_H_

#include "strict/extensions/json_value.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// These refuse a value at its place, and throw std::bad_alloc.

// The content of a string of the type.
bool TextOfJson(uint8_t identifier, const JsonValue& json, std::string* content, Refusal* refusal);
// The whole element of a string of one of the types that `identifiers` has as bits:
// {"kind","text"}, or a string alone.
bool StringOfJson(uint32_t identifiers, const JsonValue& json, std::string* element,
                  Refusal* refusal);
// The whole element of a general name: {"kind","text","octets"}.
bool NameOfJson(const Shape& shape, const JsonValue& json, std::string* element, Refusal* refusal);
// The content of an RDN: {"text","octets"}, or a string alone.
bool RdnOfJson(const JsonValue& json, std::string* content, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_NAME_OF_JSON_H_
