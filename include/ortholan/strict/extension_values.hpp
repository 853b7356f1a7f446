// Values of extensions in C++17: values with named fields, optional parts, ranges. Views into the
// octets that were read.
//
//   const auto constraints = ortholan::BasicConstraints::Read(extension.value);
//   if (constraints && constraints->is_authority) ...
//   for (const ortholan::DistributionPoint& point :
//        ortholan::ReadDistributionPoints(extension.value).value()) ...
//
// Numbers beyond 64 bits are INT64_MAX or INT64_MIN; the structures of C have their octets.
#ifndef ORTHOLAN_STRICT_EXTENSION_VALUES_HPP_
#define ORTHOLAN_STRICT_EXTENSION_VALUES_HPP_

#include <ortholan/strict/extension_values.h>

#include <ortholan/strict/general_names.hpp>

namespace ortholan {

namespace detail {

// A value that is read by a C function of its own.
template <class Value, auto kRead>
struct Readable;
template <class Value, class Plain,
          ortholan_reason (*kRead)(ortholan_octets, int32_t, Plain*, ortholan_refusal*)>
struct Readable<Value, kRead> {
  static Result<Value> Read(Octets value, Reading reading = Reading::kDer) {
    return ReadValue<Value, Plain>(value, reading, kRead);
  }
};

inline std::optional<int64_t> ToNumber(const ortholan_integer& number) {
  if (number.content.data == nullptr) return std::nullopt;
  return number.value;
}

inline std::vector<int64_t> ToNumbers(const ortholan_list& list) {
  std::vector<int64_t> numbers;
  ortholan_integer number;
  for (size_t at = 0; ortholan_integer_next(&list, &at, &number) == ORTHOLAN_REASON_NONE;) {
    numbers.push_back(number.value);
  }
  return numbers;
}

inline std::optional<uint32_t> ToFlags(const ortholan_bits& bits) {
  if (bits.content.data == nullptr) return std::nullopt;
  return bits.flags;
}

inline std::optional<int64_t> ToSeconds(const ortholan_moment& moment) {
  if (moment.is_there == 0) return std::nullopt;
  return moment.seconds;
}

// UTF-8; empty for a part that is not there, and for octets that are no text.
inline std::string StringText(const ortholan_string& string) {
  std::string text;
  WithRoom(&text, [&string](char* out, size_t room, size_t* size) {
    return ortholan_extension_string_text(&string, out, room, size);
  });
  return text;
}

inline std::vector<std::string> StringTexts(const ortholan_list& list) {
  std::vector<std::string> texts;
  ortholan_string string;
  for (size_t at = 0; ortholan_string_next(&list, &at, &string) == ORTHOLAN_REASON_NONE;) {
    texts.push_back(StringText(string));
  }
  return texts;
}

// The values of a list, made one by one.
template <class Value, class Plain, ortholan_reason (*kNext)(const ortholan_list*, size_t*, Plain*)>
class ValueWalk {
 public:
  ValueWalk() = default;
  explicit ValueWalk(const ortholan_list& list) : list_(list) { Step(); }

  Value item() const { return Value(plain_); }
  bool IsAt(const ValueWalk& other) const {
    return is_there_ == other.is_there_ && (!is_there_ || offset_ == other.offset_);
  }
  void Step() { is_there_ = kNext(&list_, &offset_, &plain_) == ORTHOLAN_REASON_NONE; }

 private:
  ortholan_list list_{};
  size_t offset_ = 0;  // behind the present one
  Plain plain_{};
  bool is_there_ = false;
};

}  // namespace detail

// A list of values over borrowed octets; a range. `Value` is made of the structure that `kNext`
// takes from the list.
template <class Value, class Plain, ortholan_reason (*kNext)(const ortholan_list*, size_t*, Plain*)>
class ValueList {
 public:
  using Iterator = detail::Iterator<detail::ValueWalk<Value, Plain, kNext>>;

  ValueList() = default;
  explicit ValueList(const ortholan_list& list) : list_(list) {}

  Iterator begin() const { return Iterator(list_); }
  Iterator end() const { return {}; }
  size_t size() const { return list_.count; }
  bool empty() const { return list_.count == 0; }

 private:
  ortholan_list list_{};
};

// Content octets of identifiers.
using OidList = ValueList<Octets, ortholan_octets, ortholan_oid_next>;

// extKeyUsage.
inline Result<OidList> ReadOids(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<OidList, ortholan_list>(value, reading, ortholan_oids_read);
}

// cRLNumber, inhibitAnyPolicy, reasonCode and others of one number.
inline Result<int64_t> ReadInteger(Octets value, Reading reading = Reading::kDer) {
  const auto number = detail::ReadPlain<ortholan_integer>(value, reading, ortholan_integer_read);
  if (!number) return number.refusal();
  return number->value;
}

// subjectKeyIdentifier.
inline Result<Octets> ReadOctetString(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<Octets, ortholan_octets>(value, reading, ortholan_octet_string_read);
}

// netscapeComment, certificateTemplateName, subjectSignTool, in UTF-8.
inline Result<std::string> ReadString(Octets value, Reading reading = Reading::kDer) {
  const auto string = detail::ReadPlain<ortholan_string>(value, reading, ortholan_string_read);
  if (!string) return string.refusal();
  return detail::StringText(*string);
}

// invalidityDate, archiveCutoff, expiredCertsOnCRL, cRLNextPublish: seconds since 1970.
inline Result<int64_t> ReadMoment(Octets value, Reading reading = Reading::kDer) {
  const auto moment = detail::ReadPlain<ortholan_moment>(value, reading, ortholan_moment_read);
  if (!moment) return moment.refusal();
  return moment->seconds;
}

// tlsFeature.
inline Result<std::vector<int64_t>> ReadIntegers(Octets value, Reading reading = Reading::kDer) {
  const auto list = detail::ReadPlain<ortholan_list>(value, reading, ortholan_integers_read);
  if (!list) return list.refusal();
  return detail::ToNumbers(*list);
}

// keyUsage: ORTHOLAN_KEY_USAGE_ flags.
inline Result<uint32_t> ReadFlags(Octets value, Reading reading = Reading::kDer) {
  const auto bits = detail::ReadPlain<ortholan_bits>(value, reading, ortholan_bits_read);
  if (!bits) return bits.refusal();
  return bits->flags;
}

struct BasicConstraints : detail::Readable<BasicConstraints, ortholan_basic_constraints_read> {
  bool is_authority = false;
  std::optional<int64_t> path_length;

  explicit BasicConstraints(const ortholan_basic_constraints& plain)
      : is_authority(plain.is_authority != 0), path_length(detail::ToNumber(plain.path_length)) {}
};

struct AuthorityKeyIdentifier
    : detail::Readable<AuthorityKeyIdentifier, ortholan_authority_key_identifier_read> {
  Octets key_identifier;  // these are empty where they are not there
  GeneralNames issuer;
  Octets serial_number;  // content of the INTEGER

  explicit AuthorityKeyIdentifier(const ortholan_authority_key_identifier& plain)
      : key_identifier(plain.key_identifier),
        issuer(plain.issuer),
        serial_number(plain.serial_number.content) {}
};

struct KeyUsagePeriod : detail::Readable<KeyUsagePeriod, ortholan_key_usage_period_read> {
  std::optional<int64_t> not_before;  // seconds since 1970
  std::optional<int64_t> not_after;

  explicit KeyUsagePeriod(const ortholan_key_usage_period& plain)
      : not_before(detail::ToSeconds(plain.not_before)),
        not_after(detail::ToSeconds(plain.not_after)) {}
};

struct UserNotice : detail::Readable<UserNotice, ortholan_user_notice_read> {
  std::string organization;
  std::vector<int64_t> numbers;
  std::string text;

  explicit UserNotice(const ortholan_user_notice& plain)
      : organization(detail::StringText(plain.reference.organization)),
        numbers(detail::ToNumbers(plain.reference.numbers)),
        text(detail::StringText(plain.text)) {}
};

struct PolicyQualifier {
  Octets oid;    // content octets
  Octets value;  // a whole element, of userNotice for UserNotice::Read

  explicit PolicyQualifier(const ortholan_policy_qualifier& plain)
      : oid(plain.oid), value(plain.value) {}
};
using PolicyQualifiers =
    ValueList<PolicyQualifier, ortholan_policy_qualifier, ortholan_policy_qualifier_next>;

struct Policy {
  Octets oid;  // content octets
  PolicyQualifiers qualifiers;

  explicit Policy(const ortholan_policy& plain) : oid(plain.oid), qualifiers(plain.qualifiers) {}
};
using Policies = ValueList<Policy, ortholan_policy, ortholan_policy_next>;
// certificatePolicies, applicationPolicies.
inline Result<Policies> ReadPolicies(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<Policies, ortholan_list>(value, reading, ortholan_policies_read);
}

struct PolicyMapping {
  Octets issuer_policy;  // content octets
  Octets subject_policy;

  explicit PolicyMapping(const ortholan_policy_mapping& plain)
      : issuer_policy(plain.issuer_policy), subject_policy(plain.subject_policy) {}
};
using PolicyMappings =
    ValueList<PolicyMapping, ortholan_policy_mapping, ortholan_policy_mapping_next>;
inline Result<PolicyMappings> ReadPolicyMappings(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<PolicyMappings, ortholan_list>(value, reading,
                                                          ortholan_policy_mappings_read);
}

struct PolicyConstraints : detail::Readable<PolicyConstraints, ortholan_policy_constraints_read> {
  std::optional<int64_t> require_explicit_policy;
  std::optional<int64_t> inhibit_policy_mapping;

  explicit PolicyConstraints(const ortholan_policy_constraints& plain)
      : require_explicit_policy(detail::ToNumber(plain.require_explicit_policy)),
        inhibit_policy_mapping(detail::ToNumber(plain.inhibit_policy_mapping)) {}
};

struct NameSubtree {
  Octets base;  // a whole GeneralName, for GeneralNameText
  int64_t minimum = 0;
  std::optional<int64_t> maximum;

  explicit NameSubtree(const ortholan_name_subtree& plain)
      : base(plain.base), minimum(plain.minimum.value), maximum(detail::ToNumber(plain.maximum)) {}
};
using NameSubtreeList = ValueList<NameSubtree, ortholan_name_subtree, ortholan_name_subtree_next>;

// nameConstraints, to look at; ortholan::Permits decides by them.
struct NameSubtrees : detail::Readable<NameSubtrees, ortholan_name_subtrees_read> {
  NameSubtreeList permitted;
  NameSubtreeList excluded;

  explicit NameSubtrees(const ortholan_name_subtrees& plain)
      : permitted(plain.permitted), excluded(plain.excluded) {}
};

struct DistributionPoint {
  GeneralNames full_name;           // empty where it is not there
  Octets relative_name;             // content of an RDN
  std::optional<uint32_t> reasons;  // ORTHOLAN_CRL_ flags
  GeneralNames crl_issuer;

  explicit DistributionPoint(const ortholan_distribution_point& plain)
      : full_name(plain.name.full_name),
        relative_name(plain.name.relative_name),
        reasons(detail::ToFlags(plain.reasons)),
        crl_issuer(plain.crl_issuer) {}
};
using DistributionPoints =
    ValueList<DistributionPoint, ortholan_distribution_point, ortholan_distribution_point_next>;
// cRLDistributionPoints, freshestCRL.
inline Result<DistributionPoints> ReadDistributionPoints(Octets value,
                                                         Reading reading = Reading::kDer) {
  return detail::ReadValue<DistributionPoints, ortholan_list>(value, reading,
                                                              ortholan_distribution_points_read);
}

struct IssuingDistributionPoint
    : detail::Readable<IssuingDistributionPoint, ortholan_issuing_distribution_point_read> {
  GeneralNames full_name;
  Octets relative_name;  // content of an RDN
  bool only_user_certificates = false;
  bool only_authority_certificates = false;
  bool only_attribute_certificates = false;
  bool is_indirect = false;
  std::optional<uint32_t> only_some_reasons;  // ORTHOLAN_CRL_ flags

  explicit IssuingDistributionPoint(const ortholan_issuing_distribution_point& plain)
      : full_name(plain.name.full_name),
        relative_name(plain.name.relative_name),
        only_user_certificates(plain.only_user_certificates != 0),
        only_authority_certificates(plain.only_authority_certificates != 0),
        only_attribute_certificates(plain.only_attribute_certificates != 0),
        is_indirect(plain.is_indirect != 0),
        only_some_reasons(detail::ToFlags(plain.only_some_reasons)) {}
};

struct AccessDescription {
  Octets method;    // content octets of an identifier
  Octets location;  // a whole GeneralName

  explicit AccessDescription(const ortholan_access_description& plain)
      : method(plain.method), location(plain.location) {}
};
using AccessDescriptions =
    ValueList<AccessDescription, ortholan_access_description, ortholan_access_description_next>;
// authorityInfoAccess, subjectInfoAccess.
inline Result<AccessDescriptions> ReadInformationAccess(Octets value,
                                                        Reading reading = Reading::kDer) {
  return detail::ReadValue<AccessDescriptions, ortholan_list>(value, reading,
                                                              ortholan_information_access_read);
}

struct SignedTimestamp {
  Octets bytes;
  uint64_t version = 0;  // 0 is version 1; of others nothing else is known
  Octets log_id;
  uint64_t time = 0;  // milliseconds since 1970
  Octets extensions;
  uint64_t hash = 0;
  uint64_t signature_algorithm = 0;
  Octets signature;

  explicit SignedTimestamp(const ortholan_signed_timestamp& plain)
      : bytes(plain.bytes),
        version(plain.version),
        log_id(plain.log_id),
        time(plain.time),
        extensions(plain.extensions),
        hash(plain.hash),
        signature_algorithm(plain.signature_algorithm),
        signature(plain.signature) {}
};
using SignedTimestamps =
    ValueList<SignedTimestamp, ortholan_signed_timestamp, ortholan_signed_timestamp_next>;
inline Result<SignedTimestamps> ReadSignedTimestamps(Octets value,
                                                     Reading reading = Reading::kDer) {
  return detail::ReadValue<SignedTimestamps, ortholan_list>(value, reading,
                                                            ortholan_signed_timestamps_read);
}

struct QcStatement {
  Octets oid;   // content octets
  Octets info;  // a whole element; empty where it is not there

  explicit QcStatement(const ortholan_qc_statement& plain) : oid(plain.oid), info(plain.info) {}
};
using QcStatements = ValueList<QcStatement, ortholan_qc_statement, ortholan_qc_statement_next>;
inline Result<QcStatements> ReadQcStatements(Octets value, Reading reading = Reading::kDer) {
  return detail::ReadValue<QcStatements, ortholan_list>(value, reading,
                                                        ortholan_qc_statements_read);
}

// Elements of any type, whole.
using Elements = ValueList<Octets, ortholan_octets, ortholan_element_next>;

struct DirectoryAttribute {
  Octets type;      // content octets of an identifier
  Elements values;  // of any type

  explicit DirectoryAttribute(const ortholan_directory_attribute& plain)
      : type(plain.type), values(plain.values) {}
};
using DirectoryAttributes =
    ValueList<DirectoryAttribute, ortholan_directory_attribute, ortholan_directory_attribute_next>;
// subjectDirectoryAttributes.
inline Result<DirectoryAttributes> ReadDirectoryAttributes(Octets value,
                                                           Reading reading = Reading::kDer) {
  return detail::ReadValue<DirectoryAttributes, ortholan_list>(value, reading,
                                                               ortholan_directory_attributes_read);
}

struct OrganizationIdentifier
    : detail::Readable<OrganizationIdentifier, ortholan_organization_identifier_read> {
  std::string scheme;
  std::string country;
  std::string state;  // empty where it is not there
  std::string reference;

  explicit OrganizationIdentifier(const ortholan_organization_identifier& plain)
      : scheme(detail::StringText(plain.scheme)),
        country(detail::StringText(plain.country)),
        state(detail::StringText(plain.state)),
        reference(detail::StringText(plain.reference)) {}
};

struct CertificateTemplate
    : detail::Readable<CertificateTemplate, ortholan_certificate_template_read> {
  Octets oid;  // content octets
  std::optional<int64_t> major_version;
  std::optional<int64_t> minor_version;

  explicit CertificateTemplate(const ortholan_certificate_template& plain)
      : oid(plain.oid),
        major_version(detail::ToNumber(plain.major_version)),
        minor_version(detail::ToNumber(plain.minor_version)) {}
};

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSION_VALUES_HPP_
