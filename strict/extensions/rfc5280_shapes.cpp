#include "strict/extensions/rfc5280_shapes.h"

#include <ortholan/strict/extension_values.h>

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
    {"keyIdentifier", "key identifier", &kOctetsShape,
     offsetof(ortholan_authority_key_identifier, key_identifier), kOptional, kImplicit, 0},
    {"authorityCertIssuer", "issuer", &kNamesShape,
     offsetof(ortholan_authority_key_identifier, issuer), kOptional, kImplicit, 1},
    {"authorityCertSerialNumber", "serial number", &kNumberShape,
     offsetof(ortholan_authority_key_identifier, serial_number), kOptional, kImplicit, 2},
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
    {"notBefore", "not before", &kTimeShape, offsetof(ortholan_key_usage_period, not_before),
     kOptional, kImplicit, 0},
    {"notAfter", "not after", &kTimeShape, offsetof(ortholan_key_usage_period, not_after),
     kOptional, kImplicit, 1},
};
const Shape kKeyUsagePeriodShape = Sequence(kPeriodFields);

// 4.2.1.4
static constexpr Shape kNumbersShape = SequenceOf(&kNumberShape);
static constexpr Field kReferenceFields[] = {
    {"organization", "organization", &kDisplayTextShape,
     offsetof(ortholan_notice_reference, organization)},
    {"noticeNumbers", "notice numbers", &kNumbersShape,
     offsetof(ortholan_notice_reference, numbers)},
};
static constexpr Shape kReferenceShape = Sequence(kReferenceFields);
static constexpr Field kNoticeFields[] = {
    {"noticeRef", "reference", &kReferenceShape, offsetof(ortholan_user_notice, reference),
     kOptional},
    {"explicitText", "text", &kDisplayTextShape, offsetof(ortholan_user_notice, text), kOptional},
};
const Shape kNoticeShape = Sequence(kNoticeFields, "notice");
static constexpr OpenType kQualifiers[] = {
    {"1.3.6.1.5.5.7.2.1", &kIA5Shape},
    {"1.3.6.1.5.5.7.2.2", &kNoticeShape},
};
static constexpr Shape kQualifierValueShape = Open(kQualifiers);
static constexpr Field kQualifierFields[] = {
    {"policyQualifierId", "", &kOidShape, offsetof(ortholan_policy_qualifier, oid)},
    {"qualifier", "value", &kQualifierValueShape, offsetof(ortholan_policy_qualifier, value)},
};
const Shape kQualifierShape = Sequence(kQualifierFields, "qualifier");
static constexpr Shape kQualifiersShape = SequenceOf(&kQualifierShape);
static constexpr Field kPolicyFields[] = {
    {"policyIdentifier", "", &kOidShape, offsetof(ortholan_policy, oid)},
    {"policyQualifiers", "qualifiers", &kQualifiersShape, offsetof(ortholan_policy, qualifiers),
     kOptional},
};
const Shape kPolicyShape = Sequence(kPolicyFields, "policy");
const Shape kPoliciesShape = SequenceOf(&kPolicyShape);

// 4.2.1.5
static constexpr Field kMappingFields[] = {
    {"issuerDomainPolicy", "issuer's policy", &kOidShape,
     offsetof(ortholan_policy_mapping, issuer_policy)},
    {"subjectDomainPolicy", "subject's policy", &kOidShape,
     offsetof(ortholan_policy_mapping, subject_policy)},
};
const Shape kMappingShape = Sequence(kMappingFields, "mapping");
const Shape kPolicyMappingsShape = SequenceOf(&kMappingShape);

// 4.2.1.8; dateOfBirth is a time (RFC 3739 3.2.2).
static constexpr OpenType kAttributeTypes[] = {{"1.3.6.1.5.5.7.9.1", &kTimeShape}};
static constexpr Shape kAttributeValueShape = Open(kAttributeTypes);
static constexpr Shape kAttributeValuesShape = SetOf(&kAttributeValueShape);
static constexpr Field kAttributeFields[] = {
    {"type", "", &kOidShape, offsetof(ortholan_directory_attribute, type)},
    {"values", "values", &kAttributeValuesShape, offsetof(ortholan_directory_attribute, values)},
};
const Shape kAttributeShape = Sequence(kAttributeFields, "attribute");
const Shape kDirectoryAttributesShape = SequenceOf(&kAttributeShape);

// 4.2.1.9
static constexpr Field kBasicFields[] = {
    {"cA", "certificate authority", &kFlagShape, offsetof(ortholan_basic_constraints, is_authority),
     Presence::kToldDefault},
    {"pathLenConstraint", "path length", &kNumberShape,
     offsetof(ortholan_basic_constraints, path_length), kOptional},
};
const Shape kBasicConstraintsShape = Sequence(kBasicFields);

// 4.2.1.10
static constexpr Shape kBaseShape = {ShapeKind::kSubtreeBase};
static constexpr Field kSubtreeFields[] = {
    {"base", "", &kBaseShape, offsetof(ortholan_name_subtree, base)},
    {"minimum", "minimum", &kNumberShape, offsetof(ortholan_name_subtree, minimum), kDefault,
     kImplicit, 0},
    {"maximum", "maximum", &kNumberShape, offsetof(ortholan_name_subtree, maximum), kOptional,
     kImplicit, 1},
};
const Shape kSubtreeShape = Sequence(kSubtreeFields, "subtree");
static constexpr Shape kSubtreesShape = SequenceOf(&kSubtreeShape);
static constexpr Field kConstraintsFields[] = {
    {"permittedSubtrees", "permitted", &kSubtreesShape, offsetof(ortholan_name_subtrees, permitted),
     kOptional, kImplicit, 0},
    {"excludedSubtrees", "excluded", &kSubtreesShape, offsetof(ortholan_name_subtrees, excluded),
     kOptional, kImplicit, 1},
};
const Shape kNameConstraintsShape = Sequence(kConstraintsFields);

// 4.2.1.11
static constexpr Field kPolicyConstraintsFields[] = {
    {"requireExplicitPolicy", "explicit policy required after", &kNumberShape,
     offsetof(ortholan_policy_constraints, require_explicit_policy), kOptional, kImplicit, 0},
    {"inhibitPolicyMapping", "policy mapping inhibited after", &kNumberShape,
     offsetof(ortholan_policy_constraints, inhibit_policy_mapping), kOptional, kImplicit, 1},
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
    {"fullName", "full name", &kNamesShape, offsetof(ortholan_distribution_point_name, full_name),
     kRequired, kImplicit, 0},
    {"nameRelativeToCRLIssuer", "name relative to the issuer", &kRdnShape,
     offsetof(ortholan_distribution_point_name, relative_name), kRequired, kImplicit, 1},
};
static constexpr Shape kPointNameShape = Choice(kPointNameFields);
static constexpr Field kPointFields[] = {
    {"distributionPoint", "name", &kPointNameShape, offsetof(ortholan_distribution_point, name),
     kOptional, kExplicit, 0},
    {"reasons", "reasons", &kReasonsShape, offsetof(ortholan_distribution_point, reasons),
     kOptional, kImplicit, 1},
    {"cRLIssuer", "CRL issuer", &kNamesShape, offsetof(ortholan_distribution_point, crl_issuer),
     kOptional, kImplicit, 2},
};
const Shape kPointShape = Sequence(kPointFields, "distribution point");
const Shape kDistributionPointsShape = SequenceOf(&kPointShape);

// 4.2.2.1
static constexpr Field kAccessFields[] = {
    {"accessMethod", "", &kOidShape, offsetof(ortholan_access_description, method)},
    {"accessLocation", "location", &kNameShape, offsetof(ortholan_access_description, location)},
};
const Shape kAccessShape = Sequence(kAccessFields, "access");
const Shape kInformationAccessShape = SequenceOf(&kAccessShape);

// 5.2.5
static constexpr Field kIssuingFields[] = {
    {"distributionPoint", "name", &kPointNameShape,
     offsetof(ortholan_issuing_distribution_point, name), kOptional, kExplicit, 0},
    {"onlyContainsUserCerts", "only user certificates", &kFlagShape,
     offsetof(ortholan_issuing_distribution_point, only_user_certificates), kDefault, kImplicit, 1},
    {"onlyContainsCACerts", "only certificates of authorities", &kFlagShape,
     offsetof(ortholan_issuing_distribution_point, only_authority_certificates), kDefault,
     kImplicit, 2},
    {"onlySomeReasons", "only some reasons", &kReasonsShape,
     offsetof(ortholan_issuing_distribution_point, only_some_reasons), kOptional, kImplicit, 3},
    {"indirectCRL", "indirect CRL", &kFlagShape,
     offsetof(ortholan_issuing_distribution_point, is_indirect), kDefault, kImplicit, 4},
    {"onlyContainsAttributeCerts", "only attribute certificates", &kFlagShape,
     offsetof(ortholan_issuing_distribution_point, only_attribute_certificates), kDefault,
     kImplicit, 5},
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
