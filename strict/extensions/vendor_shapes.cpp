#include "strict/extensions/vendor_shapes.h"

#include <ortholan/strict/extension_vendors.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// 2.16.840.1.113730.1.1
static constexpr NumberName kNetscapeTypes[] = {
    {0, "sslClient"}, {1, "sslServer"}, {2, "smime"},   {3, "objectSigning"},
    {4, "reserved"},  {5, "sslCA"},     {6, "smimeCA"}, {7, "objectSigningCA"},
};
const Shape kNetscapeTypeShape = NamedBits(kNetscapeTypes);

// 1.2.840.113533.7.65.0
static constexpr NumberName kEntrustFlags[] = {
    {0, "keyUpdateAllowed"},   {1, "newExtensions"}, {2, "pKIXCertificate"},
    {3, "enterpriseCategory"}, {4, "webCategory"},   {5, "sETCategory"},
};
static constexpr Shape kEntrustTextShape = AsciiIn(kGeneralString);
static constexpr Shape kEntrustFlagsShape = NamedBits(kEntrustFlags);
static constexpr Field kEntrustFields[] = {
    {"entrustVers", "version", &kEntrustTextShape, offsetof(ortholan_entrust_version, version)},
    {"entrustInfoFlags", "flags", &kEntrustFlagsShape, offsetof(ortholan_entrust_version, flags)},
};
const Shape kEntrustVersionShape = Sequence(kEntrustFields);

// RFC 8551 2.5.2
static constexpr Shape kParametersShape = {ShapeKind::kAny};
static constexpr Field kCapabilityFields[] = {
    {"capabilityID", "", &kOidShape, offsetof(ortholan_capability, oid)},
    {"parameters", "parameters", &kParametersShape, offsetof(ortholan_capability, parameters),
     Presence::kOptional},
};
const Shape kCapabilityShape = Sequence(kCapabilityFields, "capability");
const Shape kCapabilitiesShape = SequenceOf(&kCapabilityShape);

// RFC 3820 3.8
static constexpr Field kProxyPolicyFields[] = {
    {"policyLanguage", "", &kOidShape, offsetof(ortholan_proxy_policy, language)},
    {"policy", "policy", &kOctetsShape, offsetof(ortholan_proxy_policy, policy),
     Presence::kOptional},
};
static constexpr Shape kProxyPolicyShape = Sequence(kProxyPolicyFields);
static constexpr Field kProxyFields[] = {
    {"pCPathLenConstraint", "path length", &kNumberShape,
     offsetof(ortholan_proxy_information, path_length), Presence::kOptional},
    {"proxyPolicy", "language of the policy", &kProxyPolicyShape,
     offsetof(ortholan_proxy_information, policy)},
};
const Shape kProxyInformationShape = Sequence(kProxyFields);

// 1.2.643.100.112, tools of a signing authority
static constexpr Field kToolFields[] = {
    {"signTool", "signing tool", &kUtf8Shape, offsetof(ortholan_issuer_sign_tool, tool)},
    {"cATool", "tool of the authority", &kUtf8Shape,
     offsetof(ortholan_issuer_sign_tool, authority_tool)},
    {"signToolCert", "certificate of the signing tool", &kUtf8Shape,
     offsetof(ortholan_issuer_sign_tool, tool_certificate)},
    {"cAToolCert", "certificate of the authority's tool", &kUtf8Shape,
     offsetof(ortholan_issuer_sign_tool, authority_tool_certificate)},
};
const Shape kIssuerSignToolShape = Sequence(kToolFields);

// 1.2.840.113583.1.1.9.1 and .2
static constexpr Field kAdobeFields[] = {
    {"version", "version", &kNumberShape, offsetof(ortholan_adobe_timestamp, version)},
    {"location", "location", &kNameShape, offsetof(ortholan_adobe_timestamp, location)},
    {"requiresAuth", "requires authentication", &kFlagShape,
     offsetof(ortholan_adobe_timestamp, needs_authentication), Presence::kDefault},
};
const Shape kAdobeTimestampShape = Sequence(kAdobeFields);
static constexpr Field kArchiveFields[] = {
    {"version", "version", &kNumberShape, offsetof(ortholan_adobe_archive, version)}};
const Shape kAdobeArchiveShape = Sequence(kArchiveFields);

}  // namespace Ortholan::strict
