// The identifiers that the layer's rules speak of, told once. What tables only hold beside a name
// stands in the tables: attribute_types.cpp, known_extensions.cpp, oid_names.cpp.
//
//   if (SameBytes(extension.oid, kKeyUsageOid.view())) ...
#ifndef ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_
#define ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_

#include "bytes/oid_constant.h"

namespace Ortholan::strict {

// Types of attributes (RFC 4519 2.4, RFC 2985 5.2.1 and 5.4.2).
inline constexpr OidConstant kDomainComponentOid("0.9.2342.19200300.100.1.25");
inline constexpr OidConstant kEmailAddressOid("1.2.840.113549.1.9.1");
inline constexpr OidConstant kExtensionRequestOid("1.2.840.113549.1.9.14");

// Extensions (RFC 5280 4.2, 5.2 and 5.3).
inline constexpr OidConstant kSubjectKeyIdOid("2.5.29.14");
inline constexpr OidConstant kKeyUsageOid("2.5.29.15");
inline constexpr OidConstant kAlternativeNamesOid("2.5.29.17");
inline constexpr OidConstant kIssuerNamesOid("2.5.29.18");
inline constexpr OidConstant kBasicConstraintsOid("2.5.29.19");
inline constexpr OidConstant kCrlNumberOid("2.5.29.20");
inline constexpr OidConstant kReasonCodeOid("2.5.29.21");
inline constexpr OidConstant kDeltaIndicatorOid("2.5.29.27");
inline constexpr OidConstant kIssuingPointOid("2.5.29.28");
inline constexpr OidConstant kCertificateIssuerOid("2.5.29.29");
inline constexpr OidConstant kNameConstraintsOid("2.5.29.30");
inline constexpr OidConstant kDistributionPointsOid("2.5.29.31");
inline constexpr OidConstant kPoliciesOid("2.5.29.32");
inline constexpr OidConstant kPolicyMappingsOid("2.5.29.33");
inline constexpr OidConstant kAuthorityKeyIdOid("2.5.29.35");
inline constexpr OidConstant kPolicyConstraintsOid("2.5.29.36");
inline constexpr OidConstant kFreshestOid("2.5.29.46");
inline constexpr OidConstant kInhibitAnyPolicyOid("2.5.29.54");
inline constexpr OidConstant kAuthorityAccessOid("1.3.6.1.5.5.7.1.1");

// Extensions of RFC 3779.
inline constexpr OidConstant kAddressBlocksOid("1.3.6.1.5.5.7.1.7");
inline constexpr OidConstant kSystemNumbersOid("1.3.6.1.5.5.7.1.8");

// What stands inside them: policies, their qualifiers, methods of access (RFC
// 5280 4.2.1.4, 4.2.2.1).
inline constexpr OidConstant kAnyPolicyOid("2.5.29.32.0");
inline constexpr OidConstant kCpsOid("1.3.6.1.5.5.7.2.1");
inline constexpr OidConstant kUserNoticeOid("1.3.6.1.5.5.7.2.2");
inline constexpr OidConstant kCaIssuersOid("1.3.6.1.5.5.7.48.2");

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_
