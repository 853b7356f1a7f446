// Which string type carries a value that is not refused.
#ifndef ORTHOLAN_NAMES_ENCODER_STRING_TYPE_H_
#define ORTHOLAN_NAMES_ENCODER_STRING_TYPE_H_

#include <ortholan/name_options.h>
#include <ortholan/platform.h>

#include "names/encoder/refused_values.h"

namespace Ortholan {

// The platform's number of the string type that such a value is written in:
// CERT_RDN_PRINTABLE_STRING, _IA5_STRING, _BMP_STRING or _UTF8_STRING. False for one that is
// refused.
inline bool DetermineTargetType(ValueRule rule, size_t size, unsigned classes, DWORD options,
                                DWORD* valueType) {
  if (CheckValue(rule, size, classes) != ValueFault::kNone) return false;
  const unsigned alphabet = PrescribedAlphabet(rule);
  if (alphabet != 0) {
    *valueType = alphabet == kInIA5 ? CERT_RDN_IA5_STRING : CERT_RDN_PRINTABLE_STRING;
    return true;
  }
  const bool printable = (classes & kInPrintable) != 0;
  const bool utf8 = (options & kEncodeUtf8) != 0;
  const bool always = utf8 && (options & kEncodeAlways) != 0;
  if (printable && !always) {
    *valueType = CERT_RDN_PRINTABLE_STRING;
  } else {
    *valueType = utf8 ? CERT_RDN_UTF8_STRING : CERT_RDN_BMP_STRING;
  }
  return true;
}

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_STRING_TYPE_H_
