// Names: their text and back, and their attributes one by one.
#include "values.h"
// After what they need.
#include <executor/executor.h>
#include <funcapi.h>
#include <miscadmin.h>
#include <utils/builtins.h>

PG_FUNCTION_INFO_V1(x509_name_text);
PG_FUNCTION_INFO_V1(x509_name_from_text);
PG_FUNCTION_INFO_V1(x509_name_attributes);
PG_FUNCTION_INFO_V1(x509_name_error);

static int32_t mode_of(bool is_lenient) {
  return is_lenient ? ORTHOLAN_READ_LENIENT : ORTHOLAN_READ_DER;
}

static ortholan_reason write_text(const ortholan_name_view* name, result_room* room,
                                  ortholan_refusal* refusal) {
  ortholan_reason reason;
  do {
    reason = ortholan_rfc4514_write(name, NULL, room->data, room->capacity, &room->size, refusal);
  } while (room_grew(room, reason));
  return reason;
}

Datum x509_name_text(PG_FUNCTION_ARGS) {
  const ortholan_octets der = OCTETS_OF_ARG(0);
  const bool is_soft = PG_GETARG_BOOL(1);
  ortholan_name_view name;
  ortholan_refusal refusal;
  if (ortholan_name_view_read(der, mode_of(PG_GETARG_BOOL(2)), &name, &refusal) == 0) {
    result_room room = room_for(der.size);
    if (write_text(&name, &room, &refusal) == 0) {
      const Datum text = text_in(&room, is_soft);
      if (text != 0) return text;
      PG_RETURN_NULL();
    }
  }
  refuse(VALUE_NAME, &refusal, is_soft);
  PG_RETURN_NULL();
}

// The sentence for a text that is no name.
static Datum text_sentence(ortholan_text text, const ortholan_refusal* refusal) {
  result_room room = room_for(256);
  ortholan_reason reason;
  do {
    reason = ortholan_rfc4514_sentence(text, refusal, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return text_in(&room, false);
}

Datum x509_name_from_text(PG_FUNCTION_ARGS) {
  const bool is_soft = PG_GETARG_BOOL(1);
  ortholan_text text;
  if (!utf8_of_datum(PG_GETARG_DATUM(0), is_soft, &text)) PG_RETURN_NULL();
  result_room room = room_for(2 * text.size);
  ortholan_refusal refusal;
  ortholan_reason reason;
  do {
    reason = ortholan_rfc4514_read(text, NULL, room.data, room.capacity, &room.size, &refusal);
  } while (room_grew(&room, reason));
  if (reason == ORTHOLAN_REASON_NONE) return bytea_in(&room);
  if (!is_soft) refuse_with(VALUE_NAME, text_sentence(text, &refusal), false);
  PG_RETURN_NULL();
}

// The short name of an attribute type, "CN", as text of names has it; 0 for one without a name.
static Datum key_of(ortholan_octets type) {
  static const uint8_t kEmptyText[] = {0x0C, 0x00};
  const ortholan_new_attribute attribute = {.oid = type, .element = {kEmptyText, 2}};
  uint8_t der[64];
  size_t size = 0;
  ortholan_name_view name;
  if (ortholan_name_build(&attribute, 1, NULL, der, sizeof der, &size, NULL) != 0) return 0;
  if (ortholan_name_view_read((ortholan_octets){der, size}, ORTHOLAN_READ_STRUCTURE, &name, NULL) !=
      0) {
    return 0;
  }
  result_room text = room_for(64);
  if (write_text(&name, &text, NULL) != 0 || !isalpha(*(unsigned char*)text.data)) return 0;
  text.size -= strlen("=");
  return text_in(&text, true);
}

static Datum value_of(const ortholan_attribute_view* attribute) {
  result_room room = room_for(attribute->content.size);
  ortholan_reason reason;
  do {
    reason = ortholan_attribute_view_text(attribute, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return reason == ORTHOLAN_REASON_NONE ? text_in(&room, true) : 0;
}

enum { COLUMN_RDN, COLUMN_OID, COLUMN_KEY, COLUMN_VALUE, COLUMN_OCTETS, COLUMN_COUNT };

static void put_attribute(const ortholan_attribute_view* attribute, ReturnSetInfo* result) {
  char* const oid = dotted_digits(attribute->type);
  const Datum columns[COLUMN_COUNT] = {
      [COLUMN_RDN] = Int64GetDatum((int64)attribute->rdn + 1),
      [COLUMN_OID] = oid != NULL ? CStringGetTextDatum(oid) : 0,
      [COLUMN_KEY] = key_of(attribute->type),
      [COLUMN_VALUE] = value_of(attribute),
      [COLUMN_OCTETS] = bytea_of_octets(attribute->value),
  };
  bool nulls[COLUMN_COUNT];
  for (int i = 0; i < COLUMN_COUNT; ++i) nulls[i] = columns[i] == 0;
  tuplestore_putvalues(result->setResult, result->setDesc, (Datum*)columns, nulls);
}

Datum x509_name_attributes(PG_FUNCTION_ARGS) {
  const ortholan_octets der = OCTETS_OF_ARG(0);
  ReturnSetInfo* const result = (ReturnSetInfo*)fcinfo->resultinfo;
  InitMaterializedSRF(fcinfo, MAT_SRF_USE_EXPECTED_DESC);
  ortholan_name_view name;
  ortholan_refusal refusal;
  if (ortholan_name_view_read(der, mode_of(PG_GETARG_BOOL(2)), &name, &refusal) != 0) {
    refuse(VALUE_NAME, &refusal, PG_GETARG_BOOL(1));
    PG_RETURN_NULL();
  }
  const MemoryContext row =
      AllocSetContextCreate(CurrentMemoryContext, "attribute of a name", ALLOCSET_SMALL_SIZES);
  const MemoryContext outer = MemoryContextSwitchTo(row);
  ortholan_name_cursor cursor = {0};
  ortholan_attribute_view attribute;
  for (size_t i = 0; ortholan_name_view_attribute(&name, i, &cursor, &attribute) == 0; ++i) {
    CHECK_FOR_INTERRUPTS();
    put_attribute(&attribute, result);
    MemoryContextReset(row);
  }
  MemoryContextSwitchTo(outer);
  MemoryContextDelete(row);
  PG_RETURN_NULL();
}

Datum x509_name_error(PG_FUNCTION_ARGS) {
  ortholan_name_view name;
  ortholan_refusal refusal;
  if (ortholan_name_view_read(OCTETS_OF_ARG(0), ORTHOLAN_READ_DER, &name, &refusal) == 0) {
    PG_RETURN_NULL();
  }
  return refusal_text(&refusal);
}
