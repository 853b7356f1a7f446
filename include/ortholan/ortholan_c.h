// The library for every other language: names, general names and extensions behind a plain C
// interface. C99, C++ and any foreign-function interface; it needs no C++ runtime of the caller's.
//
//   ortholan_name* name = NULL;
//   char* text = NULL;
//   if (ortholan_name_from_text("CN=Alpha, O=Org, C=RU", 0, 1, &name) != ORTHOLAN_OK ||
//       ortholan_name_text(name, ORTHOLAN_STYLE_KEYS, &text, NULL) != ORTHOLAN_OK) {
//     fprintf(stderr, "%s\n", ortholan_last_error_message());
//   } else {
//     puts(text); /* C=RU,O=Org,CN=Alpha */
//   }
//   ortholan_free(text);
//   ortholan_name_free(name);
//
// What holds for every function below:
//
// Results.   Functions that can fail return an ortholan_result: ORTHOLAN_OK or an error of the list
//            below. After a failure every output is NULL or 0, so that freeing it does no harm, and
//            a handle that was to be changed is unchanged. No exception and no signal comes out.
// Ownership. Inputs stay the caller's and are not kept. Outputs are the caller's: handles go back
//            to the _free function of their type, everything else (text, octets, arrays) to
//            ortholan_free and to no other deallocator. All of these take NULL.
// Text.      UTF-8, terminated by NUL; functions whose name ends in _n take a size in octets
//            instead, and text that may hold NUL. Text that is no UTF-8 is refused, never repaired.
//            Text that comes out is always UTF-8 and terminated; where the size is asked for, it
//            counts octets without the terminator. A name may hold characters that have no UTF-8
//            form (an unpaired surrogate in a BMPString, broken octets in a UTF8String): U+FFFD
//            stands for each, so that decisions about such a name are made by ortholan_name_equal
//            or by its DER.
// NULL.      A pointer may be NULL only where the function says so; otherwise, ORTHOLAN_ERROR_
//            ARGUMENT. Octets of size 0 may have any address.
// Threads.   Functions may run at the same time on different handles, and those that take the
//            handle as const also on the same one. The last error is each thread's own.
// Stability. Numbers, signatures and structures below do not change within a major version;
//            functions and error numbers may be added.
#ifndef ORTHOLAN_ORTHOLAN_C_H_
#define ORTHOLAN_ORTHOLAN_C_H_

#include <ortholan/export.h>
#include <stddef.h>
#include <stdint.h>

// Marks the functions below.
#define ORTHOLAN_C_API ORTHOLAN_EXPORT

#ifdef __cplusplus
extern "C" {
#endif

// ---- Results -----------------------------------------------------------------------------------

// ORTHOLAN_OK or an error; treat a number that is not listed as an error.
typedef int32_t ortholan_result;

enum {
  // No failure.
  ORTHOLAN_OK = 0,
  // A pointer is NULL that may not be, or a size passes 4 GiB - 1.
  ORTHOLAN_ERROR_ARGUMENT = 1,
  // Out of memory.
  ORTHOLAN_ERROR_MEMORY = 2,
  // Text that is no UTF-8 (Unicode 15, 3.9): cut short, overlong, a surrogate, beyond U+10FFFF.
  ORTHOLAN_ERROR_UTF8 = 3,
  // A name text that cannot be encoded: empty, no list of `type = value`, a type that is not
  // written, a value that is empty or outside the alphabet of its type.
  ORTHOLAN_ERROR_NAME_TEXT = 4,
  // An attribute type or an identifier that is neither a known key nor a dotted identifier.
  ORTHOLAN_ERROR_TYPE = 5,
  // A single value that is empty or outside the alphabet of its type.
  ORTHOLAN_ERROR_VALUE = 6,
  // Octets that are not one encoding of what was asked for, or that go on behind it.
  ORTHOLAN_ERROR_DER = 7,
  // A name with an RDN of several attributes, which no operation here takes.
  ORTHOLAN_ERROR_MULTI_VALUED = 8,
  // No such attribute, extension or index.
  ORTHOLAN_ERROR_NOT_FOUND = 9,
  // The system refused; ortholan_last_system_error has its code.
  ORTHOLAN_ERROR_SYSTEM = 10,
  // A fault of the library.
  ORTHOLAN_ERROR_INTERNAL = 11
};

// The four below tell of the last call that failed in this thread, and stay until the next one
// fails: ORTHOLAN_OK, 0 and "" where none did.
ORTHOLAN_C_API ortholan_result ortholan_last_error(void);
// The library's status code (docs/status-codes.md): 1 not encodable, 16 out of memory, 28 invalid
// argument, 36 system error, 131 element of another type, 205 bad ASN.1 tag, 206 ASN.1 corrupt or
// cut short; 0 where the failure has none.
ORTHOLAN_C_API uint32_t ortholan_last_status(void);
// The last-error code of the system (on Linux: of what stands for it), 0 where none was set.
ORTHOLAN_C_API uint32_t ortholan_last_system_error(void);
// One English sentence with the function's name; for a name text that is refused, the place and
// what was expected there, as ortholan_name_text_error tells it. It stays the library's and is
// valid until the next call that fails in this thread, or its end.
ORTHOLAN_C_API const char* ortholan_last_error_message(void);

// Version of the library, "1.0.0"; static, never to be freed.
ORTHOLAN_C_API const char* ortholan_version(void);

// Releases text, octets or an array that a function below gave out.
ORTHOLAN_C_API void ortholan_free(void* memory);

// ---- Names (X.501, RFC 5280 4.1.2.4) -----------------------------------------------------------

// One distinguished name, held as its DER; it can always be read. Its RDNs hold one attribute each.
typedef struct ortholan_name ortholan_name;

// How text is written into a name; words are made with |. All other bits change nothing.
enum {
  // Elements are separated by "," only. Of the three separators the first one that is set wins in
  // this order; without any all four characters separate.
  ORTHOLAN_ENCODE_COMMA = 0x04000000,
  ORTHOLAN_ENCODE_SEMICOLON = 0x40000000,  // by ";" only
  ORTHOLAN_ENCODE_CRLF = 0x08000000,       // by CR and LF only
  // Text outside PrintableString as UTF8String instead of BMPString.
  ORTHOLAN_ENCODE_UTF8 = 0x00040000,
  // With ORTHOLAN_ENCODE_UTF8: all free text as UTF8String, printable or not.
  ORTHOLAN_ENCODE_ALWAYS = 0x00100000
};

// How a name is written as text: one style, and with | one separator. Without a separator: ",".
enum {
  ORTHOLAN_STYLE_VALUES = 1,                 // values alone, always separated by ","
  ORTHOLAN_STYLE_OIDS = 2,                   // 2.5.4.3=Alpha
  ORTHOLAN_STYLE_KEYS = 3,                   // CN=Alpha
  ORTHOLAN_SEPARATE_SEMICOLON = 0x40000000,  // ";" between RDNs
  ORTHOLAN_SEPARATE_CRLF = 0x08000000        // CR LF; before the semicolon where both are set
};

// Encodes a name text: `type = value` elements, each an RDN (docs/name-text.md).
//   options  ORTHOLAN_ENCODE_ words
//   sort     0 keeps the order of the text, anything else writes the canonical one: unknown types,
//            country, locality, state, ... common name last
// Fails: ARGUMENT, UTF8, NAME_TEXT, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_from_text(const char* text, uint32_t options, int sort,
                                                       ortholan_name** name);
ORTHOLAN_C_API ortholan_result ortholan_name_from_text_n(const char* text, size_t size,
                                                         uint32_t options, int sort,
                                                         ortholan_name** name);
// What is wrong with the first place of a name text that is.
enum {
  ORTHOLAN_FAULT_NONE = 0,               // the text is taken
  ORTHOLAN_FAULT_NO_TEXT = 1,            // nothing but white space
  ORTHOLAN_FAULT_MISSING_TYPE = 2,       // a delimiter, "=" or the end where a type has to stand
  ORTHOLAN_FAULT_MISSING_EQUALS = 3,     // a type without "=", often the rest of a value
  ORTHOLAN_FAULT_UNKNOWN_TYPE = 4,       // a type that is not written
  ORTHOLAN_FAULT_MISSING_VALUE = 5,      // a type and "=" alone
  ORTHOLAN_FAULT_UNEXPECTED_EQUALS = 6,  // an unquoted value that begins with "="
  ORTHOLAN_FAULT_UNEXPECTED_TEXT = 7,    // text behind a closing quote
  ORTHOLAN_FAULT_WRONG_CHARACTER = 8     // a character outside the type's string type
};

// Why ortholan_name_from_text refuses `text`, and where.
//   fault     an ORTHOLAN_FAULT_ word
//   position  octets of the text before the place
//   length    octets that were met there, 0 at the end
//   message   one sentence without a full stop, with the place counted in characters from 1; may be
//             NULL; "" for ORTHOLAN_FAULT_NONE
// Fails: ARGUMENT, UTF8, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_text_error(const char* text, uint32_t options,
                                                        uint32_t* fault, size_t* position,
                                                        size_t* length, char** message);
ORTHOLAN_C_API ortholan_result ortholan_name_text_error_n(const char* text, size_t size,
                                                          uint32_t options, uint32_t* fault,
                                                          size_t* position, size_t* length,
                                                          char** message);
// Takes over the encoding of one name, octet for octet. BER is accepted. What can be read is what
// the library reads: types and values are told apart by tag number, values are not looked at.
// Fails: ARGUMENT, DER, MULTI_VALUED, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_from_der(const uint8_t* der, size_t size,
                                                      ortholan_name** name);
// The name without RDNs (30 00), to be filled with ortholan_name_add.
ORTHOLAN_C_API ortholan_result ortholan_name_new(ortholan_name** name);
// A copy that lives on its own.
ORTHOLAN_C_API ortholan_result ortholan_name_copy(const ortholan_name* name, ortholan_name** copy);
// Releases the handle; NULL is ignored.
ORTHOLAN_C_API void ortholan_name_free(ortholan_name* name);

// The name as text, for display; "" for the name without RDNs. Values of the old 8-bit string types
// outside ASCII are read in the thread's code page on Windows and as UTF-8 elsewhere.
//   options  one ORTHOLAN_STYLE_ and at most one ORTHOLAN_SEPARATE_ word
//   size     octets of the text, which may hold NUL; may be NULL
// Fails: ARGUMENT, MEMORY; DER for a value of a string type whose octets are no such string, and
// for values nested more than 32 deep (ortholan_name_attributes takes both).
ORTHOLAN_C_API ortholan_result ortholan_name_text(const ortholan_name* name, uint32_t options,
                                                  char** text, size_t* size);
// The encoding, as it came in or was made.
ORTHOLAN_C_API ortholan_result ortholan_name_der(const ortholan_name* name, uint8_t** der,
                                                 size_t* size);

// One attribute of a name. All pointers point into the array's own memory.
typedef struct ortholan_attribute {
  const char* type;   // dotted identifier, "2.5.4.3"
  const char* key;    // short key as in ORTHOLAN_STYLE_KEYS, "CN"; the identifier where none is
  const char* value;  // text without quotes; lines of a list of values are separated by LF; a value
                      // that cannot be decoded is "#" and the hexadecimal digits of its encoding
  size_t value_size;  // octets of the text, which may hold NUL
  const uint8_t* der;  // whole encoding of the value; its first octet tells the string type
  size_t der_size;
} ortholan_attribute;

// Number of RDNs, which is the number of attributes.
ORTHOLAN_C_API ortholan_result ortholan_name_count(const ortholan_name* name, size_t* count);
// All attributes in the order of the encoding, as one block: one ortholan_free releases them. NULL
// with count 0 for the name without RDNs.
ORTHOLAN_C_API ortholan_result ortholan_name_attributes(const ortholan_name* name,
                                                        ortholan_attribute** attributes,
                                                        size_t* count);

// Where a `type` is asked for: a dotted identifier, or a key in any letter case ("CN", "email").

// Value text of the first attribute of the type, as in ortholan_attribute.
//   size  octets of the text, which may hold NUL; may be NULL
// Fails: ARGUMENT, UTF8, TYPE (a malformed identifier), NOT_FOUND, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_get(const ortholan_name* name, const char* type,
                                                 char** value, size_t* size);
// Appends an RDN. Values are taken as they stand: no quotes, no separators. A type whose string
// type its standard prescribes is written in that: DC (0.9.2342.19200300.100.1.25) and e-mail as
// IA5String, countries and serial numbers as PrintableString.
//   type     a key of those that are written, or any dotted identifier
//   options  ORTHOLAN_ENCODE_UTF8 and ORTHOLAN_ENCODE_ALWAYS; separators change nothing
// Fails: ARGUMENT, UTF8, TYPE, VALUE, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_add(ortholan_name* name, const char* type,
                                                 const char* value, uint32_t options);
ORTHOLAN_C_API ortholan_result ortholan_name_add_n(ortholan_name* name, const char* type,
                                                   const char* value, size_t size,
                                                   uint32_t options);
// Replaces the first attribute of the type where it stands, or appends it where there is none. All
// other RDNs keep their octets. Fails as ortholan_name_add does.
ORTHOLAN_C_API ortholan_result ortholan_name_set(ortholan_name* name, const char* type,
                                                 const char* value, uint32_t options);
ORTHOLAN_C_API ortholan_result ortholan_name_set_n(ortholan_name* name, const char* type,
                                                   const char* value, size_t size,
                                                   uint32_t options);
// Removes the first attribute of the type. Fails: ARGUMENT, UTF8, TYPE, NOT_FOUND, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_name_remove(ortholan_name* name, const char* type);

// Whether both names hold the same attributes: types and decoded text, in any order, each as often.
// Neither the string type of a value nor the letter case of a key counts; letter case and white
// space of values do. This is not the matching of RFC 5280 7.1.
//   equal  1 or 0
ORTHOLAN_C_API ortholan_result ortholan_name_equal(const ortholan_name* a, const ortholan_name* b,
                                                   int* equal);

// ---- General names (RFC 5280 4.2.1.6) ----------------------------------------------------------

// One alternative name, held as its encoding.
typedef struct ortholan_general_name ortholan_general_name;
// The value of a subjectAltName extension and the like: SEQUENCE OF GeneralName.
typedef struct ortholan_general_names ortholan_general_names;

// Which alternative a general name is: the number of its context tag.
enum {
  ORTHOLAN_OTHER_NAME = 0,
  ORTHOLAN_RFC822_NAME = 1,
  ORTHOLAN_DNS_NAME = 2,
  ORTHOLAN_X400_ADDRESS = 3,
  ORTHOLAN_DIRECTORY_NAME = 4,
  ORTHOLAN_EDI_PARTY_NAME = 5,
  ORTHOLAN_URI = 6,
  ORTHOLAN_IP_ADDRESS = 7,
  ORTHOLAN_REGISTERED_ID = 8
};

// Takes over one element whose content lies within it. Fails: ARGUMENT, DER, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_general_name_from_der(const uint8_t* der, size_t size,
                                                              ortholan_general_name** name);
// Releases the handle; NULL is ignored.
ORTHOLAN_C_API void ortholan_general_name_free(ortholan_general_name* name);
// The tag number, whatever the class; also one that ORTHOLAN_OTHER_NAME and so on do not list.
ORTHOLAN_C_API ortholan_result ortholan_general_name_kind(const ortholan_general_name* name,
                                                          uint32_t* kind);
// The library's text for display. It is the text of e-mail and DNS names and URIs; for the other
// kinds it is a rendering of raw octets, some of it in Russian: read ortholan_general_name_value.
//   size  octets of the text, which may hold NUL; may be NULL
// Fails: ARGUMENT, MEMORY; DER for content that is not of the kind's form.
ORTHOLAN_C_API ortholan_result ortholan_general_name_text(const ortholan_general_name* name,
                                                          char** text, size_t* size);
// The content octets, without the tag: 4 or 16 octets of an address, characters of an e-mail or DNS
// name or URI, the Name of a directory name (for ortholan_name_from_der).
ORTHOLAN_C_API ortholan_result ortholan_general_name_value(const ortholan_general_name* name,
                                                           uint8_t** value, size_t* size);
// The element as it came in.
ORTHOLAN_C_API ortholan_result ortholan_general_name_der(const ortholan_general_name* name,
                                                         uint8_t** der, size_t* size);

// Reads the SEQUENCE. Fails: ARGUMENT, DER (also for a single name that cannot be read), MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_general_names_from_der(const uint8_t* der, size_t size,
                                                               ortholan_general_names** names);
// Releases the handle; NULL is ignored.
ORTHOLAN_C_API void ortholan_general_names_free(ortholan_general_names* names);
// Number of names in the list.
ORTHOLAN_C_API ortholan_result ortholan_general_names_count(const ortholan_general_names* names,
                                                            size_t* count);
// A copy of the name at `index`, counted from 0. Fails: ARGUMENT, NOT_FOUND, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_general_names_get(const ortholan_general_names* names,
                                                          size_t index,
                                                          ortholan_general_name** name);

// ---- Extensions (RFC 5280 4.1) -----------------------------------------------------------------

// SEQUENCE { OBJECT IDENTIFIER, BOOLEAN DEFAULT FALSE, OCTET STRING }
typedef struct ortholan_extension ortholan_extension;
// SEQUENCE OF Extension, in the order of the encoding.
typedef struct ortholan_extensions ortholan_extensions;

// Builds an extension.
//   oid       dotted identifier
//   critical  0 or anything else
//   value     content of the OCTET STRING: the encoding of the extension's own structure
// Fails: ARGUMENT, UTF8, TYPE, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_extension_new(const char* oid, int critical,
                                                      const uint8_t* value, size_t size,
                                                      ortholan_extension** extension);
// Reads one extension. Fails: ARGUMENT, DER, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_extension_from_der(const uint8_t* der, size_t size,
                                                           ortholan_extension** extension);
// Releases the handle; NULL is ignored.
ORTHOLAN_C_API void ortholan_extension_free(ortholan_extension* extension);
// Dotted identifier.
ORTHOLAN_C_API ortholan_result ortholan_extension_oid(const ortholan_extension* extension,
                                                      char** oid);
// 1 or 0.
ORTHOLAN_C_API ortholan_result ortholan_extension_critical(const ortholan_extension* extension,
                                                           int* critical);
// Content of the OCTET STRING.
ORTHOLAN_C_API ortholan_result ortholan_extension_value(const ortholan_extension* extension,
                                                        uint8_t** value, size_t* size);
// The extension in DER, made anew. Fails: ARGUMENT, MEMORY; TYPE for an identifier of more than 260
// octets, which can be read and not written.
ORTHOLAN_C_API ortholan_result ortholan_extension_der(const ortholan_extension* extension,
                                                      uint8_t** der, size_t* size);

// The list without extensions, to be filled with ortholan_extensions_set.
ORTHOLAN_C_API ortholan_result ortholan_extensions_new(ortholan_extensions** extensions);
// Reads the SEQUENCE, without the [3] that a certificate wraps it in. Extensions with the same
// identifier all stay. Fails: ARGUMENT, DER, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_extensions_from_der(const uint8_t* der, size_t size,
                                                            ortholan_extensions** extensions);
// Releases the handle; NULL is ignored.
ORTHOLAN_C_API void ortholan_extensions_free(ortholan_extensions* extensions);
// Number of extensions in the list.
ORTHOLAN_C_API ortholan_result ortholan_extensions_count(const ortholan_extensions* extensions,
                                                         size_t* count);
// A copy of the extension at `index`, counted from 0. Fails: ARGUMENT, NOT_FOUND, MEMORY.
ORTHOLAN_C_API ortholan_result ortholan_extensions_get(const ortholan_extensions* extensions,
                                                       size_t index,
                                                       ortholan_extension** extension);
// A copy of the first extension with the dotted identifier. Fails as ortholan_extensions_get does.
ORTHOLAN_C_API ortholan_result ortholan_extensions_find(const ortholan_extensions* extensions,
                                                        const char* oid,
                                                        ortholan_extension** extension);
// Puts a copy of `extension` in the place of the first one with the same identifier, or at the end.
ORTHOLAN_C_API ortholan_result ortholan_extensions_set(ortholan_extensions* extensions,
                                                       const ortholan_extension* extension);
// The SEQUENCE in DER, made anew. Fails as ortholan_extension_der does.
ORTHOLAN_C_API ortholan_result ortholan_extensions_der(const ortholan_extensions* extensions,
                                                       uint8_t** der, size_t* size);

#ifdef __cplusplus
}
#endif

#endif  // ORTHOLAN_ORTHOLAN_C_H_
