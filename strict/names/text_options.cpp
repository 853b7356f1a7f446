#include "strict/names/text_options.h"

#include "strict/der/element.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

std::string_view View(ortholan_text text) { return {text.data, text.size}; }
ByteView View(ortholan_octets octets) { return {octets.data, octets.size}; }

NamedType Named(const ortholan_type_name& own) {
  const AttributeType* const known = FindType(View(own.oid));
  return {View(own.oid), View(own.name),
          known != nullptr ? known->syntax : ValueSyntax::kDirectoryString};
}

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

// The first of the caller's names that are spelt so; null where there is none.
const ortholan_type_name* FindOwn(std::string_view name, const TextOptions& options) {
  for (size_t i = 0; i < options.name_count; ++i) {
    if (SameName(View(options.names[i].name), name)) return &options.names[i];
  }
  return nullptr;
}

}  // namespace

bool FindNamed(std::string_view name, const TextOptions& options, NamedType* type) {
  if (options.name_count != 0) {
    if (const ortholan_type_name* const own = FindOwn(name, options)) {
      *type = Named(*own);
      return true;
    }
  }
  const AttributeType* const known = FindTypeByName(name);
  if (known == nullptr) return false;
  *type = {known->oid.view(), known->name, known->syntax};
  return true;
}

NamedType Describe(ByteView oid, const TextOptions& options) {
  for (size_t i = 0; i < options.name_count; ++i) {
    const ortholan_type_name& own = options.names[i];
    // A name that an earlier row takes away would be read as another type.
    if (SameBytes(View(own.oid), oid) && FindOwn(View(own.name), options) == &own) {
      return Named(own);
    }
  }
  const AttributeType* const known = FindType(oid);
  if (known == nullptr) return {oid, {}};
  const std::string_view name = options.long_names ? known->long_name : known->name;
  return {oid, FindOwn(name, options) != nullptr ? std::string_view() : name, known->syntax};
}

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
