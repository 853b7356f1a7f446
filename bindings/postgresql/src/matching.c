// Whether names are the same, or one is below another; keys that indexes find both by.
#include "values.h"
// After what they need.
#include <access/stratnum.h>
#include <catalog/pg_opfamily_d.h>
#include <catalog/pg_type_d.h>
#include <nodes/makefuncs.h>
#include <nodes/nodeFuncs.h>
#include <nodes/supportnodes.h>
#include <optimizer/optimizer.h>
#include <utils/fmgroids.h>
#include <utils/lsyscache.h>
#include <utils/selfuncs.h>

PG_FUNCTION_INFO_V1(x509_name_key);
PG_FUNCTION_INFO_V1(x509_key_within);
PG_FUNCTION_INFO_V1(x509_key_within_support);
PG_FUNCTION_INFO_V1(x509_names_match);
PG_FUNCTION_INFO_V1(x509_name_within);
PG_FUNCTION_INFO_V1(x509_names_match_reason);
PG_FUNCTION_INFO_V1(x509_name_within_reason);

// Behind the key of a subtree the keys of the names within it go on with a smaller octet.
static const uint8_t kBeyondKeys = 0xFF;

Datum x509_name_key(PG_FUNCTION_ARGS) {
  const ortholan_octets name = OCTETS_OF_ARG(0);
  result_room room = room_for(2 * name.size);
  ortholan_refusal refusal;
  ortholan_reason reason;
  do {
    reason = ortholan_match_key(name, ORTHOLAN_MATCH_RFC5280, room.data, room.capacity, &room.size,
                                &refusal);
  } while (room_grew(&room, reason));
  if (reason == ORTHOLAN_REASON_NONE) return bytea_in(&room);
  refuse(VALUE_NAME, &refusal, PG_GETARG_BOOL(1));
  PG_RETURN_NULL();
}

Datum x509_key_within(PG_FUNCTION_ARGS) {
  const ortholan_octets subtree = OCTETS_OF_ARG(0);
  const ortholan_octets key = OCTETS_OF_ARG(1);
  PG_RETURN_BOOL(subtree.size <= key.size && memcmp(subtree.data, key.data, subtree.size) == 0 &&
                 (subtree.size == key.size || key.data[subtree.size] != kBeyondKeys));
}

static Expr* compare_keys(int strategy, Expr* key, Expr* bound) {
  const Oid operation = get_opfamily_member(BYTEA_BTREE_FAM_OID, BYTEAOID, BYTEAOID, strategy);
  return make_opclause(operation, BOOLOID, false, key, bound, InvalidOid, InvalidOid);
}

static Expr* octet_behind(Expr* subtree) {
  uint8_t beyond = kBeyondKeys;
  Const* const octet = makeConst(BYTEAOID, -1, InvalidOid, -1,
                                 bytea_of_octets((ortholan_octets){&beyond, 1}), false, false);
  return (Expr*)makeFuncExpr(F_BYTEACAT, BYTEAOID, list_make2(subtree, octet), InvalidOid,
                             InvalidOid, COERCE_EXPLICIT_CALL);
}

// What x509_key_within(subtree, key) comes to: key >= subtree AND key < subtree || '\xFF'.
static List* range_of(const List* arguments) {
  Expr* const subtree = linitial(arguments);
  Expr* const key = lsecond(arguments);
  return list_make2(
      compare_keys(BTGreaterEqualStrategyNumber, key, subtree),
      compare_keys(BTLessStrategyNumber, copyObject(key), octet_behind(copyObject(subtree))));
}

static List* index_condition(SupportRequestIndexCondition* request) {
  if (!is_funcclause(request->node) || request->indexarg != 1 ||
      request->opfamily != BYTEA_BTREE_FAM_OID) {
    return NIL;
  }
  const List* const arguments = ((FuncExpr*)request->node)->args;
  if (!is_pseudo_constant_for_index(request->root, linitial(arguments), request->index)) return NIL;
  request->lossy = false;
  return range_of(arguments);
}

// Tells the planner how an index finds keys within a subtree, and how many there are.
Datum x509_key_within_support(PG_FUNCTION_ARGS) {
  Node* const asked = (Node*)PG_GETARG_POINTER(0);
  if (IsA(asked, SupportRequestIndexCondition)) {
    PG_RETURN_POINTER(index_condition((SupportRequestIndexCondition*)asked));
  }
  if (!IsA(asked, SupportRequestSelectivity)) PG_RETURN_POINTER(NULL);
  SupportRequestSelectivity* const request = (SupportRequestSelectivity*)asked;
  // Nothing is known of the subtrees of a join; two inequalities would pass for a ninth of all
  // rows.
  request->selectivity =
      request->is_join
          ? DEFAULT_RANGE_INEQ_SEL
          : clauselist_selectivity(request->root, range_of(request->args), request->varRelid,
                                   request->jointype, request->sjinfo);
  PG_RETURN_POINTER(request);
}

typedef ortholan_verdict (*comparison)(ortholan_octets first, ortholan_octets second, int32_t rule,
                                       ortholan_match* match);

static Datum sentence_of(const ortholan_match* match) {
  result_room room = room_for(256);
  ortholan_reason reason;
  do {
    reason = ortholan_match_sentence(match, room.data, room.capacity, &room.size);
  } while (room_grew(&room, reason));
  return text_in(&room, false);
}

// Whether a name could not be read; a value of which nothing can be told has its code point there.
static bool is_unreadable(const ortholan_match* match) {
  return match->refusal.reason != ORTHOLAN_REASON_NONE &&
         match->reason != ORTHOLAN_REASON_VALUE_UNDEFINED;
}

// True, false, and NULL for what cannot be told.
static Datum answer(FunctionCallInfo fcinfo, comparison compare) {
  ortholan_match match;
  const ortholan_verdict verdict =
      compare(OCTETS_OF_ARG(0), OCTETS_OF_ARG(1), ORTHOLAN_MATCH_RFC5280, &match);
  check_call(match.reason);
  if (verdict != ORTHOLAN_VERDICT_CANNOT_TELL) PG_RETURN_BOOL(verdict == ORTHOLAN_VERDICT_YES);
  if (is_unreadable(&match) && !PG_GETARG_BOOL(2)) {
    refuse_with(VALUE_NAME, sentence_of(&match), false);
  }
  PG_RETURN_NULL();
}

static Datum explain(FunctionCallInfo fcinfo, comparison compare) {
  ortholan_match match;
  const ortholan_verdict verdict =
      compare(OCTETS_OF_ARG(0), OCTETS_OF_ARG(1), ORTHOLAN_MATCH_RFC5280, &match);
  check_call(match.reason);
  if (verdict == ORTHOLAN_VERDICT_YES) PG_RETURN_NULL();
  return sentence_of(&match);
}

Datum x509_names_match(PG_FUNCTION_ARGS) { return answer(fcinfo, ortholan_match_names); }
Datum x509_name_within(PG_FUNCTION_ARGS) { return answer(fcinfo, ortholan_name_within); }
Datum x509_names_match_reason(PG_FUNCTION_ARGS) { return explain(fcinfo, ortholan_match_names); }
Datum x509_name_within_reason(PG_FUNCTION_ARGS) { return explain(fcinfo, ortholan_name_within); }
