// Distinguished names over borrowed octets (RFC 5280 4.1.2.4).
//
//   ortholan_name_view name;
//   ortholan_name_cursor at = {0};
//   ortholan_attribute_view attribute;
//   if (ortholan_name_view_read(der, ORTHOLAN_READ_DER, &name, &refusal) == 0) {
//     for (size_t i = 0; i < name.attribute_count; ++i) {
//       ortholan_name_view_attribute(&name, i, &at, &attribute);
//       ...
//     }
//   }
#ifndef ORTHOLAN_STRICT_NAMES_H_
#define ORTHOLAN_STRICT_NAMES_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// A name that was read and found in order.
typedef struct ortholan_name_view {
  ortholan_octets der;     // the whole encoding
  size_t rdn_count;        // RelativeDistinguishedNames, most significant first
  size_t attribute_count;  // attributes of all RDNs
} ortholan_name_view;

// One attribute of a name.
typedef struct ortholan_attribute_view {
  ortholan_octets type;     // content octets of the identifier; ortholan_oid_to_text shows it
  ortholan_octets value;    // the whole element of the value
  ortholan_octets content;  // content octets of the value
  size_t rdn;               // index of its RDN
  uint32_t identifier;      // identifier octet of the value: 0x13 is PrintableString
  int32_t begins_rdn;       // 1 for the first attribute of its RDN, else 0
} ortholan_attribute_view;

// Where ortholan_name_view_attribute stopped, so that the next attribute is found at once; begins
// as zeros. Its fields are the library's.
typedef struct ortholan_name_cursor {
  size_t index;
  size_t offset;
  size_t rdn;
  size_t rdn_end;
} ortholan_name_cursor;

// Reads a Name that is the whole of `der`.
//   mode  an ORTHOLAN_READ_ word
ORTHOLAN_EXPORT ortholan_reason ortholan_name_view_read(ortholan_octets der, int32_t mode,
                                                        ortholan_name_view* name,
                                                        ortholan_refusal* refusal);
// The attribute number `index`, from 0, in the order of the encoding. With a cursor each of a
// sequence of calls by rising index takes constant time; NULL walks from the start.
// Refuses NOT_FOUND.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_view_attribute(const ortholan_name_view* name,
                                                             size_t index,
                                                             ortholan_name_cursor* cursor,
                                                             ortholan_attribute_view* attribute);
// The text of an attribute's value in UTF-8. Refuses NO_STRING, and ENCODING for octets that are no
// text; alphabets are not looked at.
ORTHOLAN_EXPORT ortholan_reason ortholan_attribute_view_text(
    const ortholan_attribute_view* attribute, char* out, size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_NAMES_H_
