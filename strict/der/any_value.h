// Values of types that only their identifiers tell: everything that DER says of a universal type
// (X.680 8.4, X.690 8 to 11), at every depth.
#ifndef ORTHOLAN_STRICT_DER_ANY_VALUE_H_
#define ORTHOLAN_STRICT_DER_ANY_VALUE_H_

#include "strict/der/element.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {

struct Refusal;

// CheckValue for what is no string.
bool CheckOtherValue(const Element& value, Leniency leniency, Refusal* refusal);

// Checks headers, the form that the type has, BOOLEAN, INTEGER, BIT STRING, NULL and OBJECT
// IDENTIFIER, and strings as CheckString does, in the value and in all that it holds, at most 32
// levels deep. Other classes have any content.
inline bool CheckValue(const Element& value, Leniency leniency, Refusal* refusal) {
  return IsString(value.identifier) ? CheckString(value, leniency, refusal)
                                    : CheckOtherValue(value, leniency, refusal);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_ANY_VALUE_H_
