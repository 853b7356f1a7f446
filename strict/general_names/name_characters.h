// Characters that names may hold: text of its string type, and none of the controls of ASCII and
// Latin-1.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_NAME_CHARACTERS_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_NAME_CHARACTERS_H_

#include <ortholan/strict/general_names.h>

#include "strict/der/string_value.h"

namespace Ortholan::strict {

// The first fault: ENCODING, or NAME_CHARACTER for a control. `identifier` is that of a string.
inline StringFault FindNameFault(uint8_t identifier, ByteView content) {
  ScalarReader scalars(identifier, content);
  for (;;) {
    const size_t at = content.size - scalars.rest().size;
    uint32_t scalar;
    if (!scalars.Next(&scalar)) {
      if (scalars.broken()) return {ORTHOLAN_REASON_ENCODING, at};
      return {};
    }
    if (scalar < 0x20 || (scalar >= 0x7F && scalar < 0xA0)) {
      return {ORTHOLAN_REASON_NAME_CHARACTER, at};
    }
  }
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_NAME_CHARACTERS_H_
