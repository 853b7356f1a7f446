#include "strict/face/name_options.h"

#include "strict/der/oid.h"
#include "strict/face/call.h"

namespace Ortholan::strict {
namespace {

bool IsFlag(int32_t flag) { return flag == 0 || flag == 1; }

}  // namespace

ortholan_reason ReadOptions(const ortholan_rfc4514_options* given, TextOptions* options) {
  if (given == nullptr) return ORTHOLAN_REASON_NONE;
  if (!IsFlag(given->order) || !IsFlag(given->strings) || !IsFlag(given->long_names) ||
      !IsFlag(given->exact) || (given->names == nullptr && given->name_count != 0)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  for (size_t i = 0; i < given->name_count; ++i) {
    const ortholan_type_name& own = given->names[i];
    if (!IsGiven(own.name) || !IsGiven(own.oid)) return ORTHOLAN_REASON_ARGUMENT;
    if (!IsDescriptor(View(own.name))) return ORTHOLAN_REASON_TYPE_NAME;
    if (!IsIdentifier(View(own.oid))) return ORTHOLAN_REASON_OID;
  }
  options->order = static_cast<TextOrder>(given->order);
  options->strings = static_cast<StringPolicy>(given->strings);
  options->long_names = given->long_names != 0;
  options->exact = given->exact != 0;
  options->names = given->names;
  options->name_count = given->name_count;
  return ORTHOLAN_REASON_NONE;
}

}  // namespace Ortholan::strict
