// Octets as people paste them: understood or refused, never misread.
//
//   30 0C 31 ...   30:0c:31:...   0x30, 0x0C, ...   300c31...     hexadecimal
//   MAwxCjAI...                                                    base64
//   -----BEGIN ...                                                 one PEM block
//
// Anything that is no text is the octets themselves.
#ifndef ORTHOLAN_EXAMPLES_PASTED_H_
#define ORTHOLAN_EXAMPLES_PASTED_H_

#include <optional>
#include <string>
#include <string_view>

namespace Example {

// The octets of hexadecimal digits in either case, with white space anywhere, and colons, commas
// and "0x" between whole octets; nothing for any other text.
std::optional<std::string> FromHex(std::string_view text);

// The octets of a text in one of the forms; nothing where it is in none. Throws Failure for several
// PEM blocks, for a broken one, and for an odd number of digits.
std::optional<std::string> FromPastedText(std::string_view text);

// The octets of `content`, be it a text or not. Throws Failure for a text in none of the forms.
std::string FromPasted(const std::string& content);

// Returns where `octets` are one encoding, or begin like none so that whoever reads them has to
// say why. Throws Failure for octets that are left over behind it, and for several encodings.
void RequireOne(std::string_view octets);

// Says that there are `count` octets behind an encoding of `size`.
std::string LeftOver(std::size_t count, std::size_t size);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_PASTED_H_
