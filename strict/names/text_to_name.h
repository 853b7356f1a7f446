// RFC 4514 text to DER.
//
//   BackwardOutput out(buffer, room);
//   if (!PutNameOfText("CN=Alpha,O=Org", options, &out, &refusal)) ...
//   out.MoveToFront();
#ifndef ORTHOLAN_STRICT_NAMES_TEXT_TO_NAME_H_
#define ORTHOLAN_STRICT_NAMES_TEXT_TO_NAME_H_

#include <string_view>

#include "strict/der/backward_output.h"
#include "strict/der/refusal.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {

// Puts the Name; refuses the first place of the text that is wrong, however small the room. Throws
// std::bad_alloc.
bool PutNameOfText(std::string_view text, const TextOptions& options, BackwardOutput* out,
                   Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_TEXT_TO_NAME_H_
