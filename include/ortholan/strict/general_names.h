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
  // An address with a mask, which stands in name constraints alone.
  ORTHOLAN_REASON_ADDRESS_RANGE = 161,
  // Text of a name that begins with none of the kinds: "DNS:", "IP:", "email:", ...
  ORTHOLAN_REASON_NAME_KIND = 162,
  // A backslash in the text of a name without "\\" or two hexadecimal digits behind it.
  ORTHOLAN_REASON_NAME_ESCAPE = 163,
  // Text of a name that is not of the form of its kind.
  ORTHOLAN_REASON_NAME_VALUE = 164,
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

// The nine kinds, by the number of their tag (RFC 5280 4.2.1.6).
enum {
  ORTHOLAN_NAME_OTHER = 0,
  ORTHOLAN_NAME_MAIL = 1,  // rfc822Name
  ORTHOLAN_NAME_DNS = 2,
  ORTHOLAN_NAME_X400 = 3,
  ORTHOLAN_NAME_DIRECTORY = 4,
  ORTHOLAN_NAME_EDI_PARTY = 5,
  ORTHOLAN_NAME_URI = 6,
  ORTHOLAN_NAME_ADDRESS = 7,
  ORTHOLAN_NAME_REGISTERED_ID = 8
};

// One general name.
typedef struct ortholan_general_name_view {
  int32_t kind;             // an ORTHOLAN_NAME_ word
  int32_t other;            // an ORTHOLAN_OTHER_ word; UNKNOWN for every kind but OTHER
  ortholan_octets bytes;    // the whole element
  ortholan_octets content;  // characters, octets of an address, content of an identifier, the whole
                            // Name of a directory name, of other kinds what is inside the tag
} ortholan_general_name_view;

// A list of general names that was read.
typedef struct ortholan_general_names_view {
  ortholan_octets der;    // the whole encoding
  ortholan_octets names;  // the elements, one behind the other
  size_t count;
} ortholan_general_names_view;

// Reads a list that is the whole of `der`, the value of an alternative-name extension. Each name is
// checked: names of characters are ASCII without controls, an address has 4 or 16 octets, an
// identifier and a directory name are in order.
//   mode  an ORTHOLAN_READ_ word; with STRUCTURE what is inside the names is not checked
ORTHOLAN_EXPORT ortholan_reason ortholan_general_names_view_read(ortholan_octets der, int32_t mode,
                                                                 ortholan_general_names_view* names,
                                                                 ortholan_refusal* refusal);
// The name at `*offset`, which begins as 0 and moves behind it. Refuses NOT_FOUND at the end.
ORTHOLAN_EXPORT ortholan_reason ortholan_general_names_view_next(
    const ortholan_general_names_view* names, size_t* offset, ortholan_general_name_view* name);
// Reads one name that is the whole of `der`, and checks it as a list does.
ORTHOLAN_EXPORT ortholan_reason ortholan_general_name_view_read(ortholan_octets der, int32_t mode,
                                                                ortholan_general_name_view* name,
                                                                ortholan_refusal* refusal);

// A mailbox (RFC 5321 4.1.2).
typedef struct ortholan_mailbox {
  ortholan_text local;      // as written, with its quotes
  ortholan_text host;       // a host name; empty where an address stands
  uint8_t address[16];      // of an address in brackets
  size_t address_size;      // 4, 16, or 0 where a host stands
  int32_t has_ascii_local;  // 1 where the local part is ASCII
} ortholan_mailbox;

// A URI (RFC 3986 3). Parts are as written; those that are missing are empty.
typedef struct ortholan_uri {
  ortholan_text scheme;
  ortholan_text userinfo;
  ortholan_text host;  // without brackets; need not be a host name
  ortholan_text port;
  ortholan_text rest;  // path, query and fragment
  uint8_t address[16];
  size_t address_size;    // 4 or 16 where the host is an address, else 0
  int32_t has_authority;  // 1 where "//" stands behind the scheme
} ortholan_uri;

// An other name (RFC 5280 4.2.1.6). Parts that its kind has not are empty.
typedef struct ortholan_other_name {
  int32_t kind;            // an ORTHOLAN_OTHER_ word
  uint32_t identifier;     // identifier octet of the value
  ortholan_octets type;    // content octets of the identifier
  ortholan_octets value;   // the whole element inside the explicit tag
  ortholan_text text;      // UPN, service, mailbox, XMPP address, permanent identifier (NULL where
                           // it has none), realm of a Kerberos principal
  ortholan_octets oid;     // assigner of a permanent identifier, type of a hardware module
  ortholan_octets octets;  // serial number of a hardware module, GUID as Windows stores it
  ortholan_octets components;  // of a Kerberos principal: GeneralStrings one behind the other
} ortholan_other_name;

// The EDIPartyName's parts, each a whole element of a string type.
typedef struct ortholan_edi_party {
  ortholan_octets assigner;  // empty where there is none
  ortholan_octets party;
} ortholan_edi_party;

// Takes a mailbox apart: of an rfc822Name or a SmtpUTF8Mailbox.
//   has_utf8  1 for a local part that may hold UTF-8
ORTHOLAN_EXPORT ortholan_reason ortholan_mailbox_read(ortholan_text text, int32_t has_utf8,
                                                      ortholan_mailbox* mailbox,
                                                      ortholan_refusal* refusal);
// Takes the text of a URI apart.
ORTHOLAN_EXPORT ortholan_reason ortholan_uri_read(ortholan_text text, ortholan_uri* uri,
                                                  ortholan_refusal* refusal);
// Reads an other name. A value that is not what its type prescribes is refused.
ORTHOLAN_EXPORT ortholan_reason ortholan_other_name_read(const ortholan_general_name_view* name,
                                                         ortholan_other_name* other,
                                                         ortholan_refusal* refusal);
// Reads an EDIPartyName.
ORTHOLAN_EXPORT ortholan_reason ortholan_edi_party_read(const ortholan_general_name_view* name,
                                                        ortholan_edi_party* party,
                                                        ortholan_refusal* refusal);

// Whether a text is a host name. Refuses a HOST_ reason at its place.
ORTHOLAN_EXPORT ortholan_reason ortholan_host_check(ortholan_text host, uint32_t choices,
                                                    ortholan_refusal* refusal);
// What a host name may have beyond letters, digits and inner hyphens, added.
enum {
  ORTHOLAN_HOST_UNDERSCORES = 1,
  ORTHOLAN_HOST_TRAILING_DOT = 2,
  ORTHOLAN_HOST_EDGE_HYPHENS = 4,
  ORTHOLAN_HOST_WILDCARD = 8  // "*." in front of two labels or more
};

// Octets of an address, or of a range with its mask, as text: RFC 5952 and CIDR. Refuses
// ADDRESS_SIZE.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_to_text(ortholan_octets address, char* out,
                                                         size_t room, size_t* size);
// The octets of an address, 4 or 16, or of a range "192.0.2.0/24" with its mask, 8 or 32. Refuses
// ADDRESS_TEXT.
ORTHOLAN_EXPORT ortholan_reason ortholan_address_from_text(ortholan_text text, uint8_t* out,
                                                           size_t room, size_t* size);

// One general name as text: "DNS:example.org", "IP:192.0.2.1", "email:", "URI:", "dirName:",
// "RID:", "UPN:", "SRV:", "otherName:1.2.3;UTF8:text" and others. What cannot be seen is escaped,
// so that no name passes for another or for two. Malformed names have a text as well.
//   name  a whole GeneralName
ORTHOLAN_EXPORT ortholan_reason ortholan_general_name_to_text(ortholan_octets name, char* out,
                                                              size_t room, size_t* size,
                                                              ortholan_refusal* refusal);

// The GeneralName of such a text. Refuses the first place that is wrong. Free text of a directory
// name becomes UTF8String.
//   allows_range  1 where an address may have a mask, as in name constraints
ORTHOLAN_EXPORT ortholan_reason ortholan_general_name_from_text(ortholan_text text,
                                                                int32_t allows_range, uint8_t* out,
                                                                size_t room, size_t* size,
                                                                ortholan_refusal* refusal);

// Forms of alternative names that come out.
enum {
  // SEQUENCE OF GeneralName, the value of the extension.
  ORTHOLAN_ALTERNATIVE_NAMES_VALUE = 0,
  // A whole Extension subjectAltName (RFC 5280 4.2.1.6), critical as a subject without names needs
  // it, or not.
  ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL = 1,
  ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION = 2
};

// Writes alternative names from one text each, in their order. Refuses EMPTY without a text.
//   form    an ORTHOLAN_ALTERNATIVE_NAMES_ word
//   wrong   where not NULL, the number of the text that the refusal is about, from 0
ORTHOLAN_EXPORT ortholan_reason ortholan_alternative_names_from_text(const ortholan_text* texts,
                                                                     size_t count, int32_t form,
                                                                     uint8_t* out, size_t room,
                                                                     size_t* size, size_t* wrong,
                                                                     ortholan_refusal* refusal);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_H_
