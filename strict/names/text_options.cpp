#include "strict/names/text_options.h"

#include "bytes/ignore_case.h"

namespace Ortholan::strict {
namespace {

std::string_view View(ortholan_text text) { return {text.data, text.size}; }
ByteView View(ortholan_octets octets) { return {octets.data, octets.size}; }

NamedType Named(const ortholan_type_name& own) {
  const AttributeType* const known = FindType(View(own.oid));
  return {View(own.oid), View(own.name),
          known != nullptr ? known->syntax : ValueSyntax::kDirectoryString};
}

// The first of the caller's names that are spelt so; null where there is none.
const ortholan_type_name* FindOwn(std::string_view name, const TextOptions& options) {
  for (size_t i = 0; i < options.name_count; ++i) {
    if (SameWithoutCase(View(options.names[i].name), name)) return &options.names[i];
  }
  return nullptr;
}

}  // namespace

bool FindNamed(std::string_view name, const TextOptions& options, NamedType* type) {
  if (options.name_count != 0) {
    if (const ortholan_type_name* const own = FindOwn(name, options)) {
      *type = Named(*own);
      return true;
    }
  }
  const AttributeType* const known = FindTypeByName(name);
  if (known == nullptr) return false;
  *type = {known->oid.view(), known->name, known->syntax};
  return true;
}

NamedType Describe(ByteView oid, const TextOptions& options) {
  for (size_t i = 0; i < options.name_count; ++i) {
    const ortholan_type_name& own = options.names[i];
    // A name that an earlier row takes away would be read as another type.
    if (SameBytes(View(own.oid), oid) && FindOwn(View(own.name), options) == &own) {
      return Named(own);
    }
  }
  const AttributeType* const known = FindType(oid);
  if (known == nullptr) return {oid, {}};
  const std::string_view name = options.long_names ? known->long_name : known->name;
  return {oid, FindOwn(name, options) != nullptr ? std::string_view() : name, known->syntax};
}

}  // namespace Ortholan::strict
