#include "strict/extensions/json_fields.h"

#include <ortholan/strict/extensions.h>

#include <algorithm>

#include "bytes/hex.h"

namespace Ortholan::strict {

bool RefuseJson(ortholan_reason reason, std::string_view rest, Refusal* refusal) {
  return RefuseText(refusal, reason, rest);
}

bool TakeMembers(const JsonValue& json, const char* const* names, size_t count,
                 const JsonValue** values, Refusal* refusal) {
  if (json.form != JsonForm::kObject) {
    return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json.rest, refusal);
  }
  std::fill_n(values, count, nullptr);
  for (const JsonMember& member : json.members) {
    const size_t index =
        static_cast<size_t>(std::find(names, names + count, std::string_view(member.name)) - names);
    if (index == count) return RefuseJson(ORTHOLAN_REASON_JSON_MEMBER, member.rest, refusal);
    if (values[index] != nullptr) {
      return RefuseJson(ORTHOLAN_REASON_JSON_TWICE, member.rest, refusal);
    }
    values[index] = &member.value;
  }
  return true;
}

bool OctetsOfJson(const JsonValue& json, std::string* octets, Refusal* refusal) {
  if (!json.IsString()) return RefuseJson(ORTHOLAN_REASON_JSON_FORM, json.rest, refusal);
  size_t fault = 0;
  octets->clear();
  return AppendHexOctets(json.text, octets, &fault) ||
         RefuseJson(ORTHOLAN_REASON_JSON_TEXT, json.rest, refusal);
}

bool IsOctetsAlone(const JsonValue& json) {
  return json.form == JsonForm::kObject && json.members.size() == 1 &&
         json.members[0].name == "octets";
}

}  // namespace Ortholan::strict
