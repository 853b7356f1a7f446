// Which string type carries a value, and whether the value is in that type's alphabet.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_

#include <ortholan/platform.h>

#include "names/attribute_table.h"
#include "names/encoder/char_class.h"
#include "names/encoder/encoder_options.h"

namespace Ortholan {

// The platform's number of the string type that a value of these character classes is written in:
// CERT_RDN_PRINTABLE_STRING, _IA5_STRING, _BMP_STRING or _UTF8_STRING. False for a value outside
// the alphabet of the type that the attribute prescribes.
inline bool DetermineTargetType(ValueRule rule, unsigned classes, DWORD options, DWORD* valueType) {
  if (rule == ValueRule::kIA5) {
    *valueType = CERT_RDN_IA5_STRING;
    return (classes & kInIA5) != 0;
  }
  const bool printable = (classes & kInPrintable) != 0;
  if (rule == ValueRule::kPrintable) {
    *valueType = CERT_RDN_PRINTABLE_STRING;
    return printable;
  }
  const bool utf8 = (options & kOptionUtf8) != 0;
  const bool always = utf8 && (options & kOptionAlways) != 0;
  if (printable && !always) {
    *valueType = CERT_RDN_PRINTABLE_STRING;
  } else {
    *valueType = utf8 ? CERT_RDN_UTF8_STRING : CERT_RDN_BMP_STRING;
  }
  return true;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_
