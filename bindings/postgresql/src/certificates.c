// The parts of certificates, requests and CRLs, and PEM text that holds them.
#include "certificates.h"
// After what they need.
#include <executor/executor.h>
#include <funcapi.h>
#include <miscadmin.h>
#include <utils/timestamp.h>

PG_FUNCTION_INFO_V1(x509_subject);
PG_FUNCTION_INFO_V1(x509_issuer);
PG_FUNCTION_INFO_V1(x509_serial_number);
PG_FUNCTION_INFO_V1(x509_not_before);
PG_FUNCTION_INFO_V1(x509_not_after);
PG_FUNCTION_INFO_V1(x509_certificate_error);
PG_FUNCTION_INFO_V1(x509_pem);

bool read_certificate(ortholan_octets der, bool is_soft, ortholan_certificate_view* certificate) {
  ortholan_refusal refusal;
  if (ortholan_certificate_view_read(der, ORTHOLAN_READ_DER, certificate, &refusal) == 0) {
    return true;
  }
  refuse(VALUE_CERTIFICATE, &refusal, is_soft);
  return false;
}

// One part as a bytea; NULL for a part that the kind has not.
#define OCTETS_OF_PART(part)                                                    \
  do {                                                                          \
    ortholan_certificate_view certificate;                                      \
    if (!read_certificate(OCTETS_OF_ARG(0), PG_GETARG_BOOL(1), &certificate) || \
        certificate.part.size == 0) {                                           \
      PG_RETURN_NULL();                                                         \
    }                                                                           \
    return bytea_of_octets(certificate.part);                                   \
  } while (0)

Datum x509_subject(PG_FUNCTION_ARGS) { OCTETS_OF_PART(subject); }
Datum x509_issuer(PG_FUNCTION_ARGS) { OCTETS_OF_PART(issuer); }
Datum x509_serial_number(PG_FUNCTION_ARGS) { OCTETS_OF_PART(serial); }

// "2026-11-21T22:05:00Z" as a moment; false for what is outside PostgreSQL's calendar.
static bool moment_of(const char* text, TimestampTz* moment) {
  struct pg_tm time = {0};
  int zone = 0;
  return sscanf(text, "%4d-%2d-%2dT%2d:%2d:%2dZ", &time.tm_year, &time.tm_mon, &time.tm_mday,
                &time.tm_hour, &time.tm_min, &time.tm_sec) == 6 &&
         tm2timestamp(&time, 0, &zone, moment) == 0;
}

static Datum time_of(FunctionCallInfo fcinfo, bool is_end) {
  const bool is_soft = PG_GETARG_BOOL(1);
  ortholan_certificate_view certificate;
  if (!read_certificate(OCTETS_OF_ARG(0), is_soft, &certificate)) PG_RETURN_NULL();
  const ortholan_octets time = is_end ? certificate.not_after : certificate.not_before;
  if (time.size == 0) PG_RETURN_NULL();
  char text[32] = "";
  size_t size = 0;
  TimestampTz moment = 0;
  ortholan_refusal refusal = {.reason = ORTHOLAN_REASON_TIME,
                              .offset = (size_t)(time.data - certificate.der.data)};
  if (ortholan_time_to_text(time, text, sizeof text - 1, &size) != 0 || !moment_of(text, &moment)) {
    refuse(VALUE_CERTIFICATE, &refusal, is_soft);
    PG_RETURN_NULL();
  }
  PG_RETURN_TIMESTAMPTZ(moment);
}

Datum x509_not_before(PG_FUNCTION_ARGS) { return time_of(fcinfo, false); }
Datum x509_not_after(PG_FUNCTION_ARGS) { return time_of(fcinfo, true); }

Datum x509_certificate_error(PG_FUNCTION_ARGS) {
  ortholan_certificate_view certificate;
  ortholan_refusal refusal;
  if (ortholan_certificate_view_read(OCTETS_OF_ARG(0), ORTHOLAN_READ_DER, &certificate, &refusal) ==
      0) {
    PG_RETURN_NULL();
  }
  return refusal_text(&refusal);
}

static void put_block(const ortholan_pem_block* block, ReturnSetInfo* result) {
  result_room octets = room_for(block->base64.size);
  ortholan_reason reason;
  do {
    reason = ortholan_pem_octets(block, octets.data, octets.capacity, &octets.size);
  } while (room_grew(&octets, reason));
  result_room label = room_for(block->label.size);
  label.size = block->label.size;
  memcpy(label.data, block->label.data, block->label.size);
  Datum columns[] = {text_in(&label, false), bytea_in(&octets)};
  bool nulls[] = {false, false};
  tuplestore_putvalues(result->setResult, result->setDesc, columns, nulls);
}

Datum x509_pem(PG_FUNCTION_ARGS) {
  const bool is_soft = PG_GETARG_BOOL(1);
  ortholan_text text;
  InitMaterializedSRF(fcinfo, MAT_SRF_USE_EXPECTED_DESC);
  if (!utf8_of_datum(PG_GETARG_DATUM(0), is_soft, &text)) PG_RETURN_NULL();
  size_t offset = 0;
  ortholan_pem_block block;
  ortholan_refusal refusal;
  ortholan_reason reason;
  while ((reason = ortholan_pem_next(text, &offset, &block, &refusal)) == 0) {
    CHECK_FOR_INTERRUPTS();
    put_block(&block, (ReturnSetInfo*)fcinfo->resultinfo);
  }
  if (reason != ORTHOLAN_REASON_NOT_FOUND) refuse(VALUE_PEM, &refusal, is_soft);
  PG_RETURN_NULL();
}
