#include "strict/extensions/known_extensions.h"

#include <algorithm>

#include "strict/extensions/common_shapes.h"
#include "strict/extensions/rfc5280_shapes.h"

namespace Ortholan::strict {
namespace {

constexpr KnownExtension kKnown[] = {
    {"2.5.29.9", "subjectDirectoryAttributes", "Subject Directory Attributes",
     &kDirectoryAttributesShape},
    {"2.5.29.14", "subjectKeyIdentifier", "Subject Key Identifier", &kOctetsShape},
    {"2.5.29.15", "keyUsage", "Key Usage", &kKeyUsageShape},
    {"2.5.29.16", "privateKeyUsagePeriod", "Private Key Usage Period", &kKeyUsagePeriodShape},
    {"2.5.29.17", "subjectAltName", "Subject Alternative Name", &kNamesShape},
    {"2.5.29.18", "issuerAltName", "Issuer Alternative Name", &kNamesShape},
    {"2.5.29.19", "basicConstraints", "Basic Constraints", &kBasicConstraintsShape},
    {"2.5.29.20", "cRLNumber", "CRL Number", &kNumberShape},
    {"2.5.29.21", "reasonCode", "Reason Code", &kReasonCodeShape},
    {"2.5.29.24", "invalidityDate", "Invalidity Date", &kTimeShape},
    {"2.5.29.27", "deltaCRLIndicator", "Delta CRL Indicator", &kNumberShape},
    {"2.5.29.28", "issuingDistributionPoint", "Issuing Distribution Point",
     &kIssuingDistributionPointShape},
    {"2.5.29.29", "certificateIssuer", "Certificate Issuer", &kNamesShape},
    {"2.5.29.30", "nameConstraints", "Name Constraints", &kNameConstraintsShape},
    {"2.5.29.31", "cRLDistributionPoints", "CRL Distribution Points", &kDistributionPointsShape},
    {"2.5.29.32", "certificatePolicies", "Certificate Policies", &kPoliciesShape},
    {"2.5.29.33", "policyMappings", "Policy Mappings", &kPolicyMappingsShape},
    {"2.5.29.35", "authorityKeyIdentifier", "Authority Key Identifier",
     &kAuthorityKeyIdentifierShape},
    {"2.5.29.36", "policyConstraints", "Policy Constraints", &kPolicyConstraintsShape},
    {"2.5.29.37", "extKeyUsage", "Extended Key Usage", &kOidsShape},
    {"2.5.29.46", "freshestCRL", "Freshest CRL", &kDistributionPointsShape},
    {"2.5.29.54", "inhibitAnyPolicy", "Inhibit anyPolicy", &kNumberShape},
    {"1.3.6.1.5.5.7.1.1", "authorityInfoAccess", "Authority Information Access",
     &kInformationAccessShape},
    {"1.3.6.1.5.5.7.1.11", "subjectInfoAccess", "Subject Information Access",
     &kInformationAccessShape},
};

constexpr bool IsBefore(ByteView a, ByteView b) {
  if (a.size != b.size) return a.size < b.size;
  for (size_t i = 0; i < a.size; ++i) {
    if (a[i] != b[i]) return a[i] < b[i];
  }
  return false;
}

constexpr bool IsInOrder(Rows<KnownExtension> rows) {
  for (size_t i = 1; i < rows.count; ++i) {
    if (!IsBefore(rows.first[i - 1].oid.view(), rows.first[i].oid.view())) return false;
  }
  return true;
}
static_assert(IsInOrder(kKnown), "identifiers are looked for by halves");

}  // namespace

Rows<KnownExtension> KnownExtensions() { return kKnown; }

const KnownExtension* FindExtension(ByteView oid) {
  const KnownExtension* const found = std::lower_bound(
      std::begin(kKnown), std::end(kKnown), oid,
      [](const KnownExtension& each, ByteView key) { return IsBefore(each.oid.view(), key); });
  return found != std::end(kKnown) && SameBytes(found->oid.view(), oid) ? found : nullptr;
}

const KnownExtension* FindExtension(std::string_view name) {
  const KnownExtension* const found =
      std::find_if(std::begin(kKnown), std::end(kKnown),
                   [name](const KnownExtension& each) { return name == each.name; });
  return found != std::end(kKnown) ? found : nullptr;
}

}  // namespace Ortholan::strict
