// Whether two names are the same, whether one is within the subtree of another, and keys for maps
// and databases (RFC 5280 7.1, RFC 4518).
//
//   ortholan_match match;
//   if (ortholan_match_names(issuer, subject, ORTHOLAN_MATCH_RFC5280, &match) !=
//       ORTHOLAN_VERDICT_YES) {
//     ortholan_match_sentence(&match, text, sizeof text, &size);
//   }
//
// Names are read as ORTHOLAN_READ_STRUCTURE has it: the order of attributes in an RDN does not
// matter, and a value that is no text of its type spoils no verdict about the others. The work is
// linear in the size of the names, but for RDNs of several attributes and long runs of combining
// marks, which are sorted in n log n.
#ifndef ORTHOLAN_STRICT_MATCHING_H_
#define ORTHOLAN_STRICT_MATCHING_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// By which rule attribute values are the same. Values with the same octets are the same by each.
enum {
  // As RFC 5280 7.1 demands it: caseIgnoreMatch after the preparation of RFC 4518, whichever string
  // types hold the text; domain components and e-mail addresses by ASCII case alone (7.3). It
  // cannot be told of a TeletexString and another type, of a value that is no text (no string,
  // malformed, or with a code point that Unicode 3.2 does not know or that RFC 4518 prohibits) and
  // any other value.
  ORTHOLAN_MATCH_RFC5280 = 0,
  // As most other libraries have it: ASCII case and white space alone.
  ORTHOLAN_MATCH_ASCII_CASE = 1,
  // The octets.
  ORTHOLAN_MATCH_OCTETS = 2,

  // Added to one of them: RDNs in any order, for lists that people write by hand; never for a
  // verdict about certificates.
  ORTHOLAN_MATCH_ANY_ORDER = 0x100
};

// Comparison, 180 to 199.
enum {
  // The names have different numbers of RDNs, or the subtree has more than the name.
  ORTHOLAN_REASON_RDN_COUNT = 180,
  // Two RDNs have different numbers of attributes.
  ORTHOLAN_REASON_RDN_SIZE = 181,
  // An attribute has no counterpart of its type.
  ORTHOLAN_REASON_ATTRIBUTE_TYPE = 182,
  // Two values are different.
  ORTHOLAN_REASON_VALUE = 183,
  // An RDN is nowhere in the other name.
  ORTHOLAN_REASON_RDN = 184,
  // A value is of a type that is no string, so that only its octets can be compared.
  ORTHOLAN_REASON_VALUE_TYPE = 185,
  // A value is no text in the encoding or the alphabet of its string type.
  ORTHOLAN_REASON_VALUE_TEXT = 186,
  // A code point is unassigned in Unicode 3.2, or prohibited (RFC 4518 2.4).
  ORTHOLAN_REASON_VALUE_UNDEFINED = 187,
  // A TeletexString against another string type, or with octets outside ASCII (RFC 4518 2.1).
  ORTHOLAN_REASON_VALUE_TELETEX = 188
};

// An attribute of one of the names. Both are ORTHOLAN_NO_PLACE where the reason names none.
typedef struct ortholan_match_place {
  size_t rdn;        // from 0
  size_t attribute;  // index in the whole name, as ortholan_name_view_attribute counts
} ortholan_match_place;

// A verdict with its reason.
typedef struct ortholan_match {
  ortholan_verdict verdict;
  ortholan_reason reason;  // ORTHOLAN_REASON_NONE for a yes
  // Which name the reason is about: 1 or 2; 0 for both.
  int32_t side;
  ortholan_match_place first;   // in the first name or the subtree
  ortholan_match_place second;  // in the second name
  ortholan_octets type;         // content octets of the attribute's identifier there, or empty
  // Where a name could not be read; for VALUE_UNDEFINED the code point and its place in the value's
  // text. Its reason is NONE otherwise.
  ortholan_refusal refusal;
} ortholan_match;

// Whether two names are the same; a Name is the whole of its octets.
//   rule   an ORTHOLAN_MATCH_ word, ORTHOLAN_MATCH_ANY_ORDER added or not
//   match  the verdict with its reason; NULL is allowed
// Cannot tell, with the reason, of a name that cannot be read, of wrong arguments and without
// memory.
ORTHOLAN_EXPORT ortholan_verdict ortholan_match_names(ortholan_octets first, ortholan_octets second,
                                                      int32_t rule, ortholan_match* match);
// Whether `name` begins with the RDNs of `subtree` (RFC 5280 7.1 and 4.2.1.10); every name is
// within the empty one. ORTHOLAN_MATCH_ANY_ORDER is no argument here.
ORTHOLAN_EXPORT ortholan_verdict ortholan_name_within(ortholan_octets subtree, ortholan_octets name,
                                                      int32_t rule, ortholan_match* match);
// One English sentence for a verdict, without a full stop. `match` is as one of the functions above
// left it, the names unchanged since.
ORTHOLAN_EXPORT ortholan_reason ortholan_match_sentence(const ortholan_match* match, char* out,
                                                        size_t room, size_t* size);

// Octets that are the same exactly for names that are the same under the rule. Of names that cannot
// be told apart or are different they are different. Unless ORTHOLAN_MATCH_ANY_ORDER was added, the
// key of a subtree stands in front of the keys of all names within it and of no others: they lie
// from that key to that key with FF behind it. Keys do not change within a major version.
// Refuses what makes a name unreadable.
ORTHOLAN_EXPORT ortholan_reason ortholan_match_key(ortholan_octets name, int32_t rule, uint8_t* out,
                                                   size_t room, size_t* size,
                                                   ortholan_refusal* refusal);
// A hash of a key, for tables in memory; the same on every platform. Not for keys that somebody
// chooses to make a table slow.
ORTHOLAN_EXPORT uint64_t ortholan_match_hash(ortholan_octets key);

// The string preparation of RFC 4518 for caseIgnoreMatch, as RFC 5280 7.1 uses it: UTF-8 in,
// prepared UTF-8 out. The result begins and ends with a blank.
// Refuses VALUE_TEXT for what is no UTF-8 and VALUE_UNDEFINED, with the octets in front of the
// place and the code point as `met`.
ORTHOLAN_EXPORT ortholan_reason ortholan_prepare_text(ortholan_text text, char* out, size_t room,
                                                      size_t* size, ortholan_refusal* refusal);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_MATCHING_H_
