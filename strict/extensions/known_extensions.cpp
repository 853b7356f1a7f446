#include "strict/extensions/known_extensions.h"

#include <algorithm>

#include "strict/extensions/common_shapes.h"
#include "strict/extensions/media_shapes.h"
#include "strict/extensions/qualified_shapes.h"
#include "strict/extensions/resource_shapes.h"
#include "strict/extensions/rfc5280_shapes.h"
#include "strict/extensions/tls_shapes.h"
#include "strict/extensions/vendor_shapes.h"
#include "strict/extensions/windows_shapes.h"

namespace Ortholan::strict {
namespace {

constexpr KnownExtension kKnown[] = {
    {"2.5.29.7", "subjectAltNameSuperseded", "Subject Alternative Name (superseded)", &kNamesShape},
    {"2.5.29.8", "issuerAltNameSuperseded", "Issuer Alternative Name (superseded)", &kNamesShape},
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
    {"2.5.29.23", "holdInstructionCode", "Hold Instruction Code", &kOidShape},
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
    {"2.5.29.60", "expiredCertsOnCRL", "Expired Certificates on CRL", &kTimeShape},
    {"1.2.643.100.111", "subjectSignTool", "Subject Sign Tool", &kUtf8Shape},
    {"1.2.643.100.112", "issuerSignTool", "Issuer Sign Tool", &kIssuerSignToolShape},
    {"2.23.140.3.1", "cabfOrganizationIdentifier", "CA/Browser Forum Organization Identifier",
     &kOrganizationIdentifierShape},
    {"1.3.6.1.5.5.7.1.1", "authorityInfoAccess", "Authority Information Access",
     &kInformationAccessShape},
    {"1.3.6.1.5.5.7.1.2", "biometricInfo", "Biometric Information", &kBiometricInformationShape},
    {"1.3.6.1.5.5.7.1.3", "qcStatements", "Qualified Certificate Statements",
     &kQualifiedStatementsShape},
    {"1.3.6.1.5.5.7.1.7", "ipAddrBlocks", "IP Address Blocks", &kAddressBlocksShape},
    {"1.3.6.1.5.5.7.1.8", "autonomousSysIds", "Autonomous Systems", &kAutonomousSystemsShape},
    {"1.3.6.1.5.5.7.1.11", "subjectInfoAccess", "Subject Information Access",
     &kInformationAccessShape},
    {"1.3.6.1.5.5.7.1.12", "logotype", "Logotypes", &kLogotypesShape},
    {"1.3.6.1.5.5.7.1.14", "proxyCertInfo", "Proxy Certificate Information",
     &kProxyInformationShape},
    {"1.3.6.1.5.5.7.1.24", "tlsFeature", "TLS Feature", &kTlsFeaturesShape},
    {"1.2.840.113533.7.65.0", "entrustVersInfo", "Entrust Version Information",
     &kEntrustVersionShape},
    {"1.2.840.113549.1.9.15", "smimeCapabilities", "S/MIME Capabilities", &kCapabilitiesShape},
    {"1.3.6.1.4.1.311.20.2", "certificateTemplateName", "Certificate Template Name",
     &kAnyStringShape},
    {"1.3.6.1.4.1.311.21.1", "cAVersion", "CA Version", &kNumberShape},
    {"1.3.6.1.4.1.311.21.2", "previousCACertHash", "Previous CA Certificate Hash", &kOctetsShape},
    {"1.3.6.1.4.1.311.21.3", "cRLVirtualBase", "CRL Virtual Base", &kNumberShape},
    {"1.3.6.1.4.1.311.21.4", "cRLNextPublish", "Next CRL Publish", &kNextPublishShape},
    {"1.3.6.1.4.1.311.21.7", "certificateTemplate", "Certificate Template", &kTemplateShape},
    {"1.3.6.1.4.1.311.21.10", "applicationPolicies", "Application Policies", &kPoliciesShape},
    {"1.3.6.1.4.1.311.21.11", "applicationPolicyMappings", "Application Policy Mappings",
     &kPolicyMappingsShape},
    {"1.3.6.1.4.1.311.21.12", "applicationPolicyConstraints", "Application Policy Constraints",
     &kPolicyConstraintsShape},
    {"1.3.6.1.4.1.311.21.14", "cRLSelfCDP", "CRL Self Distribution Point",
     &kDistributionPointsShape},
    {"1.3.6.1.4.1.311.25.2", "ntdsCASecurity", "Windows Security Identifier",
     &kSecurityIdentifierShape},
    {"1.3.6.1.5.5.7.48.1.2", "ocspNonce", "OCSP Nonce", &kOctetsShape},
    {"1.3.6.1.5.5.7.48.1.5", "ocspNoCheck", "OCSP No Check", &kNullShape},
    {"1.3.6.1.5.5.7.48.1.6", "archiveCutoff", "OCSP Archive Cutoff", &kTimeShape},
    {"2.16.840.1.113730.1.1", "netscapeCertType", "Netscape Certificate Type", &kNetscapeTypeShape},
    {"2.16.840.1.113730.1.2", "netscapeBaseUrl", "Netscape Base URL", &kIA5Shape},
    {"2.16.840.1.113730.1.3", "netscapeRevocationUrl", "Netscape Revocation URL", &kIA5Shape},
    {"2.16.840.1.113730.1.4", "netscapeCaRevocationUrl", "Netscape CA Revocation URL", &kIA5Shape},
    {"2.16.840.1.113730.1.7", "netscapeRenewalUrl", "Netscape Renewal URL", &kIA5Shape},
    {"2.16.840.1.113730.1.8", "netscapeCaPolicyUrl", "Netscape CA Policy URL", &kIA5Shape},
    {"2.16.840.1.113730.1.12", "netscapeSslServerName", "Netscape SSL Server Name", &kIA5Shape},
    {"2.16.840.1.113730.1.13", "netscapeComment", "Netscape Comment", &kIA5Shape},
    {"1.2.840.113583.1.1.9.1", "adobeTimestamp", "Adobe Timestamp", &kAdobeTimestampShape},
    {"1.2.840.113583.1.1.9.2", "adobeArchiveRevInfo", "Adobe Archive Revocation Information",
     &kAdobeArchiveShape},
    {"1.3.6.1.4.1.11129.2.4.2", "signedCertificateTimestampList", "Signed Certificate Timestamps",
     &kTimestampsShape},
    {"1.3.6.1.4.1.11129.2.4.3", "precertificatePoison", "Precertificate Poison", &kNullShape},
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
