// Distinguished names over borrowed octets (RFC 5280 4.1.2.4), and their text (RFC 4514).
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

// Text of names, 80 to 119 (RFC 4514 section 3).
enum {
  // The text is not UTF-8.
  ORTHOLAN_REASON_TEXT_UTF8 = 80,
  // A separator, "=" or the end stands where a type has to.
  ORTHOLAN_REASON_TEXT_NO_TYPE = 81,
  // No "=" follows: often the rest of a value whose separator was not escaped.
  ORTHOLAN_REASON_TEXT_NO_EQUALS = 82,
  // What stands before "=" is neither a name of a type nor dotted digits.
  ORTHOLAN_REASON_TEXT_TYPE = 83,
  // A name of a type that is not known.
  ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE = 84,
  // Dotted digits that are no object identifier.
  ORTHOLAN_REASON_TEXT_OID = 85,
  // A backslash before neither a special character nor two hexadecimal digits.
  ORTHOLAN_REASON_TEXT_PAIR = 86,
  // A character that has to be escaped in a value.
  ORTHOLAN_REASON_TEXT_UNESCAPED = 87,
  // A "#" before anything but pairs of hexadecimal digits.
  ORTHOLAN_REASON_TEXT_HEX = 88,
  // Hexadecimal digits that are no element in BER; `expected` is the reason.
  ORTHOLAN_REASON_TEXT_ELEMENT = 89,
  // Escaped octets that are not UTF-8.
  ORTHOLAN_REASON_TEXT_VALUE_UTF8 = 90,
  // A quoted value without its closing quote.
  ORTHOLAN_REASON_TEXT_QUOTE = 91,
  // Text between the closing quote of a value and the separator.
  ORTHOLAN_REASON_TEXT_BEHIND_QUOTE = 92,
  // A character that the string type of the attribute does not have; `expected` is its identifier.
  ORTHOLAN_REASON_TEXT_ALPHABET = 93,
  // Text as a value of a type whose values are no strings.
  ORTHOLAN_REASON_TEXT_NO_STRING = 94,
  // A name for a type that no text could have: not a letter followed by letters, digits and
  // hyphens.
  ORTHOLAN_REASON_TYPE_NAME = 95,
  // A line of a postal address that is empty, or a backslash in one without 24 or 5C behind it.
  ORTHOLAN_REASON_TEXT_LINE = 96
};

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

// The order of RDNs in a text.
enum {
  // The last RDN of the encoding first (RFC 4514 2.1).
  ORTHOLAN_RDNS_REVERSED = 0,
  ORTHOLAN_RDNS_AS_ENCODED = 1
};

// The string type of free text. Types that prescribe one, such as C and DC, get theirs.
enum {
  // PrintableString where its alphabet allows, else UTF8String.
  ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8 = 0,
  ORTHOLAN_STRINGS_UTF8 = 1
};

// A name of the caller's own for a type.
typedef struct ortholan_type_name {
  ortholan_text name;  // a letter, then letters, digits and hyphens
  ortholan_octets oid;
} ortholan_type_name;

// What text looks like; zeros are the defaults, and so is NULL in place of the structure. Text that
// was written is read back with the same options.
typedef struct ortholan_rfc4514_options {
  int32_t order;       // an ORTHOLAN_RDNS_ word
  int32_t strings;     // an ORTHOLAN_STRINGS_ word
  int32_t long_names;  // 1 writes commonName, not CN
  // 1 writes # and the digits of the encoding where a plain value would not be read as the same
  // octets, so that every name that was read with ORTHOLAN_READ_DER comes back.
  int32_t exact;
  const ortholan_type_name* names;  // come before the names that the library knows
  size_t name_count;
} ortholan_rfc4514_options;

// A name as text that is safe to show and to log: every character that cannot be seen is escaped,
// and no value can look like another attribute. Types without a name are written as dotted digits
// with the encoding of the value. Refuses TYPE_NAME; TOO_LONG for an identifier above 4096 octets.
ORTHOLAN_EXPORT ortholan_reason ortholan_rfc4514_write(const ortholan_name_view* name,
                                                       const ortholan_rfc4514_options* options,
                                                       char* out, size_t room, size_t* size,
                                                       ortholan_refusal* refusal);
// Text as the DER of a Name. Reads all of RFC 4514 section 3 and, as RFC 2253 section 4 asks, ";"
// for ",", quoted values, "OID." before dotted digits and blanks round what separates. A value
// behind "#" may have any encoding of BER and becomes DER. Refuses the first place that is wrong,
// by the offset of its octet in the text.
ORTHOLAN_EXPORT ortholan_reason ortholan_rfc4514_read(ortholan_text text,
                                                      const ortholan_rfc4514_options* options,
                                                      uint8_t* out, size_t room, size_t* size,
                                                      ortholan_refusal* refusal);

// What is wrong with the first place of a text that is.
typedef struct ortholan_text_error {
  ortholan_reason reason;
  size_t offset;         // octets of the text before the place
  size_t size;           // octets that were met there; 0 at the end
  size_t character;      // characters before the place
  const char* expected;  // what is expected instead; static, "" for ORTHOLAN_REASON_NONE
} ortholan_text_error;

// Tells a refusal by ortholan_rfc4514_read of this text further.
ORTHOLAN_EXPORT ortholan_reason ortholan_rfc4514_explain(ortholan_text text,
                                                         const ortholan_refusal* refusal,
                                                         ortholan_text_error* error);
// Writes it as one English sentence without a full stop: what was met, safe to show, at which
// character, counted from 1, and what is expected instead.
ORTHOLAN_EXPORT ortholan_reason ortholan_rfc4514_sentence(ortholan_text text,
                                                          const ortholan_refusal* refusal,
                                                          char* out, size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_NAMES_H_
