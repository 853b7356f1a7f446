#include "strict/extensions/rfc5280_shapes.h"

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {
namespace {

constexpr Presence kOptional = Presence::kOptional;
constexpr Presence kRequired = Presence::kRequired;
constexpr Presence kDefault = Presence::kDefault;
constexpr Tagging kImplicit = Tagging::kImplicit;
constexpr Tagging kExplicit = Tagging::kExplicit;

}  // namespace

// 4.2.1.1
static constexpr Field kAuthorityKeyFields[] = {
    {"keyIdentifier", "key identifier", &kOctetsShape, kOptional, kImplicit, 0},
    {"authorityCertIssuer", "issuer", &kNamesShape, kOptional, kImplicit, 1},
    {"authorityCertSerialNumber", "serial number", &kNumberShape, kOptional, kImplicit, 2},
};
const Shape kAuthorityKeyIdentifierShape = Sequence(kAuthorityKeyFields);

// 4.2.1.3
static constexpr NumberName kUsages[] = {
    {0, "digitalSignature"}, {1, "nonRepudiation"}, {2, "keyEncipherment"},
    {3, "dataEncipherment"}, {4, "keyAgreement"},   {5, "keyCertSign"},
    {6, "cRLSign"},          {7, "encipherOnly"},   {8, "decipherOnly"},
};
const Shape kKeyUsageShape = NamedBits(kUsages);

// RFC 3280 4.2.1.4
static constexpr Field kPeriodFields[] = {
    {"notBefore", "not before", &kTimeShape, kOptional, kImplicit, 0},
    {"notAfter", "not after", &kTimeShape, kOptional, kImplicit, 1},
};
const Shape kKeyUsagePeriodShape = Sequence(kPeriodFields);

// 4.2.1.4
static constexpr Shape kNumbersShape = SequenceOf(&kNumberShape);
static constexpr Field kReferenceFields[] = {
    {"organization", "organization", &kDisplayTextShape},
    {"noticeNumbers", "notice numbers", &kNumbersShape},
};
static constexpr Shape kReferenceShape = Sequence(kReferenceFields);
static constexpr Field kNoticeFields[] = {
    {"noticeRef", "reference", &kReferenceShape, kOptional},
    {"explicitText", "text", &kDisplayTextShape, kOptional},
};
static constexpr Shape kNoticeShape = Sequence(kNoticeFields, "notice");
static constexpr OpenType kQualifiers[] = {
    {"1.3.6.1.5.5.7.2.1", &kIA5Shape},
    {"1.3.6.1.5.5.7.2.2", &kNoticeShape},
};
static constexpr Shape kQualifierValueShape = Open(kQualifiers);
static constexpr Field kQualifierFields[] = {
    {"policyQualifierId", "", &kOidShape},
    {"qualifier", "value", &kQualifierValueShape},
};
static constexpr Shape kQualifierShape = Sequence(kQualifierFields, "qualifier");
static constexpr Shape kQualifiersShape = SequenceOf(&kQualifierShape);
static constexpr Field kPolicyFields[] = {
    {"policyIdentifier", "", &kOidShape},
    {"policyQualifiers", "qualifiers", &kQualifiersShape, kOptional},
};
static constexpr Shape kPolicyShape = Sequence(kPolicyFields, "policy");
const Shape kPoliciesShape = SequenceOf(&kPolicyShape);

// 4.2.1.5
static constexpr Field kMappingFields[] = {
    {"issuerDomainPolicy", "issuer's policy", &kOidShape},
    {"subjectDomainPolicy", "subject's policy", &kOidShape},
};
static constexpr Shape kMappingShape = Sequence(kMappingFields, "mapping");
const Shape kPolicyMappingsShape = SequenceOf(&kMappingShape);

// 4.2.1.8; dateOfBirth is a time (RFC 3739 3.2.2).
static constexpr OpenType kAttributeTypes[] = {{"1.3.6.1.5.5.7.9.1", &kTimeShape}};
static constexpr Shape kAttributeValueShape = Open(kAttributeTypes);
static constexpr Shape kAttributeValuesShape = SetOf(&kAttributeValueShape);
static constexpr Field kAttributeFields[] = {
    {"type", "", &kOidShape},
    {"values", "values", &kAttributeValuesShape},
};
static constexpr Shape kAttributeShape = Sequence(kAttributeFields, "attribute");
const Shape kDirectoryAttributesShape = SequenceOf(&kAttributeShape);

// 4.2.1.9
static constexpr Field kBasicFields[] = {
    {"cA", "certificate authority", &kFlagShape, Presence::kToldDefault},
    {"pathLenConstraint", "path length", &kNumberShape, kOptional},
};
const Shape kBasicConstraintsShape = Sequence(kBasicFields);

// 4.2.1.10
static constexpr Shape kBaseShape = {ShapeKind::kSubtreeBase};
static constexpr Field kSubtreeFields[] = {
    {"base", "", &kBaseShape},
    {"minimum", "minimum", &kNumberShape, kDefault, kImplicit, 0},
    {"maximum", "maximum", &kNumberShape, kOptional, kImplicit, 1},
};
static constexpr Shape kSubtreeShape = Sequence(kSubtreeFields, "subtree");
static constexpr Shape kSubtreesShape = SequenceOf(&kSubtreeShape);
static constexpr Field kConstraintsFields[] = {
    {"permittedSubtrees", "permitted", &kSubtreesShape, kOptional, kImplicit, 0},
    {"excludedSubtrees", "excluded", &kSubtreesShape, kOptional, kImplicit, 1},
};
const Shape kNameConstraintsShape = Sequence(kConstraintsFields);

// 4.2.1.11
static constexpr Field kPolicyConstraintsFields[] = {
    {"requireExplicitPolicy", "explicit policy required after", &kNumberShape, kOptional, kImplicit,
     0},
    {"inhibitPolicyMapping", "policy mapping inhibited after", &kNumberShape, kOptional, kImplicit,
     1},
};
const Shape kPolicyConstraintsShape = Sequence(kPolicyConstraintsFields);

// 4.2.1.13
static constexpr NumberName kReasons[] = {
    {0, "unused"},          {1, "keyCompromise"},
    {2, "cACompromise"},    {3, "affiliationChanged"},
    {4, "superseded"},      {5, "cessationOfOperation"},
    {6, "certificateHold"}, {7, "privilegeWithdrawn"},
    {8, "aACompromise"},
};
static constexpr Shape kReasonsShape = NamedBits(kReasons);
static constexpr Shape kRdnShape = {ShapeKind::kRdn};
static constexpr Field kPointNameFields[] = {
    {"fullName", "full name", &kNamesShape, kRequired, kImplicit, 0},
    {"nameRelativeToCRLIssuer", "name relative to the issuer", &kRdnShape, kRequired, kImplicit, 1},
};
static constexpr Shape kPointNameShape = Choice(kPointNameFields);
static constexpr Field kPointFields[] = {
    {"distributionPoint", "name", &kPointNameShape, kOptional, kExplicit, 0},
    {"reasons", "reasons", &kReasonsShape, kOptional, kImplicit, 1},
    {"cRLIssuer", "CRL issuer", &kNamesShape, kOptional, kImplicit, 2},
};
static constexpr Shape kPointShape = Sequence(kPointFields, "distribution point");
const Shape kDistributionPointsShape = SequenceOf(&kPointShape);

// 4.2.2.1
static constexpr Field kAccessFields[] = {
    {"accessMethod", "", &kOidShape},
    {"accessLocation", "location", &kNameShape},
};
static constexpr Shape kAccessShape = Sequence(kAccessFields, "access");
const Shape kInformationAccessShape = SequenceOf(&kAccessShape);

// 5.2.5
static constexpr Field kIssuingFields[] = {
    {"distributionPoint", "name", &kPointNameShape, kOptional, kExplicit, 0},
    {"onlyContainsUserCerts", "only user certificates", &kFlagShape, kDefault, kImplicit, 1},
    {"onlyContainsCACerts", "only certificates of authorities", &kFlagShape, kDefault, kImplicit,
     2},
    {"onlySomeReasons", "only some reasons", &kReasonsShape, kOptional, kImplicit, 3},
    {"indirectCRL", "indirect CRL", &kFlagShape, kDefault, kImplicit, 4},
    {"onlyContainsAttributeCerts", "only attribute certificates", &kFlagShape, kDefault, kImplicit,
     5},
};
const Shape kIssuingDistributionPointShape = Sequence(kIssuingFields);

// 5.3.1
static constexpr NumberName kReasonCodes[] = {
    {0, "unspecified"},        {1, "keyCompromise"}, {2, "cACompromise"},
    {3, "affiliationChanged"}, {4, "superseded"},    {5, "cessationOfOperation"},
    {6, "certificateHold"},    {8, "removeFromCRL"}, {9, "privilegeWithdrawn"},
    {10, "aACompromise"},
};
const Shape kReasonCodeShape = NamedNumbers(ShapeKind::kEnumerated, kReasonCodes);

}  // namespace Ortholan::strict
