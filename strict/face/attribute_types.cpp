// The table of attribute types.
#include "strict/names/attribute_types.h"

#include <ortholan/strict/attribute_types.h>

#include "strict/face/call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

ortholan_text TextOf(std::string_view text) { return {text.data(), text.size()}; }

ortholan_reason Give(const AttributeType* found, ortholan_attribute_type* type) {
  if (found == nullptr) return ORTHOLAN_REASON_NOT_FOUND;
  // In the table a blank stands behind the last one too.
  std::string_view aliases = found->aliases;
  if (!aliases.empty()) aliases.remove_suffix(1);
  *type = {Octets(found->oid.view()),
           TextOf(found->name),
           TextOf(found->long_name),
           TextOf(aliases),
           static_cast<int32_t>(found->syntax),
           found->bound};
  return ORTHOLAN_REASON_NONE;
}

}  // namespace

size_t ortholan_attribute_type_count(void) { return TypeCount(); }

ortholan_reason ortholan_attribute_type_at(size_t index, ortholan_attribute_type* type) {
  if (type == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *type = {};
  return Give(index < TypeCount() ? &TypeAt(index) : nullptr, type);
}

ortholan_reason ortholan_attribute_type_of(ortholan_octets oid, ortholan_attribute_type* type) {
  if (type == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *type = {};
  if (!IsGiven(oid)) return ORTHOLAN_REASON_ARGUMENT;
  return Give(FindType(View(oid)), type);
}

ortholan_reason ortholan_attribute_type_named(ortholan_text name, ortholan_attribute_type* type) {
  if (type == nullptr) return ORTHOLAN_REASON_ARGUMENT;
  *type = {};
  if (!IsGiven(name)) return ORTHOLAN_REASON_ARGUMENT;
  return Give(FindTypeByName(View(name)), type);
}
