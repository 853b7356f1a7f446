// Whose certificate, and whether a chain's authorities may name what its certificates name.
#include "certificates.h"
// After what they need.
#include <catalog/pg_type_d.h>
#include <executor/executor.h>
#include <funcapi.h>
#include <miscadmin.h>
#include <utils/array.h>
#include <utils/builtins.h>

PG_FUNCTION_INFO_V1(x509_identifies);
PG_FUNCTION_INFO_V1(x509_identifies_reason);
PG_FUNCTION_INFO_V1(x509_presented_names);
PG_FUNCTION_INFO_V1(x509_permitted);
PG_FUNCTION_INFO_V1(x509_permitted_reason);

static const struct {
  const char* word;
  int32_t kind;
} kKinds[] = {
    {"host", ORTHOLAN_REFERENCE_HOST},     {"ip", ORTHOLAN_REFERENCE_ADDRESS},
    {"email", ORTHOLAN_REFERENCE_MAILBOX}, {"uri", ORTHOLAN_REFERENCE_URI},
    {"srv", ORTHOLAN_REFERENCE_SERVICE},
};

static int32_t kind_of(const char* word) {
  for (size_t i = 0; i < lengthof(kKinds); ++i) {
    if (strcmp(word, kKinds[i].word) == 0) return kKinds[i].kind;
  }
  ereport(ERROR, (errcode(ERRCODE_INVALID_PARAMETER_VALUE),
                  errmsg("unknown kind of reference: \"%s\"", word),
                  errhint("Kinds are host, ip, email, uri and srv.")));
}

// What was asked, and the answer.
typedef struct question {
  ortholan_reference reference;
  ortholan_reason reason;  // why the question is none
  ortholan_refusal refusal;
  ortholan_identity identity;
} question;

// Asks whether the certificate (0) is for the reference (1) of a kind (2).
static question ask(FunctionCallInfo fcinfo) {
  question asked = {.reference.kind = kind_of(text_to_cstring(PG_GETARG_TEXT_PP(2)))};
  utf8_of_datum(PG_GETARG_DATUM(1), false, &asked.reference.text);
  asked.reason =
      ortholan_identify(OCTETS_OF_ARG(0), &asked.reference, &asked.identity, &asked.refusal);
  check_call(asked.reason);
  return asked;
}

// The same; a question that is none, and a certificate that cannot be read, are errors unless
// `is_soft`.
static question ask_or_refuse(FunctionCallInfo fcinfo, bool is_soft) {
  const question asked = ask(fcinfo);
  if (asked.reason != ORTHOLAN_REASON_NONE) {
    refuse(VALUE_REFERENCE, &asked.refusal, is_soft);
  } else if (asked.identity.verdict == ORTHOLAN_VERDICT_CANNOT_TELL) {
    refuse(VALUE_CERTIFICATE, &asked.refusal, is_soft);
  }
  return asked;
}

static Datum verdict_of(FunctionCallInfo fcinfo, ortholan_verdict verdict) {
  if (verdict == ORTHOLAN_VERDICT_CANNOT_TELL) PG_RETURN_NULL();
  PG_RETURN_BOOL(verdict == ORTHOLAN_VERDICT_YES);
}

Datum x509_identifies(PG_FUNCTION_ARGS) {
  const question asked = ask_or_refuse(fcinfo, PG_GETARG_BOOL(3));
  return verdict_of(fcinfo, asked.identity.verdict);
}

Datum x509_identifies_reason(PG_FUNCTION_ARGS) {
  const question asked = ask(fcinfo);
  if (asked.identity.verdict == ORTHOLAN_VERDICT_YES) PG_RETURN_NULL();
  if (asked.refusal.reason != ORTHOLAN_REASON_NONE) return refusal_text(&asked.refusal);
  PG_RETURN_TEXT_P(cstring_to_text(ortholan_reason_sentence(asked.identity.reason)));
}

// The names that were looked at, each with the reason why it is not the one; NULL for one that is.
Datum x509_presented_names(PG_FUNCTION_ARGS) {
  const bool is_soft = PG_GETARG_BOOL(3);
  ReturnSetInfo* const result = (ReturnSetInfo*)fcinfo->resultinfo;
  InitMaterializedSRF(fcinfo, MAT_SRF_USE_EXPECTED_DESC);
  const question asked = ask_or_refuse(fcinfo, is_soft);
  ortholan_presented_name name;
  for (size_t at = 0;
       ortholan_identity_explain(&asked.identity, &asked.reference, &at, &name) == 0;) {
    CHECK_FOR_INTERRUPTS();
    Datum columns[] = {general_name_text(name.bytes, is_soft), 0};
    if (name.reason != ORTHOLAN_REASON_NONE) {
      columns[1] = CStringGetTextDatum(ortholan_reason_sentence(name.reason));
    }
    bool nulls[] = {columns[0] == 0, columns[1] == 0};
    tuplestore_putvalues(result->setResult, result->setDesc, columns, nulls);
  }
  PG_RETURN_NULL();
}

// Holds the certificates of an array (0) against the name constraints among them. Whether one was
// found; without it the verdict is a yes.
static bool find_refusal(FunctionCallInfo fcinfo, ortholan_verdict* verdict,
                         ortholan_finding* finding) {
  ArrayType* const array = PG_GETARG_ARRAYTYPE_P(0);
  Datum* elements;
  bool* nulls;
  int count;
  deconstruct_array(array, BYTEAOID, -1, false, TYPALIGN_INT, &elements, &nulls, &count);
  if (count == 0 || array_contains_nulls(array)) {
    ereport(ERROR, (errcode(ERRCODE_NULL_VALUE_NOT_ALLOWED),
                    errmsg("a chain has at least one certificate, and none of them is NULL")));
  }
  ortholan_octets* const chain = palloc(count * sizeof *chain);
  for (int i = 0; i < count; ++i) chain[i] = octets_of_datum(elements[i]);
  size_t found = 0;
  check_call(ortholan_permits(chain, count, NULL, verdict, finding, 1, &found));
  return found != 0;
}

static Datum finding_text(const ortholan_finding* finding) {
  result_room room = room_for(512);
  ortholan_reason reason;
  do {
    reason = ortholan_finding_sentence(finding, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return text_in(&room, false);
}

Datum x509_permitted(PG_FUNCTION_ARGS) {
  ortholan_verdict verdict;
  ortholan_finding finding;
  const bool is_found = find_refusal(fcinfo, &verdict, &finding);
  if (is_found && finding.reason == ORTHOLAN_REASON_UNREADABLE_CERTIFICATE && !PG_GETARG_BOOL(1)) {
    refuse_with(VALUE_CHAIN, finding_text(&finding), false);
  }
  return verdict_of(fcinfo, verdict);
}

Datum x509_permitted_reason(PG_FUNCTION_ARGS) {
  ortholan_verdict verdict;
  ortholan_finding finding;
  if (!find_refusal(fcinfo, &verdict, &finding)) PG_RETURN_NULL();
  return finding_text(&finding);
}
