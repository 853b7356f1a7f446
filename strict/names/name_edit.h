// Names made of attributes, and names with one attribute another: everything else stays octet for
// octet.
//
//   const NewAttribute attribute = {oid, kDirectory, "Alpha"};
//   if (BuildName(&attribute, 1, StringPolicy::kUtf8, &out, &fault)) out.MoveToFront();
#ifndef ORTHOLAN_STRICT_NAMES_NAME_EDIT_H_
#define ORTHOLAN_STRICT_NAMES_NAME_EDIT_H_

#include <string_view>

#include "strict/der/backward_output.h"
#include "strict/names/name_view.h"
#include "strict/names/text_options.h"

namespace Ortholan::strict {

struct NewAttribute {
  ByteView oid;
  ValueSyntax syntax = ValueSyntax::kDirectoryString;
  std::string_view text;   // UTF-8
  ByteView element;        // the whole value in place of text, where it has octets
  uint8_t identifier = 0;  // of the string type; 0 for the one that type and policy have
  bool begins_rdn = true;  // false: it belongs to the RDN of the attribute before it
};

// Why an attribute cannot be written.
struct AttributeFault {
  ortholan_reason reason = ORTHOLAN_REASON_NONE;
  size_t offset = 0;      // in its text or its element
  uint32_t expected = 0;  // the string type
};

enum class NameEdit : uint8_t { kReplace, kRemove, kInsert };

// Puts a Name of these attributes, first RDN first. These throw std::bad_alloc; `*index` is that
// of the attribute at fault.
bool BuildName(const NewAttribute* attributes, size_t count, StringPolicy policy,
               BackwardOutput* out, AttributeFault* fault, size_t* index);

// Puts the name with one place changed.
// - kReplace: the attribute number `place` is another; its place in the RDN is that of the SET
// order.
// - kRemove: the attribute number `place` is gone, and so is its RDN where it stood there alone.
// - kInsert: a new RDN before the RDN number `place`, at the end where that is their count; with
//   begins_rdn false one more attribute of that RDN.
// False for a fault of the attribute, and with the reason NOT_FOUND where there is no such place.
bool EditName(const NameView& name, NameEdit edit, size_t place, const NewAttribute& attribute,
              StringPolicy policy, BackwardOutput* out, AttributeFault* fault);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_NAME_EDIT_H_
