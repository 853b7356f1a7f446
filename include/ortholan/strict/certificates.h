// Certificates, certificate requests and CRLs over borrowed octets (RFC 5280 4.1 and 5.1, RFC 2986
// 4): their names, times and extensions, and PEM text that holds them. Keys and signatures are not
// looked at.
//
//   ortholan_certificate_view certificate;
//   if (ortholan_certificate_view_read(der, ORTHOLAN_READ_DER, &certificate, &refusal) == 0) {
//     ortholan_extension_view names;
//     ortholan_certificate_view_extension(&certificate, oid, &names, &refusal);
//   }
#ifndef ORTHOLAN_STRICT_CERTIFICATES_H_
#define ORTHOLAN_STRICT_CERTIFICATES_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// PEM text, 121 to 129 (RFC 7468).
enum {
  // A block does not end, or another line with dashes stands in it.
  ORTHOLAN_REASON_PEM_END = 121,
  // A block ends with another label than it begins with.
  ORTHOLAN_REASON_PEM_LABEL = 122,
  // Text of a block that is no base64 with its padding (RFC 4648 4).
  ORTHOLAN_REASON_BASE64 = 123
};

enum { ORTHOLAN_CERTIFICATE = 1, ORTHOLAN_CERTIFICATE_REQUEST = 2, ORTHOLAN_REVOCATION_LIST = 3 };

// What was read. Parts that the kind has not are empty.
typedef struct ortholan_certificate_view {
  int32_t kind;                // one of the three; 0 for a list of extensions by itself
  ortholan_octets der;         // the whole encoding
  ortholan_octets subject;     // a whole Name; a CRL has none
  ortholan_octets issuer;      // a whole Name; a request has none
  ortholan_octets serial;      // content of the INTEGER; of a certificate alone
  ortholan_octets not_before;  // a whole element; of a CRL thisUpdate
  ortholan_octets not_after;   // a whole element; of a CRL nextUpdate
  ortholan_octets extensions;  // elements one behind the other; of a request those asked for
  size_t extension_count;
} ortholan_certificate_view;

// One extension.
typedef struct ortholan_extension_view {
  ortholan_octets oid;    // content octets of the identifier
  ortholan_octets value;  // inside the OCTET STRING
  ortholan_octets bytes;  // the whole element
  int32_t critical;       // 1 or 0
} ortholan_extension_view;

// Reads a certificate, a request or a CRL that is the whole of `der`. The outer shape is checked;
// names, times, keys and the values of extensions are not.
//   mode  an ORTHOLAN_READ_ word
ORTHOLAN_EXPORT ortholan_reason
ortholan_certificate_view_read(ortholan_octets der, int32_t mode,
                               ortholan_certificate_view* certificate, ortholan_refusal* refusal);
// The extension at `*offset`, which begins as 0 and moves behind it. Refuses NOT_FOUND at the end.
ORTHOLAN_EXPORT ortholan_reason
ortholan_certificate_view_next_extension(const ortholan_certificate_view* certificate,
                                         size_t* offset, ortholan_extension_view* extension);
// The one extension of a type. Refuses NOT_FOUND, and DUPLICATE_EXTENSION with the second one's
// place where there are several.
//   oid  content octets of the identifier
ORTHOLAN_EXPORT ortholan_reason ortholan_certificate_view_extension(
    const ortholan_certificate_view* certificate, ortholan_octets oid,
    ortholan_extension_view* extension, ortholan_refusal* refusal);

// A list of extensions by itself, SEQUENCE SIZE (1..MAX) OF Extension (RFC 5280 4.1.2.9): what is
// the whole of `der` becomes the extensions of a view without any other part, whose kind is 0, for
// the two functions above.
//   mode  an ORTHOLAN_READ_ word
ORTHOLAN_EXPORT ortholan_reason ortholan_extensions_view_read(ortholan_octets der, int32_t mode,
                                                              ortholan_certificate_view* extensions,
                                                              ortholan_refusal* refusal);
// Writes such a list, in the order given; `bytes` are not looked at, nor what values hold. Refuses
// EMPTY for a list of none, and, with the extension's index in `met`, OID and DUPLICATE_EXTENSION.
ORTHOLAN_EXPORT ortholan_reason ortholan_extensions_write(const ortholan_extension_view* extensions,
                                                          size_t count, uint8_t* out, size_t room,
                                                          size_t* size, ortholan_refusal* refusal);

// The attribute extensionRequest of a certificate request around such a list (RFC 2985 5.4.2):
// SEQUENCE { 1.2.840.113549.1.9.14, SET { extensions } }. Refuses what is no list in DER.
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_request_write(ortholan_octets extensions,
                                                                 uint8_t* out, size_t room,
                                                                 size_t* size,
                                                                 ortholan_refusal* refusal);

// A time, a whole element, as "2026-11-21T22:05:00Z". Refuses TIME.
ORTHOLAN_EXPORT ortholan_reason ortholan_time_to_text(ortholan_octets time, char* out, size_t room,
                                                      size_t* size);

// A block of PEM text.
typedef struct ortholan_pem_block {
  ortholan_text label;   // "CERTIFICATE"
  ortholan_text base64;  // what stands between its lines, checked
} ortholan_pem_block;

// The next block at or behind `*offset`, which begins as 0 and moves behind it; what stands between
// blocks is passed over. Refuses NOT_FOUND at the end, and a block that is out of form.
ORTHOLAN_EXPORT ortholan_reason ortholan_pem_next(ortholan_text text, size_t* offset,
                                                  ortholan_pem_block* block,
                                                  ortholan_refusal* refusal);
// The octets of a block.
ORTHOLAN_EXPORT ortholan_reason ortholan_pem_octets(const ortholan_pem_block* block, uint8_t* out,
                                                    size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_CERTIFICATES_H_
