// Values of extensions in DER from plain parts, for programs that make requests and certificates.
// What has no function here, and every part beyond these, is written from JSON
// (ortholan_extension_from_json); alternative names by ortholan_alternative_names_from_text.
//
//   ortholan_basic_constraints_write(1, 0, octets, sizeof octets, &size);   // 30 06 01 01 FF 02 01
//   00
//
// General names stand as their text, "DNS:example.org". What is refused has the reason of the
// reader of names and texts, and no place.
#ifndef ORTHOLAN_STRICT_EXTENSION_BUILDERS_H_
#define ORTHOLAN_STRICT_EXTENSION_BUILDERS_H_

#include <ortholan/strict/base.h>

#ifdef __cplusplus
extern "C" {
#endif

// basicConstraints.
//   path_length  below 0 for none
ORTHOLAN_EXPORT ortholan_reason ortholan_basic_constraints_write(int32_t is_authority,
                                                                 int64_t path_length, uint8_t* out,
                                                                 size_t room, size_t* size);
// keyUsage, from ORTHOLAN_KEY_USAGE_ flags, and other strings of named bits.
ORTHOLAN_EXPORT ortholan_reason ortholan_bits_write(uint32_t flags, uint8_t* out, size_t room,
                                                    size_t* size);
// extKeyUsage.
//   oids  content octets of identifiers
ORTHOLAN_EXPORT ortholan_reason ortholan_oids_write(const ortholan_octets* oids, size_t count,
                                                    uint8_t* out, size_t room, size_t* size);
// subjectKeyIdentifier.
ORTHOLAN_EXPORT ortholan_reason ortholan_octet_string_write(ortholan_octets octets, uint8_t* out,
                                                            size_t room, size_t* size);
// authorityKeyIdentifier; parts without octets or names are left out.
//   serial_number  content of the INTEGER
ORTHOLAN_EXPORT ortholan_reason ortholan_authority_key_identifier_write(
    ortholan_octets key_identifier, const ortholan_text* issuer, size_t issuer_count,
    ortholan_octets serial_number, uint8_t* out, size_t room, size_t* size);
// inhibitAnyPolicy, cRLNumber and others of one number below 2^53 in size.
ORTHOLAN_EXPORT ortholan_reason ortholan_integer_write(int64_t number, uint8_t* out, size_t room,
                                                       size_t* size);
// tlsFeature.
ORTHOLAN_EXPORT ortholan_reason ortholan_tls_features_write(const uint16_t* features, size_t count,
                                                            uint8_t* out, size_t room,
                                                            size_t* size);

// One of cRLDistributionPoints or freshestCRL; what is empty is left out.
typedef struct ortholan_new_distribution_point {
  const ortholan_text* full_name;
  size_t full_name_count;
  uint32_t reasons;  // ORTHOLAN_CRL_ flags
  const ortholan_text* crl_issuer;
  size_t crl_issuer_count;
} ortholan_new_distribution_point;
// cRLDistributionPoints or freshestCRL.
ORTHOLAN_EXPORT ortholan_reason
ortholan_distribution_points_write(const ortholan_new_distribution_point* points, size_t count,
                                   uint8_t* out, size_t room, size_t* size);

// One of authorityInfoAccess or subjectInfoAccess.
typedef struct ortholan_new_access_description {
  ortholan_octets method;  // content octets of an identifier
  ortholan_text location;
} ortholan_new_access_description;
// authorityInfoAccess or subjectInfoAccess.
ORTHOLAN_EXPORT ortholan_reason
ortholan_information_access_write(const ortholan_new_access_description* descriptions, size_t count,
                                  uint8_t* out, size_t room, size_t* size);

// One of certificatePolicies; qualifiers that are empty are left out.
typedef struct ortholan_new_policy {
  ortholan_octets oid;   // content octets
  ortholan_text cps;     // a URI
  ortholan_text notice;  // becomes UTF8String
} ortholan_new_policy;
// certificatePolicies.
ORTHOLAN_EXPORT ortholan_reason ortholan_policies_write(const ortholan_new_policy* policies,
                                                        size_t count, uint8_t* out, size_t room,
                                                        size_t* size);

// nameConstraints; a list without subtrees is left out. A base may be ".example.org" or a range.
ORTHOLAN_EXPORT ortholan_reason ortholan_name_subtrees_write(const ortholan_text* permitted,
                                                             size_t permitted_count,
                                                             const ortholan_text* excluded,
                                                             size_t excluded_count, uint8_t* out,
                                                             size_t room, size_t* size);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSION_BUILDERS_H_
