// General names as text for people: one name a line, its kind in front.
//
//   DNS:example.org      email:joe@example.org    URI:https://example.org/
//   IP:192.0.2.1         IP:192.0.2.0/24          RID:1.2.3.4
//   dirName:CN=Alpha     UPN:joe@example.org      SRV:_imaps.example.org
//   SmtpUTF8Mailbox:     XMPP:joe@example.org     KRB5:host/a.example.org@EXAMPLE.ORG;3
//   PermanentIdentifier:1.2.3;value               HardwareModule:1.2.3;0A0B
//   GUID:00112233-4455-6677-8899-AABBCCDDEEFF     EDIParty:assigner;party
//   otherName:1.2.3;UTF8:text                     otherName:1.2.3;#0403010203
//   X400:#30...
//
// In characters "\\" is a backslash and "\0A" an octet by its two hexadecimal digits: what cannot
// be seen, blanks at both ends, and what would end a part. Behind "#" stand octets: the content
// of the name, and of an other name its whole value. The text of a directory name is that of RFC
// 4514, with its own escapes.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_TO_TEXT_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_TO_TEXT_H_

#include "strict/der/output.h"
#include "strict/general_names/general_name_view.h"

namespace Ortholan::strict {

// Puts any name, be it malformed inside. Throws std::bad_alloc for a directory name of more than 32
// RDNs.
void PutTextOfGeneralName(const GeneralNameView& name, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_GENERAL_NAME_TO_TEXT_H_
