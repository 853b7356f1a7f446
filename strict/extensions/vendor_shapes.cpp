#include "strict/extensions/vendor_shapes.h"

#include <ortholan/strict/extension_values.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// 2.16.840.1.113730.1.1
static constexpr NumberName kNetscapeTypes[] = {
    {0, "sslClient"}, {1, "sslServer"}, {2, "smime"},   {3, "objectSigning"},
    {4, "reserved"},  {5, "sslCA"},     {6, "smimeCA"}, {7, "objectSigningCA"},
};
const Shape kNetscapeTypeShape = NamedBits(kNetscapeTypes);

// 1.2.840.113533.7.65.0
constexpr uint8_t kGeneralString = 0x1B;
static constexpr NumberName kEntrustFlags[] = {
    {0, "keyUpdateAllowed"},   {1, "newExtensions"}, {2, "pKIXCertificate"},
    {3, "enterpriseCategory"}, {4, "webCategory"},   {5, "sETCategory"},
};
static constexpr Shape kEntrustTextShape = AsciiIn(kGeneralString);
static constexpr Shape kEntrustFlagsShape = NamedBits(kEntrustFlags);
static constexpr Field kEntrustFields[] = {
    {"entrustVers", "version", &kEntrustTextShape, kNoPlace},
    {"entrustInfoFlags", "flags", &kEntrustFlagsShape, kNoPlace},
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
    {"policyLanguage", "", &kOidShape, kNoPlace},
    {"policy", "policy", &kOctetsShape, kNoPlace, Presence::kOptional},
};
static constexpr Shape kProxyPolicyShape = Sequence(kProxyPolicyFields);
static constexpr Field kProxyFields[] = {
    {"pCPathLenConstraint", "path length", &kNumberShape, kNoPlace, Presence::kOptional},
    {"proxyPolicy", "language of the policy", &kProxyPolicyShape, kNoPlace},
};
const Shape kProxyInformationShape = Sequence(kProxyFields);

// 1.2.643.100.112, tools of a signing authority
static constexpr Field kToolFields[] = {
    {"signTool", "signing tool", &kUtf8Shape, kNoPlace},
    {"cATool", "tool of the authority", &kUtf8Shape, kNoPlace},
    {"signToolCert", "certificate of the signing tool", &kUtf8Shape, kNoPlace},
    {"cAToolCert", "certificate of the authority's tool", &kUtf8Shape, kNoPlace},
};
const Shape kIssuerSignToolShape = Sequence(kToolFields);

// 1.2.840.113583.1.1.9.1 and .2
static constexpr Field kTimestampFields[] = {
    {"version", "version", &kNumberShape, kNoPlace},
    {"location", "location", &kNameShape, kNoPlace},
    {"requiresAuth", "requires authentication", &kFlagShape, kNoPlace, Presence::kDefault},
};
const Shape kAdobeTimestampShape = Sequence(kTimestampFields);
static constexpr Field kArchiveFields[] = {{"version", "version", &kNumberShape, kNoPlace}};
const Shape kAdobeArchiveShape = Sequence(kArchiveFields);

}  // namespace Ortholan::strict
