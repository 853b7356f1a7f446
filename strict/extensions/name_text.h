// Names and strings inside extensions as text, and whether their text alone gives the octets back.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_NAME_TEXT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_NAME_TEXT_H_

#include <string>
#include <string_view>

#include "strict/der/element.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

// The text of a general name whose tag was checked, "DNS:example.org". All of these throw
// std::bad_alloc.
std::string TextOfName(const Element& name);
// The general name of such a text; refuses the place in it. A base of a subtree may be less than a
// name: a host of mailboxes, ".example.org", a range of addresses.
bool ElementOfName(std::string_view text, bool isBase, std::string* element, Refusal* refusal);
// Whether a text is read as this general name.
bool NameComesBack(std::string_view text, bool isBase, ByteView bytes);

// The text of the content of an RDN that was read.
std::string TextOfRdn(ByteView content);
bool RdnComesBack(std::string_view text, ByteView content);
// The content of the one RDN that a text is; refuses the place in the text.
bool RdnOfText(std::string_view text, std::string* content, Refusal* refusal);

// A whole element of its content.
std::string ElementOf(uint8_t identifier, std::string_view content);
// The UTF-8 of a string; false where the octets are no text.
bool StringText(uint8_t identifier, ByteView content, std::string* text);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_NAME_TEXT_H_
