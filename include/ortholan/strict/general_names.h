// General names typed (RFC 5280 4.2.1.6): hosts, mailboxes, URIs, addresses, other names.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_H_

#include <ortholan/strict/base.h>
#include <ortholan/strict/names.h>

#ifdef __cplusplus
extern "C" {
#endif

// General names, 140 to 179.
enum {
  // A host name, or the host of a mailbox or a URI, is empty.
  ORTHOLAN_REASON_HOST_EMPTY = 140,
  // Two dots in a row, or one in front (RFC 1034 3.1).
  ORTHOLAN_REASON_HOST_EMPTY_LABEL = 141,
  // A label of more than 63 octets (RFC 1034 3.1).
  ORTHOLAN_REASON_HOST_LONG_LABEL = 142,
  // A host name of more than 253 octets, without a dot at its end.
  ORTHOLAN_REASON_HOST_LONG = 143,
  // A character that is no letter, digit, hyphen or dot (RFC 1034 3.5).
  ORTHOLAN_REASON_HOST_CHARACTER = 144,
  // An underscore where none is wanted.
  ORTHOLAN_REASON_HOST_UNDERSCORE = 145,
  // A label that begins or ends with a hyphen (RFC 1034 3.5).
  ORTHOLAN_REASON_HOST_HYPHEN = 146,
  // The last label is a number, as that of an IPv4 address is (RFC 1123 2.1).
  ORTHOLAN_REASON_HOST_NUMERIC = 147,
  // Letters beyond ASCII; the host has to be written in A-labels (RFC 5890 2.3.2.1).
  ORTHOLAN_REASON_HOST_UNICODE = 148,
  // A dot at the end where none is wanted.
  ORTHOLAN_REASON_HOST_TRAILING_DOT = 149,
  // A "*" that is not the whole left-most label, or that has fewer than two labels behind it
  // (RFC 9525 6.3 and 7.1).
  ORTHOLAN_REASON_HOST_WILDCARD = 150,
  // A mailbox without a "@" between local part and host (RFC 5321 4.1.2).
  ORTHOLAN_REASON_MAILBOX_AT = 151,
  // The local part of a mailbox is neither a dot-string nor a quoted string, or is above 64 octets.
  ORTHOLAN_REASON_MAILBOX_LOCAL = 152,
  // An address literal of a mailbox that names no address (RFC 5321 4.1.3).
  ORTHOLAN_REASON_MAILBOX_LITERAL = 153,
  // A URI without a scheme and its colon in front (RFC 3986 3.1).
  ORTHOLAN_REASON_URI_SCHEME = 154,
  // A character that no URI has, or a "%" without two hexadecimal digits (RFC 3986 2).
  ORTHOLAN_REASON_URI_CHARACTER = 155,
  // A host in brackets that is no address (RFC 3986 3.2.2).
  ORTHOLAN_REASON_URI_LITERAL = 156,
  // A port that is no number (RFC 3986 3.2.3).
  ORTHOLAN_REASON_URI_PORT = 157,
  // No service name: "_", one to fifteen letters, digits and hyphens, "." and a host (RFC 4985 2).
  ORTHOLAN_REASON_SERVICE = 158,
  // The value of an other name is not what its type prescribes.
  ORTHOLAN_REASON_OTHER_NAME = 159,
  // Text that is no address, and no address with a prefix or mask.
  ORTHOLAN_REASON_ADDRESS_TEXT = 160,
  // A tag that is none of the nine, or one of them in the wrong form.
  ORTHOLAN_REASON_GENERAL_NAME = 170,
  // A control character or an octet outside IA5String in a name of characters.
  ORTHOLAN_REASON_NAME_CHARACTER = 171,
  // An address of neither 4 nor 16 octets; with a mask, of neither 8 nor 32.
  ORTHOLAN_REASON_ADDRESS_SIZE = 172
};

// What kind of other name a type stands for.
enum {
  ORTHOLAN_OTHER_UNKNOWN = 0,
  ORTHOLAN_OTHER_UPN = 1,              // user principal name of Windows, 1.3.6.1.4.1.311.20.2.3
  ORTHOLAN_OTHER_SERVICE = 2,          // SRVName, RFC 4985
  ORTHOLAN_OTHER_UTF8_MAILBOX = 3,     // SmtpUTF8Mailbox, RFC 9598
  ORTHOLAN_OTHER_KERBEROS = 4,         // KRB5PrincipalName, RFC 4556 3.2.2
  ORTHOLAN_OTHER_XMPP = 5,             // XmppAddr, RFC 6120 13.7.1.4
  ORTHOLAN_OTHER_PERMANENT_ID = 6,     // PermanentIdentifier, RFC 4043
  ORTHOLAN_OTHER_HARDWARE_MODULE = 7,  // HardwareModuleName, RFC 4108 5
  ORTHOLAN_OTHER_GUID = 8              // of a domain controller, 1.3.6.1.4.1.311.25.1
};

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_H_
