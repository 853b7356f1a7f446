// The value of an extension as JSON; <ortholan/strict/extensions.h> tells the forms.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_VALUE_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_VALUE_JSON_H_

#include "strict/der/refusal.h"
#include "strict/extensions/json_output.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Puts the value that `der` is by its shape; without a shape its octets. What was put before a
// refusal is void. Throws std::bad_alloc.
bool PutValueJson(const Shape* shape, ByteView der, Leniency leniency, JsonOutput* json,
                  Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_VALUE_JSON_H_
