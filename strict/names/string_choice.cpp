#include "strict/names/string_choice.h"

#include "strict/der/string_value.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {
namespace {

bool IsNoString(ValueSyntax syntax) {
  return syntax == ValueSyntax::kNoText || syntax == ValueSyntax::kPostalAddress;
}

// The one string type of a syntax that leaves no choice.
uint8_t StringOf(ValueSyntax syntax) {
  switch (syntax) {
    case ValueSyntax::kPrintable:
      return kPrintableString;
    case ValueSyntax::kIA5:
      return kIA5String;
    case ValueSyntax::kNumeric:
      return kNumericString;
    default:
      return kUtf8String;
  }
}

// The narrower type where every character is in its alphabet, else UTF8String.
StringChoice ChooseNarrow(ByteView text, uint8_t narrow) {
  return {IsInAlphabet(narrow, text) ? narrow : static_cast<uint8_t>(kUtf8String)};
}

}  // namespace

StringChoice ChooseString(ByteView text, ValueSyntax syntax, StringPolicy policy) {
  if (syntax == ValueSyntax::kDirectoryString && policy == StringPolicy::kPrintableOrUtf8) {
    return ChooseNarrow(text, kPrintableString);
  }
  if (syntax == ValueSyntax::kIA5OrUtf8) return ChooseNarrow(text, kIA5String);
  const uint8_t identifier = StringOf(syntax);
  if (IsNoString(syntax)) return {identifier, ORTHOLAN_REASON_TEXT_NO_STRING, 0};
  if (identifier == kUtf8String) return {identifier};
  const StringFault fault = FindStringFault(identifier, text, true);
  if (fault.reason == ORTHOLAN_REASON_NONE) return {identifier};
  return {identifier, ORTHOLAN_REASON_TEXT_ALPHABET, fault.offset};
}

bool ComesBack(const Element& value, ValueSyntax syntax, StringPolicy policy) {
  // The other types are never chosen for text.
  if (value.identifier != kUtf8String && !IsAsciiString(value.identifier)) return false;
  const StringChoice choice = ChooseString(value.content, syntax, policy);
  return choice.reason == ORTHOLAN_REASON_NONE && choice.identifier == value.identifier;
}

}  // namespace Ortholan::strict
