// What each structure is made of, by field.h. Sections are those of RFC 5280 where none other is
// named.

#include "platform/posix/structures/table.h"

#include <cstddef>
#include <cstring>

namespace Ortholan::posix {
namespace {

// Context tags: primitive, constructed.
constexpr BYTE Implicit(BYTE number) { return kContextSpecific | number; }
constexpr BYTE Constructed(BYTE number) { return kContextSpecific | kConstructed | number; }

// GeneralName, 4.2.1.6. x400Address and ediPartyName have no place in the structure.
constexpr Field kOtherName[] = {
    Identifier(offsetof(CERT_OTHER_NAME, pszObjId)),
    Tagged(Constructed(0), Octets(offsetof(CERT_OTHER_NAME, Value))),
};
constexpr WORD kNameValue = offsetof(CERT_ALT_NAME_ENTRY, pwszDNSName);
constexpr Field kNames[] = {
    Alternative(CERT_ALT_NAME_OTHER_NAME,
                Tagged(Constructed(0), Pointer<CERT_OTHER_NAME>(kNameValue, kOtherName))),
    Alternative(CERT_ALT_NAME_RFC822_NAME, Tagged(Implicit(1), Ia5Text(kNameValue))),
    Alternative(CERT_ALT_NAME_DNS_NAME, Tagged(Implicit(2), Ia5Text(kNameValue))),
    Alternative(CERT_ALT_NAME_DIRECTORY_NAME, Tagged(Constructed(4), Octets(kNameValue))),
    Alternative(CERT_ALT_NAME_URL, Tagged(Implicit(6), Ia5Text(kNameValue))),
    Alternative(CERT_ALT_NAME_IP_ADDRESS, Tagged(Implicit(7), Octets(kNameValue))),
    Alternative(CERT_ALT_NAME_REGISTERED_ID, Tagged(Implicit(8), Identifier(kNameValue))),
};
constexpr Field kGeneralName = Choice(kNames);

constexpr Field GeneralNames(WORD at) {
  return Indexed(16, SequenceOf<CERT_ALT_NAME_ENTRY>(at, kGeneralName));
}
constexpr Field kGeneralNames = GeneralNames(0);

// Name, 4.1.2.4, with the values of X509_NAME and of X509_UNICODE_NAME. Type and value lie in an
// attribute as they do in a CERT_NAME_VALUE.
constexpr WORD kAttributeValue = offsetof(CERT_RDN_ATTR, dwValueType);
static_assert(offsetof(CERT_RDN_ATTR, Value) - kAttributeValue == offsetof(CERT_NAME_VALUE, Value));
constexpr Field kAttributeMembers[] = {Identifier(offsetof(CERT_RDN_ATTR, pszObjId)),
                                       Value(kAttributeKind, kAttributeValue)};
constexpr Field kAttribute = Sequence(kAttributeMembers);
constexpr Field kRdn = SetOf<CERT_RDN_ATTR>(0, kAttribute);
constexpr Field kName = SequenceOf<CERT_RDN>(0, kRdn);

constexpr Field kUnicodeAttributeMembers[] = {Identifier(offsetof(CERT_RDN_ATTR, pszObjId)),
                                              Value(kUnicodeAttributeKind, kAttributeValue)};
constexpr Field kUnicodeAttribute = Sequence(kUnicodeAttributeMembers);
constexpr Field kUnicodeRdn = Indexed(16, SetOf<CERT_RDN_ATTR>(0, kUnicodeAttribute));
constexpr Field kUnicodeName = Indexed(22, SequenceOf<CERT_RDN>(0, kUnicodeRdn));

constexpr Field kStringValue = Value(kNameValueKind, 0);
constexpr Field kUnicodeStringValue = Value(kUnicodeNameValueKind, 0);

// Extensions, 4.1.
constexpr Field kExtensionMembers[] = {Identifier(offsetof(CERT_EXTENSION, pszObjId)),
                                       Optional(Flag(offsetof(CERT_EXTENSION, fCritical))),
                                       Octets(offsetof(CERT_EXTENSION, Value))};
constexpr Field kExtension = Sequence(kExtensionMembers);
constexpr Field kExtensions = SequenceOf<CERT_EXTENSION>(0, kExtension);

// AuthorityKeyIdentifier, 4.2.1.1, and its form before X.509 (1997).
constexpr Field kAuthorityKeyIdMembers[] = {
    Optional(Tagged(Implicit(0), Octets(offsetof(CERT_AUTHORITY_KEY_ID2_INFO, KeyId)))),
    Optional(Tagged(Constructed(1),
                    GeneralNames(offsetof(CERT_AUTHORITY_KEY_ID2_INFO, AuthorityCertIssuer)))),
    Optional(Tagged(Implicit(2),
                    Number(offsetof(CERT_AUTHORITY_KEY_ID2_INFO, AuthorityCertSerialNumber)))),
};
constexpr Field kAuthorityKeyId = Sequence(kAuthorityKeyIdMembers);
constexpr Field kOldAuthorityKeyIdMembers[] = {
    Optional(Tagged(Implicit(0), Octets(offsetof(CERT_AUTHORITY_KEY_ID_INFO, KeyId)))),
    Optional(Tagged(Constructed(1), Octets(offsetof(CERT_AUTHORITY_KEY_ID_INFO, CertIssuer)))),
    Optional(Tagged(Implicit(2), Number(offsetof(CERT_AUTHORITY_KEY_ID_INFO, CertSerialNumber)))),
};
constexpr Field kOldAuthorityKeyId = Sequence(kOldAuthorityKeyIdMembers);

// BasicConstraints, 4.2.1.9, and its form before X.509 (1997).
constexpr Field kBasicConstraintsMembers[] = {
    Optional(Flag(offsetof(CERT_BASIC_CONSTRAINTS2_INFO, fCA))),
    Flagged(Unsigned(offsetof(CERT_BASIC_CONSTRAINTS2_INFO, dwPathLenConstraint))),
};
constexpr Field kBasicConstraints = Sequence(kBasicConstraintsMembers);
constexpr Field kAnyElement = Any(0);
constexpr Field kOldBasicConstraintsMembers[] = {
    Bits(offsetof(CERT_BASIC_CONSTRAINTS_INFO, SubjectType)),
    Flagged(Unsigned(offsetof(CERT_BASIC_CONSTRAINTS_INFO, dwPathLenConstraint))),
    Optional(Tagged(Constructed(0),
                    SequenceOf<CERT_NAME_BLOB>(
                        offsetof(CERT_BASIC_CONSTRAINTS_INFO, cSubtreesConstraint), kAnyElement))),
};
constexpr Field kOldBasicConstraints = Sequence(kOldBasicConstraintsMembers);

// CertificatePolicies and UserNotice, 4.2.1.4.
constexpr Field kQualifierMembers[] = {
    Identifier(offsetof(CERT_POLICY_QUALIFIER_INFO, pszPolicyQualifierId)),
    Optional(Any(offsetof(CERT_POLICY_QUALIFIER_INFO, Qualifier))),
};
constexpr Field kQualifier = Sequence(kQualifierMembers);
constexpr Field kPolicyMembers[] = {
    Identifier(offsetof(CERT_POLICY_INFO, pszPolicyIdentifier)),
    Optional(SequenceOf<CERT_POLICY_QUALIFIER_INFO>(offsetof(CERT_POLICY_INFO, cPolicyQualifier),
                                                    kQualifier)),
};
constexpr Field kPolicy = Sequence(kPolicyMembers);
constexpr Field kPolicies = SequenceOf<CERT_POLICY_INFO>(0, kPolicy);

constexpr Field kNoticeNumber = Signed(0);
constexpr Field kNoticeReference[] = {
    NarrowText(offsetof(CERT_POLICY_QUALIFIER_NOTICE_REFERENCE, pszOrganization)),
    SequenceOf<int>(offsetof(CERT_POLICY_QUALIFIER_NOTICE_REFERENCE, cNoticeNumbers),
                    kNoticeNumber),
};
constexpr Field kUserNoticeMembers[] = {
    Optional(Pointer<CERT_POLICY_QUALIFIER_NOTICE_REFERENCE>(
        offsetof(CERT_POLICY_QUALIFIER_USER_NOTICE, pNoticeReference), kNoticeReference)),
    Optional(DisplayText(offsetof(CERT_POLICY_QUALIFIER_USER_NOTICE, pszDisplayText))),
};
constexpr Field kUserNotice = Sequence(kUserNoticeMembers);

// PolicyMappings, 4.2.1.5, and PolicyConstraints, 4.2.1.11.
constexpr Field kMappingMembers[] = {
    Identifier(offsetof(CERT_POLICY_MAPPING, pszIssuerDomainPolicy)),
    Identifier(offsetof(CERT_POLICY_MAPPING, pszSubjectDomainPolicy)),
};
constexpr Field kMapping = Sequence(kMappingMembers);
constexpr Field kMappings = SequenceOf<CERT_POLICY_MAPPING>(0, kMapping);
constexpr Field kPolicyConstraintsMembers[] = {
    Flagged(Tagged(Implicit(0), Unsigned(offsetof(CERT_POLICY_CONSTRAINTS_INFO,
                                                  dwRequireExplicitPolicySkipCerts)))),
    Flagged(Tagged(Implicit(1), Unsigned(offsetof(CERT_POLICY_CONSTRAINTS_INFO,
                                                  dwInhibitPolicyMappingSkipCerts)))),
};
constexpr Field kPolicyConstraints = Sequence(kPolicyConstraintsMembers);

// NameConstraints, 4.2.1.10.
constexpr Field kSubtreeMembers[] = {
    Choice(kNames, offsetof(CERT_GENERAL_SUBTREE, Base)),
    Optional(Tagged(Implicit(0), Unsigned(offsetof(CERT_GENERAL_SUBTREE, dwMinimum)))),
    Flagged(Tagged(Implicit(1), Unsigned(offsetof(CERT_GENERAL_SUBTREE, dwMaximum)))),
};
constexpr Field kSubtree = Sequence(kSubtreeMembers);
constexpr Field Subtrees(BYTE tag, WORD at) {
  return Optional(
      Tagged(Constructed(tag), Indexed(16, SequenceOf<CERT_GENERAL_SUBTREE>(at, kSubtree))));
}
constexpr Field kNameConstraintsMembers[] = {
    Subtrees(0, offsetof(CERT_NAME_CONSTRAINTS_INFO, cPermittedSubtree)),
    Marked(31, Subtrees(1, offsetof(CERT_NAME_CONSTRAINTS_INFO, cExcludedSubtree))),
};
constexpr Field kNameConstraints = Sequence(kNameConstraintsMembers);

// ExtKeyUsageSyntax, 4.2.1.12.
constexpr Field kPurpose = Identifier(0);
constexpr Field kEnhancedKeyUsage = SequenceOf<LPSTR>(0, kPurpose);

// CRLDistributionPoints, 4.2.1.13, and IssuingDistributionPoint, 5.2.5.
constexpr Field kPointNames[] = {
    Alternative(CRL_DIST_POINT_FULL_NAME,
                Tagged(Constructed(0), GeneralNames(offsetof(CRL_DIST_POINT_NAME, FullName)))),
    Alternative(CRL_DIST_POINT_ISSUER_RDN_NAME, Tagged(Constructed(1), Value(kUnnamedKind, 0))),
};
constexpr Field kPointName = Choice(kPointNames);
constexpr Field kPointMembers[] = {
    Optional(Wrapped(Constructed(0), offsetof(CRL_DIST_POINT, DistPointName), kPointName)),
    Optional(Tagged(Implicit(1), Bits(offsetof(CRL_DIST_POINT, ReasonFlags)))),
    Optional(Tagged(Constructed(2), Marked(31, GeneralNames(offsetof(CRL_DIST_POINT, CRLIssuer))))),
};
constexpr Field kPoint = Sequence(kPointMembers);
constexpr Field kPoints = Indexed(24, SequenceOf<CRL_DIST_POINT>(0, kPoint));
constexpr Field kIssuingPointMembers[] = {
    Optional(Wrapped(Constructed(0), offsetof(CRL_ISSUING_DIST_POINT, DistPointName), kPointName)),
    Optional(Tagged(Implicit(1), Flag(offsetof(CRL_ISSUING_DIST_POINT, fOnlyContainsUserCerts)))),
    Optional(Tagged(Implicit(2), Flag(offsetof(CRL_ISSUING_DIST_POINT, fOnlyContainsCACerts)))),
    Optional(Tagged(Implicit(3), Bits(offsetof(CRL_ISSUING_DIST_POINT, OnlySomeReasonFlags)))),
    Optional(Tagged(Implicit(4), Flag(offsetof(CRL_ISSUING_DIST_POINT, fIndirectCRL)))),
};
constexpr Field kIssuingPoint = Sequence(kIssuingPointMembers);
constexpr Field kCrossPointsMembers[] = {
    Optional(Unsigned(offsetof(CROSS_CERT_DIST_POINTS_INFO, dwSyncDeltaTime))),
    Indexed(24, SequenceOf<CERT_ALT_NAME_INFO>(offsetof(CROSS_CERT_DIST_POINTS_INFO, cDistPoint),
                                               kGeneralNames)),
};
constexpr Field kCrossPoints = Sequence(kCrossPointsMembers);

// AuthorityInfoAccessSyntax, 4.2.2.1.
constexpr Field kAccessMembers[] = {
    Identifier(offsetof(CERT_ACCESS_DESCRIPTION, pszAccessMethod)),
    Choice(kNames, offsetof(CERT_ACCESS_DESCRIPTION, AccessLocation)),
};
constexpr Field kAccess = Sequence(kAccessMembers);
constexpr Field kInfoAccess = Indexed(16, SequenceOf<CERT_ACCESS_DESCRIPTION>(0, kAccess));

// SubjectDirectoryAttributes, 4.2.1.8.
constexpr Field kDirectoryAttributeMembers[] = {
    Identifier(offsetof(CRYPT_ATTRIBUTE, pszObjId)),
    SetOf<CRYPT_ATTR_BLOB>(offsetof(CRYPT_ATTRIBUTE, cValue), kAnyElement),
};
constexpr Field kDirectoryAttribute = Sequence(kDirectoryAttributeMembers);
constexpr Field kDirectoryAttributes = SequenceOf<CRYPT_ATTRIBUTE>(0, kDirectoryAttribute);

// QCStatements and BiometricSyntax, RFC 3739 3.2.5 and 3.2.6.
constexpr Field kStatementMembers[] = {
    Identifier(offsetof(CERT_QC_STATEMENT, pszStatementId)),
    Optional(Any(offsetof(CERT_QC_STATEMENT, StatementInfo))),
};
constexpr Field kStatement = Sequence(kStatementMembers);
constexpr Field kStatements = SequenceOf<CERT_QC_STATEMENT>(0, kStatement);
constexpr Field kAlgorithmMembers[] = {
    Identifier(offsetof(CRYPT_ALGORITHM_IDENTIFIER, pszObjId)),
    Optional(Any(offsetof(CRYPT_ALGORITHM_IDENTIFIER, Parameters))),
};
constexpr Field kAlgorithm = Sequence(kAlgorithmMembers);
constexpr Field kBiometricTypes[] = {
    Alternative(CERT_BIOMETRIC_PREDEFINED_DATA_CHOICE,
                Unsigned(offsetof(CERT_BIOMETRIC_DATA, dwPredefined))),
    Alternative(CERT_BIOMETRIC_OID_DATA_CHOICE,
                Identifier(offsetof(CERT_BIOMETRIC_DATA, pszObjId))),
};
constexpr WORD kHashedUrl = offsetof(CERT_BIOMETRIC_DATA, HashedUrl);
constexpr Field kBiometricMembers[] = {
    Choice(kBiometricTypes),
    Sequence(kAlgorithmMembers, kHashedUrl + offsetof(CERT_HASHED_URL, HashAlgorithm)),
    Octets(kHashedUrl + offsetof(CERT_HASHED_URL, Hash)),
    Optional(Ia5Text(kHashedUrl + offsetof(CERT_HASHED_URL, pwszUrl))),
};
constexpr Field kBiometric = Sequence(kBiometricMembers);
constexpr Field kBiometrics = SequenceOf<CERT_BIOMETRIC_DATA>(0, kBiometric);

// The template of a certificate, 1.3.6.1.4.1.311.21.7.
constexpr Field kTemplateMembers[] = {
    Identifier(offsetof(CERT_TEMPLATE_EXT, pszObjId)),
    Unsigned(offsetof(CERT_TEMPLATE_EXT, dwMajorVersion)),
    Flagged(Unsigned(offsetof(CERT_TEMPLATE_EXT, dwMinorVersion))),
};
constexpr Field kTemplate = Sequence(kTemplateMembers);

// Single values.
constexpr Field kBits = Bits(0);
constexpr Field kOctets = Octets(0);
constexpr Field kInteger = Signed(0);
constexpr Field kEnumerated = Tagged(kTagEnumerated, Unsigned(0));
constexpr Field kNumber = Number(0);
constexpr Field kNatural = Natural(0);
constexpr Field kUtcTime = Value(kUtcTimeKind, 0);
constexpr Field kTime = Value(kTimeKind, 0);
constexpr Field kSequenceOfAny = SequenceOf<CRYPT_DER_BLOB>(0, kAnyElement);

// By the values of the constants, which are no constant expressions; the most wanted first.
constexpr Structure kStructures[] = {
    {6, &kStringValue, sizeof(CERT_NAME_VALUE)},
    {24, &kUnicodeStringValue, sizeof(CERT_NAME_VALUE)},
    {5, &kExtensions, sizeof(CERT_EXTENSIONS)},
    {7, &kName, sizeof(CERT_NAME_INFO)},
    {9, &kOldAuthorityKeyId, sizeof(CERT_AUTHORITY_KEY_ID_INFO)},
    {12, &kGeneralNames, sizeof(CERT_ALT_NAME_INFO)},
    {13, &kOldBasicConstraints, sizeof(CERT_BASIC_CONSTRAINTS_INFO)},
    {14, &kBits, sizeof(CRYPT_BIT_BLOB)},
    {15, &kBasicConstraints, sizeof(CERT_BASIC_CONSTRAINTS2_INFO)},
    {16, &kPolicies, sizeof(CERT_POLICIES_INFO)},
    {17, &kUtcTime, sizeof(FILETIME)},
    {20, &kUnicodeName, sizeof(CERT_NAME_INFO)},
    {22, &kDirectoryAttribute, sizeof(CRYPT_ATTRIBUTE)},
    {25, &kOctets, sizeof(CRYPT_DATA_BLOB)},
    {26, &kBits, sizeof(CRYPT_BIT_BLOB)},
    {27, &kInteger, sizeof(int)},
    {28, &kNumber, sizeof(CRYPT_INTEGER_BLOB)},
    {29, &kEnumerated, sizeof(int)},
    {30, &kTime, sizeof(FILETIME)},
    {31, &kAuthorityKeyId, sizeof(CERT_AUTHORITY_KEY_ID2_INFO)},
    {32, &kInfoAccess, sizeof(CERT_AUTHORITY_INFO_ACCESS)},
    {34, &kSequenceOfAny, sizeof(CRYPT_SEQUENCE_OF_ANY)},
    {35, &kPoints, sizeof(CRL_DIST_POINTS_INFO)},
    {36, &kEnhancedKeyUsage, sizeof(CERT_ENHKEY_USAGE)},
    {38, &kNatural, sizeof(CRYPT_UINT_BLOB)},
    {42, &kStatements, sizeof(CERT_QC_STATEMENTS_EXT_INFO)},
    {46, &kUserNotice, sizeof(CERT_POLICY_QUALIFIER_USER_NOTICE)},
    {54, &kIssuingPoint, sizeof(CRL_ISSUING_DIST_POINT)},
    {55, &kNameConstraints, sizeof(CERT_NAME_CONSTRAINTS_INFO)},
    {56, &kMappings, sizeof(CERT_POLICY_MAPPINGS_INFO)},
    {57, &kPolicyConstraints, sizeof(CERT_POLICY_CONSTRAINTS_INFO)},
    {58, &kCrossPoints, sizeof(CROSS_CERT_DIST_POINTS_INFO)},
    {64, &kTemplate, sizeof(CERT_TEMPLATE_EXT)},
    {71, &kBiometrics, sizeof(CERT_BIOMETRIC_EXT_INFO)},
    {73, &kPurpose, sizeof(LPSTR)},
    {74, &kAlgorithm, sizeof(CRYPT_ALGORITHM_IDENTIFIER)},
    {84, &kDirectoryAttributes, sizeof(CRYPT_ATTRIBUTES)},
};

// Extensions and the constants of their structures.
struct ExtensionRow {
  LPCSTR oid;
  std::uintptr_t constant;
};
constexpr ExtensionRow kExtensionRows[] = {
    {szOID_AUTHORITY_KEY_IDENTIFIER, 9},
    {szOID_LEGACY_POLICY_MAPPINGS, 56},
    {szOID_SUBJECT_ALT_NAME, 12},
    {szOID_ISSUER_ALT_NAME, 12},
    {szOID_SUBJECT_DIR_ATTRS, 84},
    {szOID_BASIC_CONSTRAINTS, 13},
    {szOID_SUBJECT_KEY_IDENTIFIER, 25},
    {szOID_KEY_USAGE, 14},
    {szOID_SUBJECT_ALT_NAME2, 12},
    {szOID_ISSUER_ALT_NAME2, 12},
    {szOID_BASIC_CONSTRAINTS2, 15},
    {szOID_CRL_NUMBER, 27},
    {szOID_CRL_REASON_CODE, 29},
    {szOID_DELTA_CRL_INDICATOR, 27},
    {szOID_ISSUING_DIST_POINT, 54},
    {szOID_NAME_CONSTRAINTS, 55},
    {szOID_CRL_DIST_POINTS, 35},
    {szOID_CERT_POLICIES, 16},
    {szOID_POLICY_MAPPINGS, 56},
    {szOID_AUTHORITY_KEY_IDENTIFIER2, 31},
    {szOID_POLICY_CONSTRAINTS, 57},
    {szOID_ENHANCED_KEY_USAGE, 36},
    {szOID_FRESHEST_CRL, 35},
    {szOID_INHIBIT_ANY_POLICY, 27},
    {szOID_AUTHORITY_INFO_ACCESS, 32},
    {szOID_BIOMETRIC_EXT, 71},
    {szOID_QC_STATEMENTS_EXT, 42},
    {szOID_SUBJECT_INFO_ACCESS, 32},
    {szOID_TLS_FEATURES_EXT, 34},
    {szOID_PKIX_POLICY_QUALIFIER_USERNOTICE, 46},
    {szOID_CERT_EXTENSIONS, 5},
    {szOID_RSA_certExtensions, 5},
    {szOID_RSA_SMIMECapabilities, 42},
    {szOID_NEXT_UPDATE_LOCATION, 12},
    {szOID_CROSS_CERT_DIST_POINTS, 58},
    {szOID_ENROLL_CERTTYPE_EXTENSION, 24},
    {szOID_CERTSRV_CA_VERSION, 27},
    {szOID_CERTSRV_PREVIOUS_CERT_HASH, 25},
    {szOID_CRL_VIRTUAL_BASE, 27},
    {szOID_CRL_NEXT_PUBLISH, 30},
    {szOID_CERTIFICATE_TEMPLATE, 64},
    {szOID_APPLICATION_CERT_POLICIES, 16},
    {szOID_APPLICATION_POLICY_MAPPINGS, 56},
    {szOID_APPLICATION_POLICY_CONSTRAINTS, 57},
    {szOID_CRL_SELF_CDP, 35},
    {szOID_CERTSRV_CROSSCA_VERSION, 27},
};

// Values up to this one are constants, all others point at the text of an identifier.
constexpr std::uintptr_t kLastConstant = 0xFFFF;

std::uintptr_t ConstantOf(LPCSTR structType) {
  const auto constant = reinterpret_cast<std::uintptr_t>(structType);
  if (constant <= kLastConstant) return constant;
  for (const ExtensionRow& row : kExtensionRows) {
    if (std::strcmp(row.oid, structType) == 0) return row.constant;
  }
  return 0;
}

}  // namespace

const Structure* FindStructure(LPCSTR structType) {
  const std::uintptr_t constant = ConstantOf(structType);
  for (const Structure& structure : kStructures) {
    if (structure.constant == constant) return &structure;
  }
  return nullptr;
}

}  // namespace Ortholan::posix
