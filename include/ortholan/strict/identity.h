// Whose certificate: whether it is for the host, address, mailbox, URI or service that was asked
// for (RFC 9525, RFC 5280 4.2.1.6, RFC 9598). Alternative names alone count, never the subject.
// Signature, validity, usage and revocation are not looked at.
//
//   ortholan_reference reference = {0};
//   reference.kind = ORTHOLAN_REFERENCE_HOST;
//   reference.text = (ortholan_text){"www.example.org", 15};
//   ortholan_identity identity;
//   if (ortholan_identify(der, &reference, &identity, &refusal) == 0 &&
//       identity.verdict == ORTHOLAN_VERDICT_YES) ...
#ifndef ORTHOLAN_STRICT_IDENTITY_H_
#define ORTHOLAN_STRICT_IDENTITY_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// Identity, 200 to 259. Presented names that are malformed are told by the reasons of general
// names.
enum {
  // No name of the certificate is the one that was asked for.
  ORTHOLAN_REASON_NO_MATCH = 200,
  // The certificate has no subject alternative names.
  ORTHOLAN_REASON_NO_ALTERNATIVE_NAMES = 201,
  // It is a request or a CRL.
  ORTHOLAN_REASON_NO_CERTIFICATE = 202,
  // A name of another kind than the one that was asked for.
  ORTHOLAN_REASON_OTHER_KIND = 203,
  // Another host.
  ORTHOLAN_REASON_OTHER_HOST = 204,
  // "*" stands for exactly one label, and the host has none there or several (RFC 9525 6.3).
  ORTHOLAN_REASON_WILDCARD_LABELS = 205,
  // Another address.
  ORTHOLAN_REASON_OTHER_ADDRESS = 206,
  // An IPv4 address where IPv6 was asked for, or the other way round.
  ORTHOLAN_REASON_OTHER_FAMILY = 207,
  // Another local part of a mailbox; its case counts (RFC 5280 4.2.1.6).
  ORTHOLAN_REASON_OTHER_LOCAL_PART = 208,
  // Another scheme of a URI (RFC 9525 6.5.2).
  ORTHOLAN_REASON_OTHER_SCHEME = 209,
  // Another service (RFC 9525 6.5.1).
  ORTHOLAN_REASON_OTHER_SERVICE_NAME = 210,
  // An address was asked for as a host (RFC 9525 6.4).
  ORTHOLAN_REASON_HOST_IS_ADDRESS = 211,
  // A URI whose place of the host holds neither a name nor an address (RFC 9525 6.5.2).
  ORTHOLAN_REASON_URI_HOST = 212,
  // A SmtpUTF8Mailbox whose local part is ASCII, which belongs into an rfc822Name (RFC 9598 3).
  ORTHOLAN_REASON_ASCII_LOCAL_PART = 213
};

// Kinds of what is asked for.
enum {
  // A host name in letters, digits, hyphens and A-labels; one dot at its end is dropped.
  ORTHOLAN_REFERENCE_HOST = 1,
  // An IPv4 or IPv6 address as text, without brackets.
  ORTHOLAN_REFERENCE_ADDRESS = 2,
  // A mailbox: "joe@example.org".
  ORTHOLAN_REFERENCE_MAILBOX = 3,
  // A URI, of which scheme and host count.
  ORTHOLAN_REFERENCE_URI = 4,
  // A service with its host: "_imaps.example.org" (RFC 4985).
  ORTHOLAN_REFERENCE_SERVICE = 5
};

// Choices of a reference, added.
enum {
  // Hosts with an underscore are no host names, asked for or presented.
  ORTHOLAN_IDENTIFY_NO_UNDERSCORE = 1
};

// A question.
typedef struct ortholan_reference {
  int32_t kind;      // an ORTHOLAN_REFERENCE_ word
  uint32_t choices;  // ORTHOLAN_IDENTIFY_ words
  ortholan_text text;
} ortholan_reference;

// The answer. Views point into the octets that were asked.
typedef struct ortholan_identity {
  ortholan_verdict verdict;
  ortholan_reason reason;  // why not, for NO and CANNOT_TELL
  ortholan_octets name;    // for YES the GeneralName that matched, a whole element
  size_t index;            // its number among the names, from 0
  ortholan_octets names;   // the names that were looked at, one element behind the other
  size_t name_count;
} ortholan_identity;

// Whether a certificate is for what is asked. A question that is none of its kind is refused, with
// the place in its text. A certificate that cannot be read, in DER, is answered by CANNOT_TELL,
// with the place in the certificate.
ORTHOLAN_EXPORT ortholan_reason ortholan_identify(ortholan_octets certificate,
                                                  const ortholan_reference* reference,
                                                  ortholan_identity* identity,
                                                  ortholan_refusal* refusal);
// The same of the value of an alternative-name extension alone.
ORTHOLAN_EXPORT ortholan_reason ortholan_identify_by_names(ortholan_octets names,
                                                           const ortholan_reference* reference,
                                                           ortholan_identity* identity,
                                                           ortholan_refusal* refusal);
// One presented name, and why it is not the one that was asked for.
typedef struct ortholan_presented_name {
  ortholan_octets bytes;   // the element
  ortholan_reason reason;  // that it is malformed, or else what differs; NONE for one that matches
} ortholan_presented_name;

// Explains the name at `*offset` of an answer's names, which begins as 0 and moves behind it.
// Refuses NOT_FOUND at the end.
//   reference  the question that was answered
ORTHOLAN_EXPORT ortholan_reason ortholan_identity_explain(const ortholan_identity* identity,
                                                          const ortholan_reference* reference,
                                                          size_t* offset,
                                                          ortholan_presented_name* presented);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_IDENTITY_H_
