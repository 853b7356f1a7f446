// General names from their text (see general_name_to_text.h for its form), and lists of them.
//
//   BackwardOutput out(buffer, room);
//   if (!PutGeneralNameOfText("DNS:example.org", true, &out, &refusal)) ...
//   out.MoveToFront();
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_TEXT_TO_GENERAL_NAME_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_TEXT_TO_GENERAL_NAME_H_

#include <ortholan/strict/base.h>

#include <string_view>

#include "strict/der/backward_output.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

// Puts the GeneralName of a text, whose kind is told in either case of letters. Hosts, mailboxes,
// URIs and services have to be in order. Free text of a directory name becomes UTF8String. Refuses
// the first place that is wrong, however small the room; throws std::bad_alloc.
//   allowsRange  an address may have a mask, as in name constraints
bool PutGeneralNameOfText(std::string_view text, bool allowsRange, BackwardOutput* out,
                          Refusal* refusal);

// Puts the names of texts in their order, as SEQUENCE OF GeneralName. Refuses the first place of
// the first text that is wrong, and EMPTY without any; `*wrong` is the number of that text.
bool PutGeneralNamesOfTexts(const ortholan_text* texts, size_t count, BackwardOutput* out,
                            size_t* wrong, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_TEXT_TO_GENERAL_NAME_H_
