// Alternative names as an array of texts, extensions as jsonb by what they mean.
#include "certificates.h"
// After what they need.
#include <catalog/pg_type_d.h>
#include <lib/stringinfo.h>
#include <mb/pg_wchar.h>
#include <miscadmin.h>
#include <utils/array.h>
#include <utils/builtins.h>
#include <utils/fmgrprotos.h>
#include <utils/json.h>

PG_FUNCTION_INFO_V1(x509_alt_names);
PG_FUNCTION_INFO_V1(x509_dns_names);
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

Datum general_name_text(ortholan_octets name, bool is_soft) {
  result_room room = room_for(2 * name.size);
  ortholan_reason reason;
  ortholan_refusal refusal;
  do {
    reason = ortholan_general_name_to_text(name, room.data, room.capacity, &room.size, &refusal);
  } while (room_grew(&room, reason));
  if (reason == ORTHOLAN_REASON_NONE) return text_in(&room, is_soft);
  refuse(VALUE_CERTIFICATE, &refusal, is_soft);
  return 0;
}

static Datum text_of_name(const ortholan_general_name_view* name, bool is_soft) {
  return general_name_text(name->bytes, is_soft);
}

// A DNS name in lower case; 0 for any other name and for what is no host, wildcards included.
static Datum host_of_name(const ortholan_general_name_view* name, bool is_soft) {
  const uint32_t choices =
      ORTHOLAN_HOST_UNDERSCORES | ORTHOLAN_HOST_EDGE_HYPHENS | ORTHOLAN_HOST_WILDCARD;
  const ortholan_text host = {(const char*)name->content.data, name->content.size};
  if (name->kind != ORTHOLAN_NAME_DNS || ortholan_host_check(host, choices, NULL) != 0) return 0;
  result_room room = room_for(host.size);
  room.size = host.size;
  for (size_t i = 0; i < host.size; ++i) {
    ((char*)room.data)[i] = (char)pg_ascii_tolower((unsigned char)host.data[i]);
  }
  return text_in(&room, is_soft);
}

// The texts of the alternative names. A name without one is left out, or makes the whole NULL.
static Datum texts_of_names(FunctionCallInfo fcinfo, int32_t mode,
                            Datum (*text_of)(const ortholan_general_name_view*, bool),
                            bool leaves_out) {
  const bool is_soft = PG_GETARG_BOOL(1);
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
    const Datum text = text_of(&name, is_soft);
    if (text == 0 && leaves_out) continue;
    if (text == 0) PG_RETURN_NULL();
    texts = accumArrayResult(texts, text, false, TEXTOID, CurrentMemoryContext);
    pfree(DatumGetPointer(text));
  }
  PG_RETURN_DATUM(makeArrayResult(texts, CurrentMemoryContext));
}

Datum x509_alt_names(PG_FUNCTION_ARGS) {
  const int32_t mode = PG_GETARG_BOOL(2) ? ORTHOLAN_READ_STRUCTURE : ORTHOLAN_READ_DER;
  return texts_of_names(fcinfo, mode, text_of_name, false);
}

// A name that is malformed hides no other, just as in x509_identifies.
Datum x509_dns_names(PG_FUNCTION_ARGS) {
  return texts_of_names(fcinfo, ORTHOLAN_READ_STRUCTURE, host_of_name, true);
}

static void put_octets(ortholan_octets octets, StringInfo json) {
  static const char kDigits[] = "0123456789ABCDEF";
  appendStringInfoString(json, "{\"octets\":\"");
  for (size_t i = 0; i < octets.size; ++i) {
    appendStringInfoCharMacro(json, kDigits[octets.data[i] >> 4]);
    appendStringInfoCharMacro(json, kDigits[octets.data[i] & 0x0F]);
  }
  appendStringInfoString(json, "\"}");
}

// Whether jsonb takes the characters that stand as \uXXXX: none takes NUL, and a database in
// another encoding than UTF-8 may lack all beyond ASCII.
static bool has_place(const char* json, size_t size) {
  const unsigned long end = GetDatabaseEncoding() == PG_UTF8 ? 0x10000 : 0x80;
  for (size_t i = 0; i + 1 < size; i += json[i] == '\\' ? 2 : 1) {
    if (json[i] != '\\' || json[i + 1] != 'u') continue;
    char digits[5] = "";
    memcpy(digits, json + i + 2, Min(4, size - i - 2));
    const unsigned long unit = strtoul(digits, NULL, 16);
    if (unit == 0 || unit >= end) return false;
  }
  return true;
}

// The value by what it means; its octets with the reason where that is not to be had.
static void put_value(const ortholan_extension_view* extension, StringInfo json) {
  result_room room = room_for(4 * extension->value.size);
  ortholan_refusal refusal;
  ortholan_reason reason;
  do {
    reason = ortholan_extension_json(extension->oid, extension->value, ORTHOLAN_READ_DER, room.data,
                                     room.capacity, &room.size, &refusal);
  } while (room_grew(&room, reason));
  Datum value = 0;
  if (reason == ORTHOLAN_REASON_NONE && has_place(room.data, room.size)) {
    value = text_in(&room, true);
  }
  if (value != 0) {
    appendBinaryStringInfo(json, VARDATA_ANY(DatumGetPointer(value)),
                           VARSIZE_ANY_EXHDR(DatumGetPointer(value)));
    return;
  }
  put_octets(extension->value, json);
  appendStringInfoString(json, ",\"refusal\":");
  escape_json(json, reason != ORTHOLAN_REASON_NONE ? TextDatumGetCString(refusal_text(&refusal))
                                                   : "a character has no place in the database");
}

static void put_extension(const ortholan_extension_view* extension, StringInfo json) {
  const char* const oid = dotted_digits(extension->oid);
  const char* const name = ortholan_extension_name(extension->oid);
  appendStringInfo(json, oid != NULL ? "{\"oid\":\"%s\"" : "{\"oid\":null", oid);
  if (name != NULL) appendStringInfo(json, ",\"name\":\"%s\"", name);
  appendStringInfo(json, ",\"critical\":%s,\"value\":", extension->critical ? "true" : "false");
  put_value(extension, json);
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
