// Values in any encoding of BER (X.690 8) brought into the one of DER (10, 11.1, 11.2), as far as
// the encoding alone tells it: lengths become definite and minimal, strings in parts whole, TRUE
// becomes FF and the bits behind a BIT STRING zero. What only the type tells, such as the order of
// a SET, stays as it is.
//
//   24 80 04 01 41 04 01 42 00 00 -> 04 02 41 42
#ifndef ORTHOLAN_STRICT_DER_BER_VALUE_H_
#define ORTHOLAN_STRICT_DER_BER_VALUE_H_

#include <string>

#include "bytes/byte_view.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

// Puts the element that is the whole of `ber`, at most 32 levels deep, in place of what `*der`
// holds. Refuses what CheckValue refuses of the result. Throws std::bad_alloc.
bool ReadBerValue(ByteView ber, std::string* der, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_BER_VALUE_H_
