#include "strict/extensions/extensions_of_json.h"

#include <ortholan/strict/extensions.h>

#include <set>

#include "strict/certificates/extensions_writer.h"
#include "strict/der/oid.h"
#include "strict/extensions/json_fields.h"
#include "strict/extensions/known_extensions.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/value_of_json.h"

namespace Ortholan::strict {
namespace {

enum ExtensionPart : size_t { kOidPart, kName, kCritical, kValue, kExtensionPartCount };
constexpr const char* kExtensionParts[] = {"oid", "name", "critical", "value"};

struct Parts {
  const JsonValue* values[kExtensionPartCount];
  std::string oid;
};

// The identifier that name and dotted digits stand for, where both are there the same.
bool ReadOid(const JsonValue& json, Parts* parts, Refusal* refusal) {
  const JsonValue* const digits = parts->values[kOidPart];
  const JsonValue* const name = parts->values[kName];
  if (digits != nullptr) {
    bool is_oid = digits->IsString();
    parts->oid = TextOf([&](Output* out) { is_oid = PutIdentifier(digits->text, out) && is_oid; });
    if (!is_oid) return RefuseJson(ORTHOLAN_REASON_EXTENSION_TYPE, *digits, refusal);
  }
  if (name == nullptr)
    return digits != nullptr || RefuseJson(ORTHOLAN_REASON_JSON_LACKS, json, refusal);
  const KnownExtension* const known = FindExtension(std::string_view(name->text));
  if (known == nullptr) return RefuseJson(ORTHOLAN_REASON_EXTENSION_TYPE, *name, refusal);
  const std::string_view oid = AsText(known->oid.view());
  if (digits != nullptr && parts->oid != oid) {
    return RefuseJson(ORTHOLAN_REASON_JSON_DIFFERENT, *name, refusal);
  }
  parts->oid = oid;
  return true;
}

bool ReadParts(const JsonValue& json, Parts* parts, Refusal* refusal) {
  if (!TakeMembers(json, kExtensionParts, kExtensionPartCount, parts->values, refusal))
    return false;
  if (!ReadOid(json, parts, refusal)) return false;
  if (parts->values[kValue] == nullptr)
    return RefuseJson(ORTHOLAN_REASON_JSON_LACKS, json, refusal);
  const JsonValue* const critical = parts->values[kCritical];
  return critical == nullptr || critical->form == JsonForm::kTrue ||
         critical->form == JsonForm::kFalse ||
         RefuseJson(ORTHOLAN_REASON_JSON_FORM, *critical, refusal);
}

bool PutExtensionOf(const Parts& parts, BackwardOutput* out, Refusal* refusal) {
  const ByteView oid = AsBytes(parts.oid.data(), parts.oid.size());
  const KnownExtension* const known = FindExtension(oid);
  const size_t end = out->size();
  if (!PutValueOfJson(known != nullptr ? known->shape : nullptr, *parts.values[kValue], out,
                      refusal)) {
    return false;
  }
  const JsonValue* const critical = parts.values[kCritical];
  PutExtensionAround(oid, critical != nullptr && critical->form == JsonForm::kTrue,
                     out->size() - end, out);
  return true;
}

}  // namespace

bool PutExtensionsOfJson(const JsonValue& json, BackwardOutput* out, Refusal* refusal) {
  Parts parts;
  if (json.form != JsonForm::kArray) {
    return ReadParts(json, &parts, refusal) && PutExtensionOf(parts, out, refusal);
  }
  if (json.members.empty()) return RefuseJson(ORTHOLAN_REASON_EMPTY, json, refusal);
  std::set<std::string> seen;
  for (size_t i = json.members.size(); i-- != 0;) {
    const JsonValue& extension = json.members[i].value;
    if (!ReadParts(extension, &parts, refusal)) return false;
    if (!seen.insert(parts.oid).second) {
      return RefuseJson(ORTHOLAN_REASON_DUPLICATE_EXTENSION, extension, refusal);
    }
    if (!PutExtensionOf(parts, out, refusal)) return false;
  }
  out->PutHeader(kSequence, out->size());
  return true;
}

}  // namespace Ortholan::strict
