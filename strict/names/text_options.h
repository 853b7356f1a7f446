// What a caller chooses about names as text (RFC 4514). The same options read back what was written
// with them.
#ifndef ORTHOLAN_STRICT_NAMES_TEXT_OPTIONS_H_
#define ORTHOLAN_STRICT_NAMES_TEXT_OPTIONS_H_

#include <ortholan/strict/names.h>

#include <string_view>

#include "bytes/byte_view.h"
#include "strict/names/attribute_types.h"

namespace Ortholan::strict {

enum class TextOrder : int32_t {
  kReversed = ORTHOLAN_RDNS_REVERSED,
  kAsEncoded = ORTHOLAN_RDNS_AS_ENCODED,
};

// Which string type free text becomes.
enum class StringPolicy : int32_t {
  kPrintableOrUtf8 = ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8,
  kUtf8 = ORTHOLAN_STRINGS_UTF8,
};

struct TextOptions {
  TextOrder order = TextOrder::kReversed;
  StringPolicy strings = StringPolicy::kPrintableOrUtf8;
  bool long_names = false;
  bool exact = false;
  // Names of the caller's own, which come before those of the table.
  const ortholan_type_name* names = nullptr;
  size_t name_count = 0;
};

// A type, and how text calls it.
struct NamedType {
  ByteView oid;
  std::string_view name;  // empty: the type has none
  ValueSyntax syntax = ValueSyntax::kUtf8;
};

// Finds a type by a name of the caller's or the table's. False where there is none.
bool FindNamed(std::string_view name, const TextOptions& options, NamedType* type);
// What is known of an identifier.
NamedType Describe(ByteView oid, const TextOptions& options);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_TEXT_OPTIONS_H_
