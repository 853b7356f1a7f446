// String preparation for caseIgnoreMatch (RFC 4518 section 2, as RFC 5280 7.1 asks for it): two
// texts are the same where their prepared forms have the same octets. Unicode 3.2, which RFC 4518
// pins; later characters are unassigned in it.
//
//   PreparedText text;
//   size_t at;
//   if (Prepare("Foo Bar ", &text, &at)) ...  // " foo  bar "
//
// The work is linear in the text; runs of more than 32 combining marks are sorted in n log n, in
// memory taken for them.
#ifndef ORTHOLAN_STRICT_MATCHING_PREPARATION_H_
#define ORTHOLAN_STRICT_MATCHING_PREPARATION_H_

#include <string_view>

#include "bytes/small_buffer.h"

namespace Ortholan::strict {

// Text of up to 250 octets is prepared without an allocation.
using PreparedText = SmallBuffer<uint8_t, 512>;

// Appends the prepared form of UTF-8: at least two octets, none of them 00.
// False where the result is Undefined: octets that are no UTF-8, or a code point that is
// unassigned, private or prohibited otherwise. Then `*undefined_at` is where it stands and `*out`
// is as before.
bool Prepare(std::string_view text, PreparedText* out, size_t* undefined_at);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_MATCHING_PREPARATION_H_
