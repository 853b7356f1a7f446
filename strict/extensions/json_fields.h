// Parts of JSON that readers of it ask for, and the refusals of those that are not there.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_JSON_FIELDS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_JSON_FIELDS_H_

#include "strict/extensions/json_value.h"

namespace Ortholan::strict {

// Refuses a value or a member at its place; false.
bool RefuseJson(ortholan_reason reason, std::string_view rest, Refusal* refusal);
inline bool RefuseJson(ortholan_reason reason, const JsonValue& json, Refusal* refusal) {
  return RefuseJson(reason, json.rest, refusal);
}

// Takes the members of an object apart by name: `values[i]` is that of `names[i]`, null where it is
// not there. Refuses what is no object, a member of another name, and one that stands twice.
bool TakeMembers(const JsonValue& json, const char* const* names, size_t count,
                 const JsonValue** values, Refusal* refusal);

// Octets of a string of hexadecimal digits.
bool OctetsOfJson(const JsonValue& json, std::string* octets, Refusal* refusal);

// Whether the value is an object with one member "octets", which means them as they are.
bool IsOctetsAlone(const JsonValue& json);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_JSON_FIELDS_H_
