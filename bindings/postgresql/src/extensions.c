// Alternative names as an array of texts, extensions as jsonb by what they mean.
#include "certificates.h"
// After what they need.
#include <catalog/pg_type_d.h>
#include <lib/stringinfo.h>
#include <miscadmin.h>
#include <utils/array.h>
#include <utils/builtins.h>
#include <utils/fmgrprotos.h>
#include <utils/json.h>

PG_FUNCTION_INFO_V1(x509_alt_names);
PG_FUNCTION_INFO_V1(x509_extensions);

static const uint8_t kAlternativeNames[] = {0x55, 0x1D, 0x11};  // 2.5.29.17

// The list of alternative names; without octets where there is no such extension.
static ortholan_reason read_names(const ortholan_certificate_view* certificate, int32_t mode,
                                  ortholan_general_names_view* names, ortholan_refusal* refusal) {
  ortholan_extension_view extension;
  const ortholan_octets oid = {kAlternativeNames, sizeof kAlternativeNames};
  *names = (ortholan_general_names_view){0};
  ortholan_reason reason =
      ortholan_certificate_view_extension(certificate, oid, &extension, refusal);
  if (reason == ORTHOLAN_REASON_NOT_FOUND) return ORTHOLAN_REASON_NONE;
  if (reason != ORTHOLAN_REASON_NONE) return reason;
  reason = ortholan_general_names_view_read(extension.value, mode, names, refusal);
  // The place counts from the start of the certificate.
  if (reason != 0) refusal->offset += (size_t)(extension.value.data - certificate->der.data);
  return reason;
}

static Datum text_of_name(const ortholan_general_name_view* name, bool is_soft) {
  result_room room = room_for(2 * name->bytes.size);
  ortholan_reason reason;
  ortholan_refusal refusal;
  do {
    reason =
        ortholan_general_name_to_text(name->bytes, room.data, room.capacity, &room.size, &refusal);
  } while (room_grew(&room, reason));
  if (reason == ORTHOLAN_REASON_NONE) return text_in(&room, is_soft);
  refuse(VALUE_CERTIFICATE, &refusal, is_soft);
  return 0;
}

Datum x509_alt_names(PG_FUNCTION_ARGS) {
  const bool is_soft = PG_GETARG_BOOL(1);
  const int32_t mode = PG_GETARG_BOOL(2) ? ORTHOLAN_READ_STRUCTURE : ORTHOLAN_READ_DER;
  ortholan_certificate_view certificate;
  ortholan_general_names_view names;
  ortholan_refusal refusal;
  if (!read_certificate(OCTETS_OF_ARG(0), is_soft, &certificate)) PG_RETURN_NULL();
  if (read_names(&certificate, mode, &names, &refusal) != 0) {
    refuse(VALUE_CERTIFICATE, &refusal, is_soft);
    PG_RETURN_NULL();
  }
  ArrayBuildState* texts = initArrayResult(TEXTOID, CurrentMemoryContext, false);
  ortholan_general_name_view name;
  for (size_t at = 0; ortholan_general_names_view_next(&names, &at, &name) == 0;) {
    CHECK_FOR_INTERRUPTS();
    const Datum text = text_of_name(&name, is_soft);
    if (text == 0) PG_RETURN_NULL();
    texts = accumArrayResult(texts, text, false, TEXTOID, CurrentMemoryContext);
    pfree(DatumGetPointer(text));
  }
  PG_RETURN_DATUM(makeArrayResult(texts, CurrentMemoryContext));
}

static void put_digits(ortholan_octets octets, StringInfo json) {
  appendStringInfoString(json, "{\"octets\":\"");
  for (size_t i = 0; i < octets.size; ++i) appendStringInfo(json, "%02X", octets.data[i]);
  appendStringInfoString(json, "\"}");
}

static void put_extension(const ortholan_extension_view* extension, StringInfo json) {
  const char* const oid = dotted_digits(extension->oid);
  appendStringInfoString(json, "{\"oid\":");
  if (oid != NULL) {
    escape_json(json, oid);
  } else {
    appendStringInfoString(json, "null");
  }
  appendStringInfo(json, ",\"critical\":%s,\"value\":", extension->critical ? "true" : "false");
  put_digits(extension->value, json);
  appendStringInfoChar(json, '}');
}

Datum x509_extensions(PG_FUNCTION_ARGS) {
  ortholan_certificate_view certificate;
  if (!read_certificate(OCTETS_OF_ARG(0), PG_GETARG_BOOL(1), &certificate)) PG_RETURN_NULL();
  StringInfoData json;
  initStringInfo(&json);
  appendStringInfoChar(&json, '[');
  ortholan_extension_view extension;
  for (size_t at = 0;
       ortholan_certificate_view_next_extension(&certificate, &at, &extension) == 0;) {
    CHECK_FOR_INTERRUPTS();
    if (json.len > 1) appendStringInfoChar(&json, ',');
    put_extension(&extension, &json);
  }
  appendStringInfoChar(&json, ']');
  return DirectFunctionCall1(jsonb_in, CStringGetDatum(json.data));
}
