// How values pass between PostgreSQL and the library: octets and text in, room for what comes out,
// refusals as errors or NULL.
//
// The library is called on octets that are not toasted and never calls back. So no error of
// PostgreSQL unwinds its frames; it reports failures, lack of memory among them, by number, and
// these become errors once it has returned.
#ifndef ORTHOLAN_POSTGRESQL_VALUES_H_
#define ORTHOLAN_POSTGRESQL_VALUES_H_

// Before any other header of PostgreSQL.
#include <postgres.h>
// And this one before what needs it.
#include <fmgr.h>
#include <ortholan/strict.h>

// What a function reads, as its errors call it.
typedef enum value_kind {
  VALUE_NAME,
  VALUE_CERTIFICATE,
  VALUE_CHAIN,
  VALUE_PEM,
  VALUE_REFERENCE
} value_kind;

// Octets of an argument of type bytea, detoasted; they live as long as the call's memory context.
ortholan_octets octets_of_datum(Datum datum);
#define OCTETS_OF_ARG(n) octets_of_datum(PG_GETARG_DATUM(n))

// An argument of type text as UTF-8. False for text that its encoding cannot turn into UTF-8, where
// that may be; else it is an error.
bool utf8_of_datum(Datum datum, bool is_soft, ortholan_text* utf8);

// Room for a result, behind the header of a bytea or text:
//
//   result_room room = room_for(2 * name.size);
//   do {
//     reason = ortholan_match_key(name, rule, room.data, room.capacity, &room.size, &refusal);
//   } while (room_grew(&room, reason));
typedef struct result_room {
  struct varlena* value;
  void* data;
  size_t capacity;
  size_t size;  // what was written, or is needed
} result_room;

result_room room_for(size_t capacity);
// Whether the room was too small and is large enough now. A result beyond what a value can hold,
// and lack of memory, are errors.
bool room_grew(result_room* room, ortholan_reason reason);
// The octets as a bytea.
Datum bytea_in(const result_room* room);
// The UTF-8 as text in the database's encoding. 0 for text that it has not, where that may be; else
// it is an error. NUL has no place in PostgreSQL's text.
Datum text_in(const result_room* room, bool is_soft);
// Content octets of an identifier as dotted digits; NULL for one that is too long for text.
char* dotted_digits(ortholan_octets oid);

// A bytea with a copy of borrowed octets.
Datum bytea_of_octets(ortholan_octets octets);

// Lack of memory and a result that is too large are errors, whatever the caller wants to be told.
void check_call(ortholan_reason reason);
// Tells why a value was refused: an error with the library's sentence as its detail. Returns where
// `is_soft`, for NULL.
void refuse(value_kind kind, const ortholan_refusal* refusal, bool is_soft);
void refuse_with(value_kind kind, Datum detail, bool is_soft);
// The sentence for a refusal as text.
Datum refusal_text(const ortholan_refusal* refusal);

#endif  // ORTHOLAN_POSTGRESQL_VALUES_H_
