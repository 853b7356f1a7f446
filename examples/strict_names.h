// Names as RFC 4514 text, by the strict layer.
#ifndef ORTHOLAN_EXAMPLES_STRICT_NAMES_H_
#define ORTHOLAN_EXAMPLES_STRICT_NAMES_H_

#include <string>
#include <string_view>

#include "examples/arguments.h"
#include "examples/stream/stream.h"

namespace Example {

// --rfc4514 of encode and of decode, and what goes with it alone.
extern const Option kEncodeRfc4514Option;
extern const Option kDecodeRfc4514Option;
extern const Option kExactOption;
extern const Option kLongNamesOption;

// --lines of both with --rfc4514. An item is a text and its line hexadecimal digits ("der"), or a
// name and its line the text ("text").
ItemWork EncodeRfc4514Lines(const Arguments& arguments);
ItemWork DecodeRfc4514Lines(const Arguments& arguments);

// What the strict reader says of a name.
struct StrictName {
  std::string text;     // of RFC 4514; empty where it is refused
  std::string refusal;  // why it is no name in DER; empty where it is one
};
StrictName ReadStrictName(std::string_view der);

// UsageError where one of the last two is given without the first.
void RequireRfc4514(const Arguments& arguments);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STRICT_NAMES_H_
