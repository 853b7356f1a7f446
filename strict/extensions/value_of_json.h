// The value of an extension in DER from its JSON, by its shape.
//
//   BackwardOutput out(buffer, room);
//   if (!PutValueOfJson(shape, json, &out, &refusal)) ...
//   out.MoveToFront();
#ifndef ORTHOLAN_STRICT_EXTENSIONS_VALUE_OF_JSON_H_
#define ORTHOLAN_STRICT_EXTENSIONS_VALUE_OF_JSON_H_

#include "strict/der/backward_output.h"
#include "strict/extensions/json_value.h"
#include "strict/extensions/shape.h"

namespace Ortholan::strict {

// Puts what the JSON describes; without a shape it has to hold octets. Refuses the first value that
// is wrong, however small the room. Throws std::bad_alloc.
bool PutValueOfJson(const Shape* shape, const JsonValue& json, BackwardOutput* out,
                    Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_VALUE_OF_JSON_H_
