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

// Content octets of an identifier, made from its dotted text by the compiler.
class OidOctets {
 public:
  constexpr OidOctets() = default;
  constexpr OidOctets(const char* dotted) {
    uint32_t first = 0;
    for (size_t arc = 0; *dotted != '\0'; ++arc) {
      uint32_t number = 0;
      for (; *dotted != '.' && *dotted != '\0'; ++dotted) {
        number = number * 10 + static_cast<uint32_t>(*dotted - '0');
      }
      if (*dotted == '.') ++dotted;
      if (arc == 0) {
        first = number * 40;
      } else {
        Append(arc == 1 ? first + number : number);
      }
    }
  }
  constexpr ByteView view() const { return {octets_, size_}; }

 private:
  constexpr void Append(uint32_t number) {
    uint32_t shift = 0;
    while (number >> shift >= 0x80) shift += 7;
    for (; shift != 0; shift -= 7) {
      octets_[size_++] = static_cast<uint8_t>(0x80 | (number >> shift & 0x7F));
    }
    octets_[size_++] = static_cast<uint8_t>(number & 0x7F);
  }

  uint8_t octets_[12] = {};
  uint8_t size_ = 0;
};

struct AttributeType {
  OidOctets oid;
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
// Without letter case, ASCII alone.
bool SameName(std::string_view a, std::string_view b);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_ATTRIBUTE_TYPES_H_
