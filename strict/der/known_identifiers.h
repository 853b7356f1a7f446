// Content octets of the identifiers that several rooms of the layer look for.
#ifndef ORTHOLAN_STRICT_DER_KNOWN_IDENTIFIERS_H_
#define ORTHOLAN_STRICT_DER_KNOWN_IDENTIFIERS_H_

#include <cstdint>

namespace Ortholan::strict {

// 1.2.840.113549.1.9.1, emailAddress (RFC 2985 5.2.1).
constexpr uint8_t kEmailAddressOid[] = {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x09, 0x01};
// 2.5.29.17, subjectAltName (RFC 5280 4.2.1.6).
constexpr uint8_t kAlternativeNamesOid[] = {0x55, 0x1D, 0x11};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_KNOWN_IDENTIFIERS_H_
