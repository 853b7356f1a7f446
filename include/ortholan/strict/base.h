// What the functions of the strict layer share: octets and text that the caller owns, the reasons
// of refusals and verdicts, and how results come out.
//
// What holds for every function of <ortholan/strict.h>:
//
// Inputs.    Octets by pointer and size, text as UTF-8 by pointer and size, without a terminator.
//            Nothing is kept: a view points into the octets that it was read from and is valid as
//            long as they are. A pointer may be NULL where its size is 0, and where the function
//            says so.
// Results.   Functions that can fail return an ortholan_reason: ORTHOLAN_REASON_NONE (0) or why
//            not. Where they take an ortholan_refusal (NULL is allowed) it tells the place as well.
//            After a failure every other output is zero.
// Room.      Text and octets that come out are written into the caller's room; `*size` is what they
//            need. Where the room is too small (NULL and 0 to ask), nothing is promised of what it
//            holds, and the result is ORTHOLAN_REASON_ROOM. Text is not terminated.
// State.     None: no locale, no clock, no global. Functions may run at the same time.
// Stability. Numbers, signatures and structures do not change within a major version; functions and
//            reasons may be added.
#ifndef ORTHOLAN_STRICT_BASE_H_
#define ORTHOLAN_STRICT_BASE_H_

#include <ortholan/export.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// Octets that somebody else owns.
typedef struct ortholan_octets {
  const uint8_t* data;
  size_t size;
} ortholan_octets;

// UTF-8 text that somebody else owns; not terminated, and it may hold NUL.
typedef struct ortholan_text {
  const char* data;
  size_t size;
} ortholan_text;

// Why something was refused or decided: 0 or a number of the lists in the headers of this layer.
// ortholan_reason_sentence has a sentence for each.
typedef int32_t ortholan_reason;

// What was decided. Only one of them is a yes: compare with ORTHOLAN_VERDICT_YES.
typedef int32_t ortholan_verdict;
enum {
  // The input does not let anybody decide; where a no would let something through, this is a
  // refusal as well.
  ORTHOLAN_VERDICT_CANNOT_TELL = 0,
  ORTHOLAN_VERDICT_YES = 1,
  ORTHOLAN_VERDICT_NO = 2
};

// Calls, 1 to 19.
enum {
  ORTHOLAN_REASON_NONE = 0,
  // A pointer is NULL that may not be, or a number is none of its list.
  ORTHOLAN_REASON_ARGUMENT = 1,
  // Out of memory.
  ORTHOLAN_REASON_MEMORY = 2,
  // The caller's room is too small for what comes out.
  ORTHOLAN_REASON_ROOM = 3,
  // There is no such index, attribute or extension.
  ORTHOLAN_REASON_NOT_FOUND = 4
};

// Encodings, 20 to 79 (ITU-T X.690).
enum {
  // The octets end inside an element.
  ORTHOLAN_REASON_TRUNCATED = 20,
  // Octets are left over behind the element.
  ORTHOLAN_REASON_LEFT_OVER = 21,
  // Another identifier octet stands there than the structure has (class, form and tag).
  ORTHOLAN_REASON_IDENTIFIER = 22,
  // A length in the indefinite form, which DER does not have (10.1).
  ORTHOLAN_REASON_INDEFINITE = 23,
  // A length in more octets than it needs (10.1), or one that begins with FF (8.1.3.5).
  ORTHOLAN_REASON_LENGTH_FORM = 24,
  // A tag number in the long form that needs none, or that begins with zeros, or above 32 bits
  // (8.1.2.4).
  ORTHOLAN_REASON_TAG_FORM = 25,
  // An OBJECT IDENTIFIER without content, cut short, or with a component that begins with 80
  // (8.19).
  ORTHOLAN_REASON_OID = 26,
  // The elements of a SET OF are not in ascending order (11.6).
  ORTHOLAN_REASON_SET_ORDER = 27,
  // An octet or a character outside the alphabet of the string type.
  ORTHOLAN_REASON_ALPHABET = 28,
  // Octets that are no text in the encoding of the string type: broken UTF-8, a surrogate in a
  // BMPString, a size that is no multiple of the unit.
  ORTHOLAN_REASON_ENCODING = 29,
  // A structure that must hold at least one element holds none.
  ORTHOLAN_REASON_EMPTY = 30,
  // Elements are nested deeper than is read.
  ORTHOLAN_REASON_DEPTH = 31,
  // A BOOLEAN that is neither 00 nor FF, or not one octet long (11.1).
  ORTHOLAN_REASON_BOOLEAN = 32,
  // An INTEGER or ENUMERATED without content or with more octets than it needs (8.3.2), or beyond
  // what the field takes.
  ORTHOLAN_REASON_INTEGER = 33,
  // A BIT STRING without its first octet, with unused bits that are not 0, or with zeros at the end
  // of
  // a list of named bits (11.2).
  ORTHOLAN_REASON_BIT_STRING = 34,
  // A default value that is written out (11.5).
  ORTHOLAN_REASON_DEFAULT = 35,
  // A UTCTime or GeneralizedTime that is not of the form YYMMDDHHMMSSZ or YYYYMMDDHHMMSSZ, or names
  // no moment (RFC 5280 4.1.2.5).
  ORTHOLAN_REASON_TIME = 36,
  // A value of a type that is no string.
  ORTHOLAN_REASON_NO_STRING = 37,
  // An identifier of more octets than is turned into text.
  ORTHOLAN_REASON_TOO_LONG = 38,
  // A universal type that is primitive where DER has it constructed, or the other way round, or a
  // number of no type (8.1.4, 10.2).
  ORTHOLAN_REASON_FORM = 39,
  // A NULL with content (8.8).
  ORTHOLAN_REASON_NULL = 40
};

// Certificates, 120 to 139 (RFC 5280 4 and 5).
enum {
  // The same extension stands there twice (4.2).
  ORTHOLAN_REASON_DUPLICATE_EXTENSION = 120
};

// Stands in `met` where the input ended.
#define ORTHOLAN_MET_END UINT32_C(0xFFFFFFFF)

// Stands in `offset` where a refusal has no place.
#define ORTHOLAN_NO_PLACE ((size_t)-1)

// Why and where an input was refused.
typedef struct ortholan_refusal {
  ortholan_reason reason;  // ORTHOLAN_REASON_NONE where nothing was refused
  uint32_t met;            // octet or character that stands at the place, or ORTHOLAN_MET_END
  uint32_t expected;  // identifier octet that the structure has there, or a bound; 0 where none
  size_t offset;      // octets of the input before the place, or ORTHOLAN_NO_PLACE
} ortholan_refusal;

// How closely an encoding is read. Verdicts never take ORTHOLAN_READ_LENIENT.
enum {
  // DER, with the alphabets and encodings of string types.
  ORTHOLAN_READ_DER = 0,
  // For people who must look at what is not quite DER: any definite form of a length, SETs in any
  // order, strings outside their alphabet.
  ORTHOLAN_READ_LENIENT = 1,
  // DER but for what changes no meaning (the order of SETs, default values written out), and
  // without a look at strings, which whoever compares values does himself.
  ORTHOLAN_READ_STRUCTURE = 2
};

// Writes one English sentence for a refusal, with offset, what stands there and what was expected,
// without a full stop.
ORTHOLAN_EXPORT ortholan_reason ortholan_refusal_sentence(const ortholan_refusal* refusal,
                                                          char* out, size_t room, size_t* size);
// One English sentence for a reason alone, terminated; static, never to be freed. "" for 0, and a
// sentence that says so for a number of no list.
ORTHOLAN_EXPORT const char* ortholan_reason_sentence(ortholan_reason reason);
// Its name without ORTHOLAN_REASON_, such as "SET_ORDER", terminated and static as well: for logs
// and for languages that have these lists not. "" for a number of no list.
ORTHOLAN_EXPORT const char* ortholan_reason_name(ortholan_reason reason);

// An OBJECT IDENTIFIER's content octets as dotted decimal text ("2.5.4.3"); arcs of any size.
// Refuses OID, and TOO_LONG above 4096 octets.
ORTHOLAN_EXPORT ortholan_reason ortholan_oid_to_text(ortholan_octets oid, char* out, size_t room,
                                                     size_t* size);
// Dotted decimal text as content octets. Refuses OID for what names no identifier: fewer than two
// arcs, a first arc above 2, a second above 39 below arcs 0 and 1, leading zeros, other characters.
ORTHOLAN_EXPORT ortholan_reason ortholan_oid_from_text(ortholan_text text, uint8_t* out,
                                                       size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_BASE_H_
