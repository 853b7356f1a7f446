// Which string type the text of a value becomes, by the syntax of its attribute's type and by what
// the caller wants of free text.
//
//   ChooseString("RU", ValueSyntax::kPrintable, policy).identifier   // kPrintableString
#ifndef ORTHOLAN_STRICT_NAMES_STRING_CHOICE_H_
#define ORTHOLAN_STRICT_NAMES_STRING_CHOICE_H_

#include <ortholan/strict/base.h>

#include "bytes/byte_view.h"

namespace Ortholan::strict {

struct Element;
enum class StringPolicy : int32_t;
enum class ValueSyntax : uint8_t;

// The string type that checked UTF-8 gets as a value, or why it cannot be one, with the first octet
// at fault.
struct StringChoice {
  uint8_t identifier = 0;
  ortholan_reason reason = ORTHOLAN_REASON_NONE;
  size_t offset = 0;
};
StringChoice ChooseString(ByteView text, ValueSyntax syntax, StringPolicy policy);

// Whether the plain text of a string would be read as this very element.
bool ComesBack(const Element& value, ValueSyntax syntax, StringPolicy policy);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_STRING_CHOICE_H_
