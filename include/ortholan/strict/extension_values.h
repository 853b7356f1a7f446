// Values of extensions taken apart: a plain structure of views and numbers for each. Nothing is
// copied or allocated.
//
//   ortholan_basic_constraints constraints;
//   if (ortholan_basic_constraints_read(extension.value, ORTHOLAN_READ_DER, &constraints,
//                                       &refusal) == 0 && constraints.is_authority) ...
//
// What is optional and not there has no octets (`data` is NULL), or `is_there` 0; what has a
// default has its value. Alternative names are read by ortholan_general_names_view_read.
//
// Each ..._read takes the value of an extension, which it is the whole of, and an ORTHOLAN_READ_
// word. Each ..._next takes the element of a list at `*offset`, which begins as 0 and moves behind
// it, and refuses NOT_FOUND at the end.
#ifndef ORTHOLAN_STRICT_EXTENSION_VALUES_H_
#define ORTHOLAN_STRICT_EXTENSION_VALUES_H_

#include <ortholan/strict/general_names.h>

#ifdef __cplusplus
extern "C" {
#endif

// An INTEGER or ENUMERATED.
typedef struct ortholan_integer {
  ortholan_octets content;  // two's complement, most significant octet first
  int64_t value;            // INT64_MAX or INT64_MIN for what is beyond
} ortholan_integer;

// A BIT STRING whose bits have names.
typedef struct ortholan_bits {
  ortholan_octets content;  // the number of unused bits, and the bits
  uint32_t flags;           // bit n of the list as 1 << n, for n below 32
} ortholan_bits;

// A character string; ortholan_extension_string_text gives its UTF-8.
typedef struct ortholan_string {
  ortholan_octets content;
  uint32_t identifier;  // of its type: 0x0C is UTF8String
} ortholan_string;

// A time.
typedef struct ortholan_moment {
  int64_t seconds;  // since 1970-01-01T00:00:00Z, without leap seconds
  int32_t is_there;
} ortholan_moment;

// A list whose elements were checked.
typedef struct ortholan_list {
  ortholan_octets elements;  // one behind the other
  size_t count;
} ortholan_list;

// The text of a string in UTF-8. Refuses ENCODING for octets that are no text, NO_STRING for
// another identifier.
ORTHOLAN_EXPORT ortholan_reason ortholan_extension_string_text(const ortholan_string* string,
                                                               char* out, size_t room,
                                                               size_t* size);

// Lists of plain elements: content octets of identifiers; numbers; strings.
ORTHOLAN_EXPORT ortholan_reason ortholan_oid_next(const ortholan_list* list, size_t* offset,
                                                  ortholan_octets* oid);
// The next number of a list.
ORTHOLAN_EXPORT ortholan_reason ortholan_integer_next(const ortholan_list* list, size_t* offset,
                                                      ortholan_integer* number);
// The next string of a list.
ORTHOLAN_EXPORT ortholan_reason ortholan_string_next(const ortholan_list* list, size_t* offset,
                                                     ortholan_string* string);

// The next element of a list, whatever it is, whole.
ORTHOLAN_EXPORT ortholan_reason ortholan_element_next(const ortholan_list* list, size_t* offset,
                                                      ortholan_octets* element);

// Values of one part: a number (cRLNumber, deltaCRLIndicator, inhibitAnyPolicy, cAVersion,
// reasonCode), octets (subjectKeyIdentifier, previousCACertHash), a string (netscapeComment,
// certificateTemplateName), a time (invalidityDate, archiveCutoff), nothing (precertificatePoison,
// ocspNoCheck), identifiers (extKeyUsage), numbers (tlsFeature).
ORTHOLAN_EXPORT ortholan_reason ortholan_integer_read(ortholan_octets value, int32_t mode,
                                                      ortholan_integer* number,
                                                      ortholan_refusal* refusal);
// Reads octets.
ORTHOLAN_EXPORT ortholan_reason ortholan_octet_string_read(ortholan_octets value, int32_t mode,
                                                           ortholan_octets* octets,
                                                           ortholan_refusal* refusal);
// Reads a string.
ORTHOLAN_EXPORT ortholan_reason ortholan_string_read(ortholan_octets value, int32_t mode,
                                                     ortholan_string* string,
                                                     ortholan_refusal* refusal);
// Reads a time.
ORTHOLAN_EXPORT ortholan_reason ortholan_moment_read(ortholan_octets value, int32_t mode,
                                                     ortholan_moment* moment,
                                                     ortholan_refusal* refusal);
// Reads what says all by being there.
ORTHOLAN_EXPORT ortholan_reason ortholan_null_read(ortholan_octets value, int32_t mode,
                                                   ortholan_refusal* refusal);
// Reads a list of identifiers.
ORTHOLAN_EXPORT ortholan_reason ortholan_oids_read(ortholan_octets value, int32_t mode,
                                                   ortholan_list* oids, ortholan_refusal* refusal);
// Reads a list of numbers, as tlsFeature is one.
ORTHOLAN_EXPORT ortholan_reason ortholan_integers_read(ortholan_octets value, int32_t mode,
                                                       ortholan_list* numbers,
                                                       ortholan_refusal* refusal);

// keyUsage (RFC 5280 4.2.1.3): the flags.
enum {
  ORTHOLAN_KEY_USAGE_DIGITAL_SIGNATURE = 1,
  ORTHOLAN_KEY_USAGE_NON_REPUDIATION = 2,
  ORTHOLAN_KEY_USAGE_KEY_ENCIPHERMENT = 4,
  ORTHOLAN_KEY_USAGE_DATA_ENCIPHERMENT = 8,
  ORTHOLAN_KEY_USAGE_KEY_AGREEMENT = 16,
  ORTHOLAN_KEY_USAGE_KEY_CERT_SIGN = 32,
  ORTHOLAN_KEY_USAGE_CRL_SIGN = 64,
  ORTHOLAN_KEY_USAGE_ENCIPHER_ONLY = 128,
  ORTHOLAN_KEY_USAGE_DECIPHER_ONLY = 256
};
// keyUsage and netscapeCertType.
ORTHOLAN_EXPORT ortholan_reason ortholan_bits_read(ortholan_octets value, int32_t mode,
                                                   ortholan_bits* bits, ortholan_refusal* refusal);

// basicConstraints (RFC 5280 4.2.1.9)
typedef struct ortholan_basic_constraints {
  int32_t is_authority;          // 1 or 0
  ortholan_integer path_length;  // optional
} ortholan_basic_constraints;
// Reads basicConstraints.
ORTHOLAN_EXPORT ortholan_reason
ortholan_basic_constraints_read(ortholan_octets value, int32_t mode,
                                ortholan_basic_constraints* constraints, ortholan_refusal* refusal);

// authorityKeyIdentifier (RFC 5280 4.2.1.1); every part is optional.
typedef struct ortholan_authority_key_identifier {
  ortholan_octets key_identifier;
  ortholan_general_names_view issuer;
  ortholan_integer serial_number;
} ortholan_authority_key_identifier;
// Reads authorityKeyIdentifier.
ORTHOLAN_EXPORT ortholan_reason ortholan_authority_key_identifier_read(
    ortholan_octets value, int32_t mode, ortholan_authority_key_identifier* identifier,
    ortholan_refusal* refusal);

// privateKeyUsagePeriod (RFC 3280 4.2.1.4)
typedef struct ortholan_key_usage_period {
  ortholan_moment not_before;
  ortholan_moment not_after;
} ortholan_key_usage_period;
// Reads privateKeyUsagePeriod.
ORTHOLAN_EXPORT ortholan_reason ortholan_key_usage_period_read(ortholan_octets value, int32_t mode,
                                                               ortholan_key_usage_period* period,
                                                               ortholan_refusal* refusal);

// certificatePolicies and applicationPolicies (RFC 5280 4.2.1.4): policies, and their qualifiers.
typedef struct ortholan_policy {
  ortholan_octets oid;       // content octets
  ortholan_list qualifiers;  // optional
} ortholan_policy;
// A qualifier of a policy.
typedef struct ortholan_policy_qualifier {
  ortholan_octets oid;    // content octets
  ortholan_octets value;  // a whole element
} ortholan_policy_qualifier;
// A user notice; every part is optional.
typedef struct ortholan_notice_reference {
  ortholan_string organization;
  ortholan_list numbers;
} ortholan_notice_reference;
// A user notice; every part is optional.
typedef struct ortholan_user_notice {
  ortholan_notice_reference reference;
  ortholan_string text;
} ortholan_user_notice;
// Reads certificatePolicies or applicationPolicies.
ORTHOLAN_EXPORT ortholan_reason ortholan_policies_read(ortholan_octets value, int32_t mode,
                                                       ortholan_list* policies,
                                                       ortholan_refusal* refusal);
// The next policy.
ORTHOLAN_EXPORT ortholan_reason ortholan_policy_next(const ortholan_list* policies, size_t* offset,
                                                     ortholan_policy* policy);
// The next qualifier of a policy.
ORTHOLAN_EXPORT ortholan_reason ortholan_policy_qualifier_next(
    const ortholan_list* qualifiers, size_t* offset, ortholan_policy_qualifier* qualifier);
// Of a qualifier's value; that of cPSuri is a string for ortholan_string_read.
ORTHOLAN_EXPORT ortholan_reason ortholan_user_notice_read(ortholan_octets value, int32_t mode,
                                                          ortholan_user_notice* notice,
                                                          ortholan_refusal* refusal);

// policyMappings (RFC 5280 4.2.1.5) and applicationPolicyMappings
typedef struct ortholan_policy_mapping {
  ortholan_octets issuer_policy;   // content octets
  ortholan_octets subject_policy;  // content octets
} ortholan_policy_mapping;
// Reads policyMappings or applicationPolicyMappings.
ORTHOLAN_EXPORT ortholan_reason ortholan_policy_mappings_read(ortholan_octets value, int32_t mode,
                                                              ortholan_list* mappings,
                                                              ortholan_refusal* refusal);
// The next pair of policies.
ORTHOLAN_EXPORT ortholan_reason ortholan_policy_mapping_next(const ortholan_list* mappings,
                                                             size_t* offset,
                                                             ortholan_policy_mapping* mapping);

// policyConstraints (RFC 5280 4.2.1.11) and applicationPolicyConstraints; both parts are optional.
typedef struct ortholan_policy_constraints {
  ortholan_integer require_explicit_policy;
  ortholan_integer inhibit_policy_mapping;
} ortholan_policy_constraints;
// Reads policyConstraints or applicationPolicyConstraints.
ORTHOLAN_EXPORT ortholan_reason ortholan_policy_constraints_read(
    ortholan_octets value, int32_t mode, ortholan_policy_constraints* constraints,
    ortholan_refusal* refusal);

// nameConstraints (RFC 5280 4.2.1.10). Verdicts are those of <ortholan/strict/constraints.h>.
typedef struct ortholan_name_subtrees {
  ortholan_list permitted;  // optional
  ortholan_list excluded;   // optional
} ortholan_name_subtrees;
// One subtree of name constraints.
typedef struct ortholan_name_subtree {
  ortholan_octets base;      // a whole GeneralName
  ortholan_integer minimum;  // 0 where it is not there
  ortholan_integer maximum;  // optional
} ortholan_name_subtree;
// Reads nameConstraints.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_subtrees_read(ortholan_octets value, int32_t mode,
                                                            ortholan_name_subtrees* subtrees,
                                                            ortholan_refusal* refusal);
// The next subtree of either list.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_subtree_next(const ortholan_list* subtrees,
                                                           size_t* offset,
                                                           ortholan_name_subtree* subtree);

// cRLDistributionPoints, freshestCRL, cRLSelfCDP (RFC 5280 4.2.1.13). Reasons are flags; bit 0 is
// not used.
enum {
  ORTHOLAN_CRL_KEY_COMPROMISE = 2,
  ORTHOLAN_CRL_CA_COMPROMISE = 4,
  ORTHOLAN_CRL_AFFILIATION_CHANGED = 8,
  ORTHOLAN_CRL_SUPERSEDED = 16,
  ORTHOLAN_CRL_CESSATION_OF_OPERATION = 32,
  ORTHOLAN_CRL_CERTIFICATE_HOLD = 64,
  ORTHOLAN_CRL_PRIVILEGE_WITHDRAWN = 128,
  ORTHOLAN_CRL_AA_COMPROMISE = 256
};
// One of the two, or none.
typedef struct ortholan_distribution_point_name {
  ortholan_general_names_view full_name;
  ortholan_octets relative_name;  // content of an RDN, relative to the issuer of the CRL
} ortholan_distribution_point_name;
// One of cRLDistributionPoints or freshestCRL; every part is optional.
typedef struct ortholan_distribution_point {
  ortholan_distribution_point_name name;   // optional
  ortholan_bits reasons;                   // optional
  ortholan_general_names_view crl_issuer;  // optional
} ortholan_distribution_point;
// Reads cRLDistributionPoints or freshestCRL.
ORTHOLAN_EXPORT ortholan_reason ortholan_distribution_points_read(ortholan_octets value,
                                                                  int32_t mode,
                                                                  ortholan_list* points,
                                                                  ortholan_refusal* refusal);
// The next distribution point.
ORTHOLAN_EXPORT ortholan_reason ortholan_distribution_point_next(
    const ortholan_list* points, size_t* offset, ortholan_distribution_point* point);

// issuingDistributionPoint (RFC 5280 5.2.5)
typedef struct ortholan_issuing_distribution_point {
  ortholan_distribution_point_name name;  // optional
  int32_t only_user_certificates;         // these four are 1 or 0
  int32_t only_authority_certificates;
  int32_t is_indirect;
  int32_t only_attribute_certificates;
  ortholan_bits only_some_reasons;  // optional
} ortholan_issuing_distribution_point;
// Reads issuingDistributionPoint.
ORTHOLAN_EXPORT ortholan_reason ortholan_issuing_distribution_point_read(
    ortholan_octets value, int32_t mode, ortholan_issuing_distribution_point* point,
    ortholan_refusal* refusal);

// authorityInfoAccess and subjectInfoAccess (RFC 5280 4.2.2)
typedef struct ortholan_access_description {
  ortholan_octets method;    // content octets of an identifier
  ortholan_octets location;  // a whole GeneralName
} ortholan_access_description;
// Reads authorityInfoAccess or subjectInfoAccess.
ORTHOLAN_EXPORT ortholan_reason ortholan_information_access_read(ortholan_octets value,
                                                                 int32_t mode,
                                                                 ortholan_list* descriptions,
                                                                 ortholan_refusal* refusal);
// The next way to information.
ORTHOLAN_EXPORT ortholan_reason ortholan_access_description_next(
    const ortholan_list* descriptions, size_t* offset, ortholan_access_description* description);

// subjectDirectoryAttributes (RFC 5280 4.2.1.8)
typedef struct ortholan_directory_attribute {
  ortholan_octets type;  // content octets of an identifier
  ortholan_list values;  // of any type, for ortholan_element_next
} ortholan_directory_attribute;
// Reads subjectDirectoryAttributes.
ORTHOLAN_EXPORT ortholan_reason ortholan_directory_attributes_read(ortholan_octets value,
                                                                   int32_t mode,
                                                                   ortholan_list* attributes,
                                                                   ortholan_refusal* refusal);
// The next attribute.
ORTHOLAN_EXPORT ortholan_reason ortholan_directory_attribute_next(
    const ortholan_list* attributes, size_t* offset, ortholan_directory_attribute* attribute);

// signedCertificateTimestampList (RFC 6962 3.3)
typedef struct ortholan_signed_timestamp {
  ortholan_octets bytes;   // the whole structure
  uint64_t version;        // 0 is version 1; of others nothing but this and the octets is known
  ortholan_octets log_id;  // 32 octets
  uint64_t time;           // milliseconds since 1970-01-01T00:00:00Z, without leap seconds
  ortholan_octets extensions;
  uint64_t hash;                 // RFC 5246 7.4.1.4.1: 4 is SHA-256
  uint64_t signature_algorithm;  // 1 RSA, 3 ECDSA
  ortholan_octets signature;
} ortholan_signed_timestamp;
// Reads the list of signed certificate timestamps.
ORTHOLAN_EXPORT ortholan_reason ortholan_signed_timestamps_read(ortholan_octets value, int32_t mode,
                                                                ortholan_list* timestamps,
                                                                ortholan_refusal* refusal);
// The next timestamp.
ORTHOLAN_EXPORT ortholan_reason ortholan_signed_timestamp_next(
    const ortholan_list* timestamps, size_t* offset, ortholan_signed_timestamp* timestamp);

// qcStatements (RFC 3739 3.2.6)
typedef struct ortholan_qc_statement {
  ortholan_octets oid;   // content octets
  ortholan_octets info;  // a whole element; optional
} ortholan_qc_statement;
// Reads qcStatements.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_statements_read(ortholan_octets value, int32_t mode,
                                                            ortholan_list* statements,
                                                            ortholan_refusal* refusal);
// The next statement.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_statement_next(const ortholan_list* statements,
                                                           size_t* offset,
                                                           ortholan_qc_statement* statement);
// What statements hold: QcLimitValue, amount times 10 to the power of the exponent
// (ETSI EN 319 412-5 4.3.2); QcRetentionPeriod is an integer, QcType are identifiers.
typedef struct ortholan_qc_currency {
  ortholan_string alphabetic;  // ISO 4217; one of the two
  ortholan_integer numeric;
} ortholan_qc_currency;
// A limit of the value of transactions.
typedef struct ortholan_qc_limit {
  ortholan_qc_currency currency;
  ortholan_integer amount;
  ortholan_integer exponent;
} ortholan_qc_limit;
// Reads the information of a statement on a limit of value.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_limit_read(ortholan_octets info, int32_t mode,
                                                       ortholan_qc_limit* limit,
                                                       ortholan_refusal* refusal);
// QcEuPDS: places of disclosure statements (4.3.4).
typedef struct ortholan_qc_place {
  ortholan_string url;
  ortholan_string language;
} ortholan_qc_place;
// Reads the information of a statement on disclosure statements.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_places_read(ortholan_octets info, int32_t mode,
                                                        ortholan_list* places,
                                                        ortholan_refusal* refusal);
// The next place.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_place_next(const ortholan_list* places, size_t* offset,
                                                       ortholan_qc_place* place);
// QcCClegislation: country codes, strings (4.2.4).
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_countries_read(ortholan_octets info, int32_t mode,
                                                           ortholan_list* countries,
                                                           ortholan_refusal* refusal);
// SemanticsInformation (RFC 3739 3.2.6.1); both parts are optional.
typedef struct ortholan_qc_semantics {
  ortholan_octets oid;  // content octets
  ortholan_general_names_view authorities;
} ortholan_qc_semantics;
// Reads the information of a statement on the semantics of names.
ORTHOLAN_EXPORT ortholan_reason ortholan_qc_semantics_read(ortholan_octets info, int32_t mode,
                                                           ortholan_qc_semantics* semantics,
                                                           ortholan_refusal* refusal);
// The statement of payment services (ETSI TS 119 495 5.1).
typedef struct ortholan_psd2_statement {
  ortholan_list roles;
  ortholan_string authority;
  ortholan_string authority_identifier;
} ortholan_psd2_statement;
// One role of a payment service provider.
typedef struct ortholan_psd2_role {
  ortholan_octets oid;  // content octets
  ortholan_string name;
} ortholan_psd2_role;
// Reads the information of the PSD2 statement.
ORTHOLAN_EXPORT ortholan_reason ortholan_psd2_statement_read(ortholan_octets info, int32_t mode,
                                                             ortholan_psd2_statement* statement,
                                                             ortholan_refusal* refusal);
// The next role of a payment service provider.
ORTHOLAN_EXPORT ortholan_reason ortholan_psd2_role_next(const ortholan_list* roles, size_t* offset,
                                                        ortholan_psd2_role* role);

// cabfOrganizationIdentifier (CA/Browser Forum, EV guidelines 9.8.2)
typedef struct ortholan_organization_identifier {
  ortholan_string scheme;
  ortholan_string country;
  ortholan_string state;  // optional
  ortholan_string reference;
} ortholan_organization_identifier;
// Reads the CA/Browser Forum's organizationIdentifier.
ORTHOLAN_EXPORT ortholan_reason ortholan_organization_identifier_read(
    ortholan_octets value, int32_t mode, ortholan_organization_identifier* identifier,
    ortholan_refusal* refusal);

// certificateTemplate of Windows
typedef struct ortholan_certificate_template {
  ortholan_octets oid;             // content octets
  ortholan_integer major_version;  // optional
  ortholan_integer minor_version;  // optional
} ortholan_certificate_template;
// Reads certificateTemplate, version 2.
ORTHOLAN_EXPORT ortholan_reason ortholan_certificate_template_read(
    ortholan_octets value, int32_t mode, ortholan_certificate_template* made_by,
    ortholan_refusal* refusal);

// ntdsCASecurity of Windows: the security identifier, "S-1-5-...", in ASCII.
typedef struct ortholan_security_name {
  ortholan_octets type;  // content octets of an identifier
  ortholan_octets text;
} ortholan_security_name;
// The identifier of an account.
typedef struct ortholan_security_identifier {
  ortholan_security_name name;
} ortholan_security_identifier;
// Reads Windows' security identifier.
ORTHOLAN_EXPORT ortholan_reason ortholan_security_identifier_read(
    ortholan_octets value, int32_t mode, ortholan_security_identifier* identifier,
    ortholan_refusal* refusal);

// smimeCapabilities (RFC 8551 2.5.2)
typedef struct ortholan_capability {
  ortholan_octets oid;         // content octets
  ortholan_octets parameters;  // a whole element; optional
} ortholan_capability;
// Reads smimeCapabilities.
ORTHOLAN_EXPORT ortholan_reason ortholan_capabilities_read(ortholan_octets value, int32_t mode,
                                                           ortholan_list* capabilities,
                                                           ortholan_refusal* refusal);
// The next capability.
ORTHOLAN_EXPORT ortholan_reason ortholan_capability_next(const ortholan_list* capabilities,
                                                         size_t* offset,
                                                         ortholan_capability* capability);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSION_VALUES_H_
