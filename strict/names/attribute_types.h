// The attribute types that names are written with: one row each, found by any of its names or by
// its identifier. Which string type the attribute prescribes stands beside it.
//
//   const AttributeType* type = FindTypeByName("commonname");   // letter case does not count
//   const AttributeType* same = FindType(attribute.type);
#ifndef ORTHOLAN_STRICT_NAMES_ATTRIBUTE_TYPES_H_
#define ORTHOLAN_STRICT_NAMES_ATTRIBUTE_TYPES_H_

#include <ortholan/strict/attribute_types.h>

#include <string_view>

#include "bytes/byte_view.h"
#include "bytes/oid_constant.h"

namespace Ortholan::strict {

// What text becomes as a value of the type.
enum class ValueSyntax : uint8_t {
  kDirectoryString = ORTHOLAN_SYNTAX_FREE_TEXT,
  kPrintable = ORTHOLAN_SYNTAX_PRINTABLE,
  kIA5 = ORTHOLAN_SYNTAX_IA5,
  kNumeric = ORTHOLAN_SYNTAX_NUMERIC,
  kUtf8 = ORTHOLAN_SYNTAX_UTF8,
  kIA5OrUtf8 = ORTHOLAN_SYNTAX_IA5_OR_UTF8,  // as RFC 2985 5.4.1 has it
  kPostalAddress = ORTHOLAN_SYNTAX_POSTAL_ADDRESS,
  kNoText = ORTHOLAN_SYNTAX_NO_TEXT,
};

struct AttributeType {
  OidConstant oid;
  std::string_view name;       // the short one, as text is written
  std::string_view long_name;  // may be the same
  // Further names that are read, each with a blank behind it.
  std::string_view aliases;
  ValueSyntax syntax = ValueSyntax::kDirectoryString;
  uint16_t bound = 0;  // most characters of a value, for information; 0 where none is known
};

// Null where there is none.
const AttributeType* FindTypeByName(std::string_view name);
const AttributeType* FindType(ByteView oid);

// All of them, in the order of their identifiers' octets.
size_t TypeCount();
const AttributeType& TypeAt(size_t index);

// Whether text may stand for a type: a letter, then letters, digits and hyphens (RFC 4512 1.4).
bool IsDescriptor(std::string_view text);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_ATTRIBUTE_TYPES_H_
