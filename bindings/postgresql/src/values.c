#include "values.h"

#include <catalog/namespace.h>
#include <mb/pg_wchar.h>
#include <miscadmin.h>
#include <utils/builtins.h>
#include <utils/memutils.h>

PG_MODULE_MAGIC;

static const char* const kKindNames[] = {
    [VALUE_NAME] = "X.509 name",
    [VALUE_CERTIFICATE] = "X.509 certificate",
    [VALUE_CHAIN] = "chain of X.509 certificates",
    [VALUE_PEM] = "PEM text",
    [VALUE_REFERENCE] = "reference identity",
};

ortholan_octets octets_of_datum(Datum datum) {
  const bytea* value = DatumGetByteaPP(datum);
  return (ortholan_octets){(const uint8_t*)VARDATA_ANY(value), VARSIZE_ANY_EXHDR(value)};
}

static const size_t kLargestResult = MaxAllocSize - VARHDRSZ;

result_room room_for(size_t capacity) {
  result_room room = {.capacity = Max(Min(capacity, kLargestResult), 64)};
  room.value = palloc(VARHDRSZ + room.capacity);
  room.data = VARDATA(room.value);
  return room;
}

bool room_grew(result_room* room, ortholan_reason reason) {
  check_call(reason);
  if (reason != ORTHOLAN_REASON_ROOM) return false;
  if (room->size > kLargestResult) {
    ereport(ERROR, (errcode(ERRCODE_PROGRAM_LIMIT_EXCEEDED),
                    errmsg("result of %zu octets is too large", room->size)));
  }
  CHECK_FOR_INTERRUPTS();
  pfree(room->value);
  *room = room_for(room->size);
  return true;
}

Datum bytea_in(const result_room* room) {
  SET_VARSIZE(room->value, VARHDRSZ + room->size);
  return PointerGetDatum(room->value);
}

Datum bytea_of_octets(ortholan_octets octets) {
  result_room room = room_for(octets.size);
  room.size = octets.size;
  if (octets.size != 0) memcpy(room.data, octets.data, octets.size);
  return bytea_in(&room);
}

static void refuse_text(const char* what) {
  ereport(ERROR, (errcode(ERRCODE_UNTRANSLATABLE_CHARACTER), errmsg("%s", what),
                  errdetail("The database's encoding is %s.", GetDatabaseEncodingName())));
}

// Text in another encoding, terminated. NULL where a character is not there.
static char* convert(const char* text, size_t size, int from, int to, size_t* converted) {
  const Oid procedure = FindDefaultConversionProc(from, to);
  if (!OidIsValid(procedure)) return NULL;
  if (size >= MaxAllocSize / MAX_CONVERSION_GROWTH) {
    ereport(ERROR, (errcode(ERRCODE_PROGRAM_LIMIT_EXCEEDED),
                    errmsg("text of %zu octets is too large for another encoding", size)));
  }
  const size_t room = size * MAX_CONVERSION_GROWTH + 1;
  unsigned char* const out = palloc(room);
  const int read = pg_do_encoding_conversion_buf(procedure, from, to, (unsigned char*)text,
                                                 (int)size, out, (int)room, true);
  if (read != (int)size) return NULL;
  *converted = strlen((const char*)out);
  return (char*)out;
}

// A database whose encoding is SQL_ASCII holds octets of any meaning; here they mean UTF-8.
static bool needs_conversion(void) {
  const int encoding = GetDatabaseEncoding();
  return encoding != PG_UTF8 && encoding != PG_SQL_ASCII;
}

Datum text_in(const result_room* room, bool is_soft) {
  if (!pg_verify_mbstr(PG_UTF8, room->data, (int)room->size, true)) {
    if (!is_soft) refuse_text("text with a NUL character, or with octets that are no character");
    return 0;
  }
  if (!needs_conversion()) return bytea_in(room);
  size_t size = 0;
  const char* converted = convert(room->data, room->size, PG_UTF8, GetDatabaseEncoding(), &size);
  if (converted == NULL) {
    if (!is_soft) refuse_text("text with a character that the database's encoding has not");
    return 0;
  }
  return PointerGetDatum(cstring_to_text_with_len(converted, (int)size));
}

bool utf8_of_datum(Datum datum, bool is_soft, ortholan_text* utf8) {
  const text* value = DatumGetTextPP(datum);
  *utf8 = (ortholan_text){VARDATA_ANY(value), VARSIZE_ANY_EXHDR(value)};
  if (!needs_conversion() || utf8->size == 0) return true;
  utf8->data = convert(utf8->data, utf8->size, GetDatabaseEncoding(), PG_UTF8, &utf8->size);
  if (utf8->data == NULL && !is_soft) refuse_text("text that cannot be turned into UTF-8");
  return utf8->data != NULL;
}

char* dotted_digits(ortholan_octets oid) {
  result_room room = room_for(64);
  ortholan_reason reason;
  do {
    reason = ortholan_oid_to_text(oid, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return reason == ORTHOLAN_REASON_NONE ? pnstrdup(room.data, room.size) : NULL;
}

void check_call(ortholan_reason reason) {
  if (reason == ORTHOLAN_REASON_MEMORY) {
    ereport(ERROR, (errcode(ERRCODE_OUT_OF_MEMORY), errmsg("out of memory")));
  }
  if (reason == ORTHOLAN_REASON_ARGUMENT) {
    elog(ERROR, "%s", ortholan_reason_sentence(reason));
  }
}

Datum refusal_text(const ortholan_refusal* refusal) {
  result_room room = room_for(256);
  ortholan_reason reason;
  do {
    reason = ortholan_refusal_sentence(refusal, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return text_in(&room, false);
}

void refuse_with(value_kind kind, Datum detail, bool is_soft) {
  if (is_soft) return;
  char* sentence = TextDatumGetCString(detail);
  sentence[0] = (char)pg_toupper((unsigned char)sentence[0]);
  ereport(ERROR, (errcode(ERRCODE_INVALID_BINARY_REPRESENTATION),
                  errmsg("invalid %s", kKindNames[kind]), errdetail_internal("%s.", sentence)));
}

void refuse(value_kind kind, const ortholan_refusal* refusal, bool is_soft) {
  check_call(refusal->reason);
  if (!is_soft) refuse_with(kind, refusal_text(refusal), false);
}
