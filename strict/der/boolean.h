// BOOLEAN DEFAULT FALSE, as flags of extensions are written (X.690 11.1, 11.5).
//
//   bool critical;
//   if (!ReadDefaultFalse(&fields, &critical)) return false;   // 01 01 FF, or nothing
#ifndef ORTHOLAN_STRICT_DER_BOOLEAN_H_
#define ORTHOLAN_STRICT_DER_BOOLEAN_H_

#include "strict/der/reader.h"

namespace Ortholan::strict {

// Reads the flag where it stands, false where it does not. FALSE written out is refused in DER
// alone.
inline bool ReadDefaultFalse(Reader* fields, bool* flag, uint8_t identifier = kBoolean) {
  *flag = false;
  if (!fields->Sees(identifier)) return true;
  const uint8_t* const place = fields->rest().data;
  ByteView content;
  if (!fields->Read(identifier, &content)) return false;
  if (content.size != 1) return fields->RefuseAt(ORTHOLAN_REASON_BOOLEAN, place);
  if (content[0] == 0) {
    return fields->leniency() != Leniency::kDer || fields->RefuseAt(ORTHOLAN_REASON_DEFAULT, place);
  }
  *flag = true;
  return content[0] == 0xFF || fields->leniency() == Leniency::kLenient ||
         fields->RefuseAt(ORTHOLAN_REASON_BOOLEAN, content.data);
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_BOOLEAN_H_
