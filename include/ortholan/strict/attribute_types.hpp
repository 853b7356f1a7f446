// The attribute types that text of names knows by a name.
//
//   for (const ortholan::AttributeType& type : ortholan::AttributeTypes()) {
//     std::cout << type.name() << ' ' << ortholan::OidToText(type.oid()).value() << '\n';
//   }
#ifndef ORTHOLAN_STRICT_ATTRIBUTE_TYPES_HPP_
#define ORTHOLAN_STRICT_ATTRIBUTE_TYPES_HPP_

#include <ortholan/strict/attribute_types.h>

#include <optional>
#include <ortholan/strict/base.hpp>
#include <string_view>
#include <vector>

namespace ortholan {

// What text becomes as a value of a type.
enum class ValueSyntax : int32_t {
  kFreeText = ORTHOLAN_SYNTAX_FREE_TEXT,
  kPrintable = ORTHOLAN_SYNTAX_PRINTABLE,
  kIA5 = ORTHOLAN_SYNTAX_IA5,
  kNumeric = ORTHOLAN_SYNTAX_NUMERIC,
  kUtf8 = ORTHOLAN_SYNTAX_UTF8,
  kIA5OrUtf8 = ORTHOLAN_SYNTAX_IA5_OR_UTF8,
  kPostalAddress = ORTHOLAN_SYNTAX_POSTAL_ADDRESS,
  kNoText = ORTHOLAN_SYNTAX_NO_TEXT,
};

// A row of the table; what it gives out lives as long as the program.
class AttributeType {
 public:
  explicit AttributeType(const ortholan_attribute_type& type) : type_(type) {}

  Octets oid() const { return type_.oid; }
  // As text is written: CN, ...
  std::string_view name() const { return View(type_.name); }
  // ... and commonName; may be the same.
  std::string_view long_name() const { return View(type_.long_name); }
  // Further names that are read, with a blank between them.
  std::string_view aliases() const { return View(type_.aliases); }
  ValueSyntax syntax() const { return static_cast<ValueSyntax>(type_.syntax); }
  // Most characters of a value, for information; 0 where none is known.
  uint32_t bound() const { return type_.bound; }

 private:
  static std::string_view View(ortholan_text text) { return {text.data, text.size}; }

  ortholan_attribute_type type_;
};

// All of them, in the order of their identifiers' octets.
inline std::vector<AttributeType> AttributeTypes() {
  std::vector<AttributeType> types;
  ortholan_attribute_type type;
  for (size_t i = 0; ortholan_attribute_type_at(i, &type) == ORTHOLAN_REASON_NONE; ++i) {
    types.emplace_back(type);
  }
  return types;
}

// The type of a name in any letter case, ...
inline std::optional<AttributeType> AttributeTypeNamed(std::string_view name) {
  ortholan_attribute_type type;
  if (ortholan_attribute_type_named(ToText(name), &type) != ORTHOLAN_REASON_NONE) return {};
  return AttributeType(type);
}
// ... or of an identifier's content octets.
inline std::optional<AttributeType> AttributeTypeOf(Octets oid) {
  ortholan_attribute_type type;
  if (ortholan_attribute_type_of(oid, &type) != ORTHOLAN_REASON_NONE) return {};
  return AttributeType(type);
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_ATTRIBUTE_TYPES_HPP_
