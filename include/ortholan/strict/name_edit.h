// Names built of attributes and edited, without text. Everything that is not edited stays octet for
// octet; SETs are written in DER's order.
//
//   ortholan_new_attribute attributes[2] = {0};
//   attributes[0].type = (ortholan_text){"O", 1};
//   attributes[0].text = (ortholan_text){"Org", 3};
//   ...
//   ortholan_name_build(attributes, 2, NULL, out, sizeof out, &size, &refusal);
#ifndef ORTHOLAN_STRICT_NAME_EDIT_H_
#define ORTHOLAN_STRICT_NAME_EDIT_H_

#include <ortholan/strict/names.h>

#ifdef __cplusplus
extern "C" {
#endif

// An attribute to be written; begins as zeros.
typedef struct ortholan_new_attribute {
  ortholan_octets oid;      // content octets of the type's identifier, or in its place ...
  ortholan_text type;       // ... a name such as CN, or dotted digits
  ortholan_text text;       // the value in UTF-8, or in its place ...
  ortholan_octets element;  // ... the whole element of a value in DER
  uint32_t string_type;     // identifier octet of a string type; 0: the type or the policy chooses
  int32_t joins_rdn;        // 1: it belongs to the RDN of the attribute before it
} ortholan_new_attribute;

// What holds for these functions: `options` gives the caller's own names for types and the policy
// for strings, and may be NULL. A refusal of an attribute has its index in `met` and the place in
// its text or element in `offset`: TEXT_UNKNOWN_TYPE and TEXT_OID for the type, TEXT_UTF8,
// TEXT_ALPHABET, TEXT_LINE, TEXT_NO_STRING and NO_STRING for the text, those of reading for an
// element.

// The DER of a name of these attributes, the most significant RDN first.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_build(const ortholan_new_attribute* attributes,
                                                    size_t count,
                                                    const ortholan_rfc4514_options* options,
                                                    uint8_t* out, size_t room, size_t* size,
                                                    ortholan_refusal* refusal);
// The name with another attribute in place of the one number `index`. Refuses NOT_FOUND.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_view_replace(const ortholan_name_view* name,
                                                           size_t index,
                                                           const ortholan_new_attribute* attribute,
                                                           const ortholan_rfc4514_options* options,
                                                           uint8_t* out, size_t room, size_t* size,
                                                           ortholan_refusal* refusal);
// The name without the attribute number `index`, and without its RDN where it stood there alone.
// Refuses NOT_FOUND.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_view_remove(const ortholan_name_view* name,
                                                          size_t index, uint8_t* out, size_t room,
                                                          size_t* size, ortholan_refusal* refusal);
// The name with one attribute more: an RDN of its own before the RDN number `rdn`, at the end where
// that is their count; with joins_rdn as a part of that RDN. Refuses NOT_FOUND.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_view_insert(const ortholan_name_view* name,
                                                          size_t rdn,
                                                          const ortholan_new_attribute* attribute,
                                                          const ortholan_rfc4514_options* options,
                                                          uint8_t* out, size_t room, size_t* size,
                                                          ortholan_refusal* refusal);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_NAME_EDIT_H_
