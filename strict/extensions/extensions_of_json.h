// Whole extensions in DER from JSON.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_OF_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_OF_JSON_H_

#include "strict/der/backward_output.h"
#include "strict/extensions/json_value.h"

namespace Ortholan::strict {

// Puts the Extension of an object {"oid","name","critical","value"}, or the list of an array of
// these. Refuses a value at its place. Throws std::bad_alloc.
bool PutExtensionsOfJson(const JsonValue& json, BackwardOutput* out, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_EXTENSIONS_OF_JSON_H_
