// The identifiers that the layer's rules speak of, told once. What tables only hold beside a name
// stands in the tables: attribute_types.cpp, known_extensions.cpp, oid_names.cpp.
//
//   if (SameBytes(extension.oid, oids::kKeyUsage.view())) ...
#ifndef ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_
#define ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_

#include "bytes/oid_constant.h"

namespace Ortholan::strict::oids {

// Types of attributes (RFC 4519 2.4, RFC 2985 5.2.1 and 5.4.2).
inline constexpr OidConstant kDomainComponent("0.9.2342.19200300.100.1.25");
inline constexpr OidConstant kEmailAddress("1.2.840.113549.1.9.1");
inline constexpr OidConstant kExtensionRequest("1.2.840.113549.1.9.14");

// Extensions (RFC 5280 4.2, 5.2 and 5.3).
inline constexpr OidConstant kSubjectKeyId("2.5.29.14");
inline constexpr OidConstant kKeyUsage("2.5.29.15");
inline constexpr OidConstant kAlternativeNames("2.5.29.17");
inline constexpr OidConstant kIssuerNames("2.5.29.18");
inline constexpr OidConstant kBasicConstraints("2.5.29.19");
inline constexpr OidConstant kCrlNumber("2.5.29.20");
inline constexpr OidConstant kReasonCode("2.5.29.21");
inline constexpr OidConstant kDeltaIndicator("2.5.29.27");
inline constexpr OidConstant kIssuingPoint("2.5.29.28");
inline constexpr OidConstant kCertificateIssuer("2.5.29.29");
inline constexpr OidConstant kNameConstraints("2.5.29.30");
inline constexpr OidConstant kDistributionPoints("2.5.29.31");
inline constexpr OidConstant kPolicies("2.5.29.32");
inline constexpr OidConstant kPolicyMappings("2.5.29.33");
inline constexpr OidConstant kAuthorityKeyId("2.5.29.35");
inline constexpr OidConstant kPolicyConstraints("2.5.29.36");
inline constexpr OidConstant kFreshest("2.5.29.46");
inline constexpr OidConstant kInhibitAnyPolicy("2.5.29.54");
inline constexpr OidConstant kAuthorityAccess("1.3.6.1.5.5.7.1.1");

// Extensions of RFC 3779.
inline constexpr OidConstant kAddressBlocks("1.3.6.1.5.5.7.1.7");
inline constexpr OidConstant kSystemNumbers("1.3.6.1.5.5.7.1.8");

// What stands inside them: policies, their qualifiers, methods of access (RFC
// 5280 4.2.1.4, 4.2.2.1).
inline constexpr OidConstant kAnyPolicy("2.5.29.32.0");
inline constexpr OidConstant kCps("1.3.6.1.5.5.7.2.1");
inline constexpr OidConstant kUserNotice("1.3.6.1.5.5.7.2.2");
inline constexpr OidConstant kCaIssuers("1.3.6.1.5.5.7.48.2");

}  // namespace Ortholan::strict::oids

#endif  // ORTHOLAN_STRICT_DER_KNOWN_OIDS_H_
