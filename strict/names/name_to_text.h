// DER to RFC 4514 text that is safe to show: every character that cannot be seen is escaped.
//
//   Output out(buffer, room);
//   if (!PutTextOfName(name, options, &out, &refusal)) ...
#ifndef ORTHOLAN_STRICT_NAMES_NAME_TO_TEXT_H_
#define ORTHOLAN_STRICT_NAMES_NAME_TO_TEXT_H_

#include "strict/der/output.h"
#include "strict/der/refusal.h"
#include "strict/names/name_view.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {

// Puts the text of a name. Refuses an identifier above kMaxIdentifierOctets, at its place. Throws
// std::bad_alloc for more than 12 RDNs.
bool PutTextOfName(const NameView& name, const TextOptions& options, Output* out, Refusal* refusal);
// The same for the content of one RDN that was read.
bool PutTextOfRdn(ByteView rdn, const TextOptions& options, Output* out, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_NAME_TO_TEXT_H_
