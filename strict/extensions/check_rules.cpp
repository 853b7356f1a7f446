#include "strict/extensions/check_rules.h"

#include <iterator>

#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict {
namespace {

constexpr const char* kAlternativeNames = "2.5.29.17";
constexpr const char* kIssuerNames = "2.5.29.18";
constexpr const char* kSubjectKeyId = "2.5.29.14";
constexpr const char* kKeyUsage = "2.5.29.15";
constexpr const char* kBasicConstraints = "2.5.29.19";
constexpr const char* kCrlNumber = "2.5.29.20";
constexpr const char* kDeltaIndicator = "2.5.29.27";
constexpr const char* kIssuingPoint = "2.5.29.28";
constexpr const char* kNameConstraints = "2.5.29.30";
constexpr const char* kDistributionPoints = "2.5.29.31";
constexpr const char* kPolicies = "2.5.29.32";
constexpr const char* kPolicyMappings = "2.5.29.33";
constexpr const char* kAuthorityKeyId = "2.5.29.35";
constexpr const char* kPolicyConstraints = "2.5.29.36";
constexpr const char* kFreshest = "2.5.29.46";
constexpr const char* kInhibitAnyPolicy = "2.5.29.54";
constexpr const char* kAuthorityAccess = "1.3.6.1.5.5.7.1.1";
constexpr const char* kNone = "";

// In the order in which faults are told. Sections are those of RFC 5280.
constexpr CheckRule kRules[] = {
    {"encoding", "4.1", "the encoding is no DER", kAll, Scope::kEncoding, kNone, looks::Encoding},
    {"no-extensions", "4.1.2.9", "the list of extensions has none", kAll, Scope::kEncoding, kNone,
     looks::EmptyExtensions},
    {"version", "4.1.2.1", "there are extensions, and the version is not 3", kCertificates,
     Scope::kDocument, kNone, looks::Version},
    {"list-version", "5.1.2.1", "there are extensions, and the version is not 2", kLists,
     Scope::kDocument, kNone, looks::ListVersion},
    {"serial-number-sign", "4.1.2.2", "the serial number is not positive", kCertificates,
     Scope::kDocument, kNone, looks::SerialSign},
    {"serial-number-size", "4.1.2.2", "the serial number has more than 20 octets", kCertificates,
     Scope::kDocument, kNone, looks::SerialSize},
    {"issuer-empty", "4.1.2.4", "the issuer has no name", kCertificates, Scope::kDocument, kNone,
     looks::EmptyIssuer},
    {"list-issuer-empty", "5.1.2.3", "the issuer has no name", kLists, Scope::kDocument, kNone,
     looks::EmptyIssuer},
    {"authority-subject-empty", "4.1.2.6", "the subject is an authority and has no name",
     kCertificates, Scope::kDocument, kNone, looks::EmptySubjectOfAuthority},
    {"list-issuer-subject-empty", "4.1.2.6", "the subject issues CRLs and has no name",
     kCertificates, Scope::kDocument, kNone, looks::EmptySubjectOfListIssuer},
    {"email-outside-names", "4.1.2.6",
     "an e-mail address stands in the subject and none among the alternative names", kForSubjects,
     Scope::kDocument, kAlternativeNames, looks::EmailOutsideNames},
    {"subject-empty-without-names", "4.2.1.6",
     "the subject has no name, and there are no alternative names", kCertificates, Scope::kDocument,
     kAlternativeNames, looks::EmptySubjectWithoutNames},
    {"authority-key-id-missing", "4.2.1.1",
     "the extension is missing, and the certificate is not self-issued", kCertificates,
     Scope::kDocument, kAuthorityKeyId, looks::MissingAuthorityKeyId},
    {"list-authority-key-id-missing", "5.2.1", "the extension is missing", kLists, Scope::kDocument,
     kAuthorityKeyId, looks::Missing},
    {"subject-key-id-missing", "4.2.1.2",
     "the extension is missing, and the subject is an authority", kCertificates, Scope::kDocument,
     kSubjectKeyId, looks::MissingInAuthority},
    {"key-usage-missing", "4.2.1.3", "the extension is missing, and the subject is an authority",
     kCertificates, Scope::kDocument, kKeyUsage, looks::MissingInAuthority},
    {"crl-number-missing", "5.2.3", "the extension is missing", kLists, Scope::kDocument,
     kCrlNumber, looks::Missing},

    {"name-encoding", "4.1.2.4", "the name is no DER, or characters are outside their string type",
     kAll, Scope::kName, kNone, looks::NameEncoding},
    {"value-type", "A.1", "an attribute is not of its string type", kAll, Scope::kName, kNone,
     looks::ValueTypes},
    {"value-size", "A.1", "an attribute has fewer or more characters than it may have", kAll,
     Scope::kName, kNone, looks::ValueSizes},
    {"value-empty", "A.1", "an attribute has no characters", kAll, Scope::kName, kNone,
     looks::EmptyValues},

    {"extension-twice", "4.2", "the extension stands there twice", kAll, Scope::kEachExtension,
     kNone, looks::Twice},
    {"extension-encoding", "", "the value is not what the extension prescribes", kAll,
     Scope::kEachExtension, kNone, looks::ValueEncoding},
    {"list-empty", "", "a list that has to hold something is empty", kAll, Scope::kEachExtension,
     kNone, looks::EmptyLists},
    {"critical", "", "the extension must not be critical", kAll, Scope::kEachExtension, kNone,
     looks::IsCritical},
    {"not-critical", "", "the extension has to be critical", kAll, Scope::kEachExtension, kNone,
     looks::IsNotCritical},

    {"authority-key-id-without-key", "4.2.1.1", "the key identifier is missing", kCertificates,
     Scope::kExtension, kAuthorityKeyId, looks::NoKeyId},
    {"list-authority-key-id-without-key", "5.2.1", "the key identifier is missing", kLists,
     Scope::kExtension, kAuthorityKeyId, looks::NoKeyId},
    {"authority-key-id-half", "A.2", "issuer and serial number stand together or not at all", kAll,
     Scope::kExtension, kAuthorityKeyId, looks::KeyIdHalves},
    {"key-usage-empty", "4.2.1.3", "no bit is set", kForSubjects, Scope::kExtension, kKeyUsage,
     looks::NoUsage},
    {"cert-sign-without-authority", "4.2.1.3",
     "keyCertSign is set, and basic constraints do not say cA", kForSubjects, Scope::kExtension,
     kKeyUsage, looks::CertSignWithoutAuthority},
    {"policy-twice", "4.2.1.4", "a policy stands there twice", kForSubjects, Scope::kExtension,
     kPolicies, looks::PolicyTwice},
    {"any-policy-qualifier", "4.2.1.4", "anyPolicy has a qualifier other than cps and userNotice",
     kForSubjects, Scope::kExtension, kPolicies, looks::AnyPolicyQualifiers},
    {"notice-size", "4.2.1.4", "the text of a notice has no characters, or more than 200",
     kForSubjects, Scope::kExtension, kPolicies, looks::NoticeSize},
    {"any-policy-mapped", "4.2.1.5", "anyPolicy is mapped", kForSubjects, Scope::kExtension,
     kPolicyMappings, looks::AnyPolicyMapped},
    {"subject-empty-not-critical", "4.2.1.6",
     "the subject has no name, and the alternative names are not critical", kForSubjects,
     Scope::kExtension, kAlternativeNames, looks::EmptySubjectNotCritical},
    {"name-empty", "4.2.1.6", "a name is empty", kForSubjects, Scope::kExtension, kAlternativeNames,
     looks::EmptyNames},
    {"dns-name", "4.2.1.6", "a DNS name is no host name", kForSubjects, Scope::kExtension,
     kAlternativeNames, looks::Hosts},
    {"mailbox", "4.2.1.6", "an e-mail address is no mailbox", kForSubjects, Scope::kExtension,
     kAlternativeNames, looks::Mailboxes},
    {"uri", "4.2.1.6", "a URI is malformed, or relative", kForSubjects, Scope::kExtension,
     kAlternativeNames, looks::Uris},
    {"uri-host", "4.2.1.6", "the host of a URI is neither a host name nor an address", kForSubjects,
     Scope::kExtension, kAlternativeNames, looks::UriHosts},
    {"address-size", "4.2.1.6", "an address has neither 4 nor 16 octets", kForSubjects,
     Scope::kExtension, kAlternativeNames, looks::Addresses},
    {"issuer-name-empty", "4.2.1.7", "a name is empty", kAll, Scope::kExtension, kIssuerNames,
     looks::EmptyNames},
    {"issuer-dns-name", "4.2.1.7", "a DNS name is no host name", kAll, Scope::kExtension,
     kIssuerNames, looks::Hosts},
    {"issuer-mailbox", "4.2.1.7", "an e-mail address is no mailbox", kAll, Scope::kExtension,
     kIssuerNames, looks::Mailboxes},
    {"issuer-uri", "4.2.1.7", "a URI is malformed, or relative", kAll, Scope::kExtension,
     kIssuerNames, looks::Uris},
    {"issuer-uri-host", "4.2.1.7", "the host of a URI is neither a host name nor an address", kAll,
     Scope::kExtension, kIssuerNames, looks::UriHosts},
    {"issuer-address-size", "4.2.1.7", "an address has neither 4 nor 16 octets", kAll,
     Scope::kExtension, kIssuerNames, looks::Addresses},
    {"authority-not-critical", "4.2.1.9",
     "the subject is an authority for certificates, and the extension is not critical",
     kForSubjects, Scope::kExtension, kBasicConstraints, looks::AuthorityNotCritical},
    {"path-length-without-authority", "4.2.1.9", "there is a path length, and cA is not set",
     kForSubjects, Scope::kExtension, kBasicConstraints, looks::PathLengthWithoutAuthority},
    {"path-length-without-cert-sign", "4.2.1.9",
     "there is a path length, and the key usage does not say keyCertSign", kForSubjects,
     Scope::kExtension, kBasicConstraints, looks::PathLengthWithoutCertSign},
    {"path-length-negative", "4.2.1.9", "the path length is negative", kForSubjects,
     Scope::kExtension, kBasicConstraints, looks::NegativeNumbers},
    {"constraints-outside-authority", "4.2.1.10", "the subject is no authority", kForSubjects,
     Scope::kExtension, kNameConstraints, looks::OutsideAuthority},
    {"constraints-empty", "4.2.1.10", "there are neither permitted nor excluded subtrees",
     kForSubjects, Scope::kExtension, kNameConstraints, looks::EmptyStructure},
    {"subtree-distance", "4.2.1.10", "a subtree has a minimum other than 0, or a maximum",
     kForSubjects, Scope::kExtension, kNameConstraints, looks::SubtreeDistances},
    {"subtree-form", "4.2.1.10", "the base of a subtree is not of the form of its kind",
     kForSubjects, Scope::kExtension, kNameConstraints, looks::SubtreeForms},
    {"policy-constraints-empty", "4.2.1.11", "the extension says nothing", kForSubjects,
     Scope::kExtension, kPolicyConstraints, looks::EmptyStructure},
    {"skip-certificates-negative", "4.2.1.11", "a number of certificates is negative", kForSubjects,
     Scope::kExtension, kPolicyConstraints, looks::NegativeNumbers},
    {"inhibit-negative", "4.2.1.14", "the number of certificates is negative", kForSubjects,
     Scope::kExtension, kInhibitAnyPolicy, looks::NegativeNumbers},
    {"point-of-reasons-alone", "4.2.1.13", "a distribution point has neither a name nor an issuer",
     kForSubjects, Scope::kExtension, kDistributionPoints, looks::ReasonsAlone},
    {"points-of-some-reasons", "4.2.1.13", "no distribution point is for all reasons",
     kCertificates, Scope::kExtension, kDistributionPoints, looks::SomeReasonsOnly},
    {"point-relative-to-several", "4.2.1.13",
     "a distribution point is relative to an issuer with several names", kForSubjects,
     Scope::kExtension, kDistributionPoints, looks::RelativeToSeveral},
    {"point-issuer-form", "4.2.1.13", "the issuer of a CRL is no directory name", kForSubjects,
     Scope::kExtension, kDistributionPoints, looks::ListIssuerForms},
    {"freshest-of-reasons-alone", "4.2.1.15",
     "a distribution point has neither a name nor an issuer", kForSubjects, Scope::kExtension,
     kFreshest, looks::ReasonsAlone},
    {"list-freshest-parts", "5.2.6", "a distribution point has reasons or an issuer", kLists,
     Scope::kExtension, kFreshest, looks::PointsOfFreshest},
    {"list-freshest-in-delta", "5.2.6", "the extension stands in a delta CRL", kLists,
     Scope::kExtension, kFreshest, looks::FreshestInDelta},
    {"crl-number-negative", "5.2.3", "the number is negative", kLists, Scope::kExtension,
     kCrlNumber, looks::NegativeNumbers},
    {"crl-number-size", "5.2.3", "the number has more than 20 octets", kLists, Scope::kExtension,
     kCrlNumber, looks::NumberSize},
    {"base-number-negative", "5.2.4", "the number is negative", kLists, Scope::kExtension,
     kDeltaIndicator, looks::NegativeNumbers},
    {"base-number-size", "5.2.4", "the number has more than 20 octets", kLists, Scope::kExtension,
     kDeltaIndicator, looks::NumberSize},
    {"issuing-point-empty", "5.2.5", "the extension says nothing", kLists, Scope::kExtension,
     kIssuingPoint, looks::EmptyStructure},
    {"issuing-point-scopes", "5.2.5",
     "the list is said to have several kinds of certificates alone", kLists, Scope::kExtension,
     kIssuingPoint, looks::ScopesOfList},
    {"issuing-point-attributes", "5.2.5", "the list is said to have attribute certificates", kLists,
     Scope::kExtension, kIssuingPoint, looks::AttributeCertificates},
    {"list-access-method", "5.2.7", "a method of access is not caIssuers", kLists,
     Scope::kExtension, kAuthorityAccess, looks::AccessMethodsOfList},
};

}  // namespace

CheckRules AllRules() { return {kRules, std::size(kRules)}; }

}  // namespace Ortholan::strict
