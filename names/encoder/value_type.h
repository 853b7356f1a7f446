// Which string type carries a value, and whether the value is in that type's alphabet.
#ifndef ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_
#define ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_

#include <ortholan/platform.h>

#include <string_view>

#include "names/attribute_table.h"

namespace Ortholan {

// The platform's number of the string type that `value` is written in under the encoder's
// `options`: CERT_RDN_PRINTABLE_STRING, _IA5_STRING, _BMP_STRING or _UTF8_STRING. False for an
// empty value, and for one outside the alphabet of the type that the attribute prescribes.
bool DetermineTargetType(ValueRule rule, std::wstring_view value, DWORD options,
                         DWORD* valueType);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_VALUE_TYPE_H_
