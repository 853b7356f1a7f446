// Names and extensions held against the rules of RFC 5280.
#include "strict/extensions/check.h"

#include <ortholan/strict/check.h>

#include <new>

#include "strict/extensions/check_rules.h"
#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

ortholan_reason ortholan_check(ortholan_octets der, ortholan_fault* faults, size_t room,
                               size_t* count, ortholan_refusal* refusal) {
  Clear(count, refusal);
  if (!IsGiven(der) || count == nullptr || !IsRoom(faults, room)) {
    return Report(ORTHOLAN_REASON_ARGUMENT, refusal);
  }
  Faults found(faults, room);
  Refusal refused;
  try {
    if (!Check(View(der), &found, &refused)) return Report(refused, der.data, refusal);
  } catch (const std::bad_alloc&) {
    return Report(ORTHOLAN_REASON_MEMORY, refusal);
  }
  *count = found.count();
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_check_rule_at(size_t index, ortholan_check_rule* rule) {
  if (rule == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *rule = {};
  const CheckRules rules = AllRules();
  if (index >= rules.count) return ORTHOLAN_REASON_NOT_FOUND;
  const CheckRule& found = rules.first[index];
  *rule = {found.name, found.section, found.sentence};
  return ORTHOLAN_REASON_NONE;
}
