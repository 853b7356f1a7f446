// Extensions of certificates, requests and CRLs by what they mean (RFC 5280 4.2 and 5.2 and
// others): which are known, and their values as JSON and as plain words, and back to DER.
//
//   ortholan_extension_json(extension.oid, extension.value, ORTHOLAN_READ_DER, text, sizeof text,
//                           &size, &refusal);        // {"cA":true,"pathLenConstraint":0}
//   ortholan_extension_from_json("basicConstraints", "{\"cA\":true}", octets, sizeof octets, &size,
//                                &refusal);          // 30 03 01 01 FF
//
// JSON. Members are called as the ASN.1 of the extension calls its parts. What has a default is
// always there, what is optional where it stands. The forms of ASN.1 become:
//
//   SEQUENCE              an object
//   CHOICE                an object with one member
//   SEQUENCE OF, SET OF   an array
//   BOOLEAN, NULL         true, false; null
//   INTEGER               a number up to 53 bits, else its content octets as a string
//   ENUMERATED            the name of the number, or a number without a name
//   BIT STRING            an array of the names of bits, or numbers of bits without a name
//   OCTET STRING          hexadecimal digits
//   OBJECT IDENTIFIER     the name where this version knows one, else dotted digits
//   time                  "2026-11-21T22:05:00Z", with milliseconds in timestamps of logs
//   string of one type    a string
//   string of several     {"kind":"utf8String","text":"..."}
//   GeneralName           {"kind":"DNS","text":"example.org"}, kinds and text as in
//                         ortholan_general_name_to_text
//   Name, RDN             {"text":"CN=Alpha"} as in RFC 4514
//   anything else         {"octets":"..."}: the whole encoding
//
// A name whose text alone would not give its octets back has these as one more member, "octets".
// The value of an extension that is not known is {"octets":"..."}, and each value may be written
// so.
//
// What is well-formed but forbidden by a profile is read: an empty SEQUENCE OF, a path length of
// what is no authority, a text longer than a profile allows.
#ifndef ORTHOLAN_STRICT_EXTENSIONS_H_
#define ORTHOLAN_STRICT_EXTENSIONS_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// Values of extensions and their JSON, 400 to 439.
enum {
  // A name or dotted digits stand for no extension.
  ORTHOLAN_REASON_EXTENSION_TYPE = 400,
  // A list inside a TLS structure has another size than it says (RFC 8446 3).
  ORTHOLAN_REASON_TLS_SIZE = 401,
  // The text is no JSON (RFC 8259).
  ORTHOLAN_REASON_JSON = 402,
  // The text is JSON with a member twice, or nested deeper than 32.
  ORTHOLAN_REASON_JSON_TWICE = 403,
  ORTHOLAN_REASON_JSON_DEPTH = 404,
  // Another form of JSON has to stand there.
  ORTHOLAN_REASON_JSON_FORM = 405,
  // A member that the structure has not.
  ORTHOLAN_REASON_JSON_MEMBER = 406,
  // An object lacks a member that the structure must have; the place is the object's.
  ORTHOLAN_REASON_JSON_LACKS = 407,
  // A name for a bit, number, kind or identifier that is not known there.
  ORTHOLAN_REASON_JSON_WORD = 408,
  // A number that is not whole, or beyond what the field takes.
  ORTHOLAN_REASON_JSON_NUMBER = 409,
  // A string that is not of the form of its field: digits, time, alphabet, text of a name.
  ORTHOLAN_REASON_JSON_TEXT = 410,
  // Octets and text of one name stand for different names, or "oid" and "name" for different
  // extensions.
  ORTHOLAN_REASON_JSON_DIFFERENT = 411
};

// An extension that is known. Text is static and terminated.
typedef struct ortholan_extension_type {
  ortholan_octets oid;  // content octets of the identifier
  const char* name;     // "basicConstraints", as its standard calls it
  const char* title;    // "Basic Constraints", for people
} ortholan_extension_type;

// The known extension number `index`, from 0; the order may change. Refuses NOT_FOUND behind the
// last.
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_type_at(size_t index,
                                                           ortholan_extension_type* type);
// The known extension with an identifier. Refuses NOT_FOUND.
//   oid  content octets of the identifier
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_type_of(ortholan_octets oid,
                                                           ortholan_extension_type* type);
// Its name, "basicConstraints"; NULL for one that is not known.
ORTHOLAN_EXPORT const char* ortholan_extension_name(ortholan_octets oid);
// The content octets of the identifier that a name or dotted digits stand for. Refuses
// EXTENSION_TYPE.
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_oid_from_name(ortholan_text name, uint8_t* out,
                                                                 size_t room, size_t* size);

// The value of an extension as JSON, in one line. It is always JSON, whatever characters are
// inside: those that nobody sees are escaped. Refuses what is not of the extension's structure; the
// value of one that is not known is any octets.
//   oid    content octets of the identifier
//   value  what is inside the OCTET STRING
//   mode   an ORTHOLAN_READ_ word
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_json(ortholan_octets oid, ortholan_octets value,
                                                        int32_t mode, char* out, size_t room,
                                                        size_t* size, ortholan_refusal* refusal);
// The same in plain words for people, a line for each fact, each ended by a line feed; what is
// inside something else is two blanks further in. Safe to show: what nobody sees is escaped.
//   indent  blanks in front of each line, at most 80
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_text(ortholan_octets oid, ortholan_octets value,
                                                        int32_t mode, size_t indent, char* out,
                                                        size_t room, size_t* size,
                                                        ortholan_refusal* refusal);
// The extensions of a certificate, a request or a CRL, or a list by itself, SEQUENCE OF Extension,
// as a JSON array of
//   {"oid":"2.5.29.19","name":"basicConstraints","critical":true,"value":{...}}
// "name" stands for known ones alone. Where the value is refused, "value" holds its octets, and
// behind it stands "refusal":{"reason":33,"offset":2,"sentence":"..."}, counted from the start of
// the value. Refuses octets that are none of the four.
ORTHOLAN_EXPORT ortholan_reason ortholan_extensions_json(ortholan_octets der, int32_t mode,
                                                         char* out, size_t room, size_t* size,
                                                         ortholan_refusal* refusal);

// The value of an extension in DER from its JSON: what ortholan_extension_json puts, where members
// with a default may be missing, names and identifiers stand by name or digits, and a string alone
// stands for a UTF8String where several types may stand. Refuses a place of the JSON that is
// wrong, counted in octets, of several the last; what is refused in names and texts has the reason
// of the reader of these, at the string's place.
//   type  name or dotted digits of the extension; refused with EXTENSION_TYPE and no place
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_from_json(ortholan_text type, ortholan_text json,
                                                             uint8_t* out, size_t room,
                                                             size_t* size,
                                                             ortholan_refusal* refusal);
// Whole extensions in DER from JSON: an array as ortholan_extensions_json puts it becomes SEQUENCE
// OF Extension, a single object of it one Extension. Either "oid" or "name" is enough; "critical"
// is false where it is missing. Refuses DUPLICATE_EXTENSION and EMPTY as well.
ORTHOLAN_EXPORT ortholan_reason ortholan_extensions_from_json(ortholan_text json, uint8_t* out,
                                                              size_t room, size_t* size,
                                                              ortholan_refusal* refusal);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSIONS_H_
