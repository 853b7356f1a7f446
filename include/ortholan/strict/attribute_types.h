// The attribute types that text of names knows by a name (RFC 4514): one row each.
//
//   ortholan_attribute_type type;
//   ortholan_text name = {"organizationName", 16};
//   if (ortholan_attribute_type_named(name, &type) == 0) ... type.oid, type.bound ...
#ifndef ORTHOLAN_STRICT_ATTRIBUTE_TYPES_H_
#define ORTHOLAN_STRICT_ATTRIBUTE_TYPES_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// What text becomes as a value of a type.
enum {
  // PrintableString or UTF8String, as the caller's policy has it.
  ORTHOLAN_SYNTAX_FREE_TEXT = 0,
  ORTHOLAN_SYNTAX_PRINTABLE = 1,
  ORTHOLAN_SYNTAX_IA5 = 2,
  ORTHOLAN_SYNTAX_NUMERIC = 3,
  ORTHOLAN_SYNTAX_UTF8 = 4,
  // IA5String where the characters allow it, else UTF8String.
  ORTHOLAN_SYNTAX_IA5_OR_UTF8 = 5,
  // Lines of free text with "$" between them (RFC 4517 3.3.28).
  ORTHOLAN_SYNTAX_POSTAL_ADDRESS = 6,
  // Values are no strings: "#" and the digits of their encoding alone.
  ORTHOLAN_SYNTAX_NO_TEXT = 7
};

// An attribute type. Octets and texts are static.
typedef struct ortholan_attribute_type {
  ortholan_octets oid;      // content octets of the identifier
  ortholan_text name;       // as text is written: CN
  ortholan_text long_name;  // as it is written with long_names: commonName; may be the same
  ortholan_text aliases;    // further names that are read, with a blank between them; often none
  int32_t syntax;           // an ORTHOLAN_SYNTAX_ word
  uint32_t bound;           // most characters of a value, for information; 0 where none is known
} ortholan_attribute_type;

// How many types there are. They stand in the order of their identifiers' octets; which ones there
// are, and what their rows say, may change with every version.
ORTHOLAN_EXPORT size_t ortholan_attribute_type_count(void);
// The type number `index`, from 0. These three refuse NOT_FOUND.
ORTHOLAN_EXPORT ortholan_reason ortholan_attribute_type_at(size_t index,
                                                           ortholan_attribute_type* type);
// The type of an identifier's content octets.
ORTHOLAN_EXPORT ortholan_reason ortholan_attribute_type_of(ortholan_octets oid,
                                                           ortholan_attribute_type* type);
// The type that has the name, in any letter case.
ORTHOLAN_EXPORT ortholan_reason ortholan_attribute_type_named(ortholan_text name,
                                                              ortholan_attribute_type* type);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_ATTRIBUTE_TYPES_H_
