// Values of extensions as structures: one shape each.
#include <ortholan/strict/extension_values.h>

#include "strict/extensions/common_shapes.h"
#include "strict/extensions/qualified_shapes.h"
#include "strict/extensions/rfc5280_shapes.h"
#include "strict/extensions/shape_reader.h"
#include "strict/extensions/tls_shapes.h"
#include "strict/extensions/vendor_shapes.h"
#include "strict/extensions/windows_shapes.h"
#include "strict/face/value_call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

namespace {

constexpr Shape kEnumeratedShape = {ShapeKind::kEnumerated};
constexpr Shape kUtcTimeShape = {ShapeKind::kUtcTime};
constexpr Shape kNumbersShape = SequenceOf(&kNumberShape);

// Whether a value has the first octet of a type.
bool Begins(ortholan_octets value, uint8_t identifier) {
  return value.data != nullptr && value.size != 0 && value.data[0] == identifier;
}

}  // namespace

ortholan_reason ortholan_null_read(ortholan_octets value, int32_t mode, ortholan_refusal* refusal) {
  int32_t nothing;
  return Read(kNullShape, value, mode, &nothing, refusal);
}

ortholan_reason ortholan_extension_string_text(const ortholan_string* string, char* out,
                                               size_t room, size_t* size) {
  Clear(size, nullptr);
  if (string == nullptr || !IsGiven(string->content) || !IsRoom(out, room)) {
    return ORTHOLAN_REASON_ARGUMENT;
  }
  const auto identifier = static_cast<uint8_t>(string->identifier);
  if (string->identifier > UINT8_MAX || !IsString(identifier)) return ORTHOLAN_REASON_NO_STRING;
  Output text(out, room);
  if (!PutStringText(identifier, View(string->content), &text)) return ORTHOLAN_REASON_ENCODING;
  return Finish(text, size);
}

ortholan_reason ortholan_signed_timestamp_next(const ortholan_list* timestamps, size_t* offset,
                                               ortholan_signed_timestamp* timestamp) {
  ByteView rest;
  const ortholan_reason fault = RestOf(timestamps, offset, timestamp, &rest);
  if (fault != ORTHOLAN_REASON_NONE) return fault;
  const size_t before = rest.size;
  ortholan_signed_timestamp read = {};
  ByteView bytes;
  if (!TakeTlsStruct(kTimestampShape, &rest, &bytes, &read)) return ORTHOLAN_REASON_ARGUMENT;
  *offset += before - rest.size;
  *timestamp = read;
  timestamp->bytes = Octets(bytes);
  timestamp->version = bytes[0];
  return ORTHOLAN_REASON_NONE;
}

ortholan_reason ortholan_integer_read(ortholan_octets value, int32_t mode, ortholan_integer* number,
                                      ortholan_refusal* refusal) {
  return Read(Begins(value, kEnumerated) ? kEnumeratedShape : kNumberShape, value, mode, number,
              refusal);
}

ortholan_reason ortholan_octet_string_read(ortholan_octets value, int32_t mode,
                                           ortholan_octets* octets, ortholan_refusal* refusal) {
  return Read(kOctetsShape, value, mode, octets, refusal);
}

ortholan_reason ortholan_string_read(ortholan_octets value, int32_t mode, ortholan_string* string,
                                     ortholan_refusal* refusal) {
  return Read(kAnyStringShape, value, mode, string, refusal);
}

ortholan_reason ortholan_moment_read(ortholan_octets value, int32_t mode, ortholan_moment* moment,
                                     ortholan_refusal* refusal) {
  return Read(Begins(value, kUtcTime) ? kUtcTimeShape : kTimeShape, value, mode, moment, refusal);
}

ortholan_reason ortholan_oids_read(ortholan_octets value, int32_t mode, ortholan_list* oids,
                                   ortholan_refusal* refusal) {
  return Read(kOidsShape, value, mode, oids, refusal);
}

ortholan_reason ortholan_integers_read(ortholan_octets value, int32_t mode, ortholan_list* numbers,
                                       ortholan_refusal* refusal) {
  return Read(kNumbersShape, value, mode, numbers, refusal);
}

ortholan_reason ortholan_bits_read(ortholan_octets value, int32_t mode, ortholan_bits* bits,
                                   ortholan_refusal* refusal) {
  return Read(kKeyUsageShape, value, mode, bits, refusal);
}

ortholan_reason ortholan_basic_constraints_read(ortholan_octets value, int32_t mode,
                                                ortholan_basic_constraints* constraints,
                                                ortholan_refusal* refusal) {
  return Read(kBasicConstraintsShape, value, mode, constraints, refusal);
}

ortholan_reason ortholan_authority_key_identifier_read(
    ortholan_octets value, int32_t mode, ortholan_authority_key_identifier* identifier,
    ortholan_refusal* refusal) {
  return Read(kAuthorityKeyIdentifierShape, value, mode, identifier, refusal);
}

ortholan_reason ortholan_key_usage_period_read(ortholan_octets value, int32_t mode,
                                               ortholan_key_usage_period* period,
                                               ortholan_refusal* refusal) {
  return Read(kKeyUsagePeriodShape, value, mode, period, refusal);
}

ortholan_reason ortholan_policies_read(ortholan_octets value, int32_t mode, ortholan_list* policies,
                                       ortholan_refusal* refusal) {
  return Read(kPoliciesShape, value, mode, policies, refusal);
}

ortholan_reason ortholan_user_notice_read(ortholan_octets value, int32_t mode,
                                          ortholan_user_notice* notice, ortholan_refusal* refusal) {
  return Read(kNoticeShape, value, mode, notice, refusal);
}

ortholan_reason ortholan_policy_mappings_read(ortholan_octets value, int32_t mode,
                                              ortholan_list* mappings, ortholan_refusal* refusal) {
  return Read(kPolicyMappingsShape, value, mode, mappings, refusal);
}

ortholan_reason ortholan_policy_constraints_read(ortholan_octets value, int32_t mode,
                                                 ortholan_policy_constraints* constraints,
                                                 ortholan_refusal* refusal) {
  return Read(kPolicyConstraintsShape, value, mode, constraints, refusal);
}

ortholan_reason ortholan_name_subtrees_read(ortholan_octets value, int32_t mode,
                                            ortholan_name_subtrees* subtrees,
                                            ortholan_refusal* refusal) {
  return Read(kNameConstraintsShape, value, mode, subtrees, refusal);
}

ortholan_reason ortholan_distribution_points_read(ortholan_octets value, int32_t mode,
                                                  ortholan_list* points,
                                                  ortholan_refusal* refusal) {
  return Read(kDistributionPointsShape, value, mode, points, refusal);
}

ortholan_reason ortholan_issuing_distribution_point_read(ortholan_octets value, int32_t mode,
                                                         ortholan_issuing_distribution_point* point,
                                                         ortholan_refusal* refusal) {
  return Read(kIssuingDistributionPointShape, value, mode, point, refusal);
}

ortholan_reason ortholan_information_access_read(ortholan_octets value, int32_t mode,
                                                 ortholan_list* descriptions,
                                                 ortholan_refusal* refusal) {
  return Read(kInformationAccessShape, value, mode, descriptions, refusal);
}

ortholan_reason ortholan_directory_attributes_read(ortholan_octets value, int32_t mode,
                                                   ortholan_list* attributes,
                                                   ortholan_refusal* refusal) {
  return Read(kDirectoryAttributesShape, value, mode, attributes, refusal);
}

ortholan_reason ortholan_signed_timestamps_read(ortholan_octets value, int32_t mode,
                                                ortholan_list* timestamps,
                                                ortholan_refusal* refusal) {
  return Read(kTimestampsShape, value, mode, timestamps, refusal);
}

ortholan_reason ortholan_qc_statements_read(ortholan_octets value, int32_t mode,
                                            ortholan_list* statements, ortholan_refusal* refusal) {
  return Read(kQualifiedStatementsShape, value, mode, statements, refusal);
}

ortholan_reason ortholan_qc_limit_read(ortholan_octets info, int32_t mode, ortholan_qc_limit* limit,
                                       ortholan_refusal* refusal) {
  return Read(kValueShape, info, mode, limit, refusal);
}

ortholan_reason ortholan_qc_places_read(ortholan_octets info, int32_t mode, ortholan_list* places,
                                        ortholan_refusal* refusal) {
  return Read(kPlacesShape, info, mode, places, refusal);
}

ortholan_reason ortholan_qc_countries_read(ortholan_octets info, int32_t mode,
                                           ortholan_list* countries, ortholan_refusal* refusal) {
  return Read(kCountriesShape, info, mode, countries, refusal);
}

ortholan_reason ortholan_qc_semantics_read(ortholan_octets info, int32_t mode,
                                           ortholan_qc_semantics* semantics,
                                           ortholan_refusal* refusal) {
  return Read(kSemanticsShape, info, mode, semantics, refusal);
}

ortholan_reason ortholan_psd2_statement_read(ortholan_octets info, int32_t mode,
                                             ortholan_psd2_statement* statement,
                                             ortholan_refusal* refusal) {
  return Read(kPaymentShape, info, mode, statement, refusal);
}

ortholan_reason ortholan_organization_identifier_read(ortholan_octets value, int32_t mode,
                                                      ortholan_organization_identifier* identifier,
                                                      ortholan_refusal* refusal) {
  return Read(kOrganizationIdentifierShape, value, mode, identifier, refusal);
}

ortholan_reason ortholan_certificate_template_read(ortholan_octets value, int32_t mode,
                                                   ortholan_certificate_template* made_by,
                                                   ortholan_refusal* refusal) {
  return Read(kTemplateShape, value, mode, made_by, refusal);
}

ortholan_reason ortholan_security_identifier_read(ortholan_octets value, int32_t mode,
                                                  ortholan_security_identifier* identifier,
                                                  ortholan_refusal* refusal) {
  return Read(kSecurityIdentifierShape, value, mode, identifier, refusal);
}

ortholan_reason ortholan_capabilities_read(ortholan_octets value, int32_t mode,
                                           ortholan_list* capabilities, ortholan_refusal* refusal) {
  return Read(kCapabilitiesShape, value, mode, capabilities, refusal);
}

ortholan_reason ortholan_oid_next(const ortholan_list* list, size_t* offset, ortholan_octets* oid) {
  return Next(kOidShape, list, offset, oid);
}

ortholan_reason ortholan_integer_next(const ortholan_list* list, size_t* offset,
                                      ortholan_integer* number) {
  return Next(kNumberShape, list, offset, number);
}

ortholan_reason ortholan_string_next(const ortholan_list* list, size_t* offset,
                                     ortholan_string* string) {
  return Next(kAnyStringShape, list, offset, string);
}

ortholan_reason ortholan_element_next(const ortholan_list* list, size_t* offset,
                                      ortholan_octets* element) {
  return Next(kAnyShape, list, offset, element);
}

ortholan_reason ortholan_policy_next(const ortholan_list* policies, size_t* offset,
                                     ortholan_policy* policy) {
  return Next(kPolicyShape, policies, offset, policy);
}

ortholan_reason ortholan_policy_qualifier_next(const ortholan_list* qualifiers, size_t* offset,
                                               ortholan_policy_qualifier* qualifier) {
  return Next(kQualifierShape, qualifiers, offset, qualifier);
}

ortholan_reason ortholan_policy_mapping_next(const ortholan_list* mappings, size_t* offset,
                                             ortholan_policy_mapping* mapping) {
  return Next(kMappingShape, mappings, offset, mapping);
}

ortholan_reason ortholan_name_subtree_next(const ortholan_list* subtrees, size_t* offset,
                                           ortholan_name_subtree* subtree) {
  return Next(kSubtreeShape, subtrees, offset, subtree);
}

ortholan_reason ortholan_distribution_point_next(const ortholan_list* points, size_t* offset,
                                                 ortholan_distribution_point* point) {
  return Next(kPointShape, points, offset, point);
}

ortholan_reason ortholan_access_description_next(const ortholan_list* descriptions, size_t* offset,
                                                 ortholan_access_description* description) {
  return Next(kAccessShape, descriptions, offset, description);
}

ortholan_reason ortholan_directory_attribute_next(const ortholan_list* attributes, size_t* offset,
                                                  ortholan_directory_attribute* attribute) {
  return Next(kAttributeShape, attributes, offset, attribute);
}

ortholan_reason ortholan_qc_statement_next(const ortholan_list* statements, size_t* offset,
                                           ortholan_qc_statement* statement) {
  return Next(kStatementShape, statements, offset, statement);
}

ortholan_reason ortholan_qc_place_next(const ortholan_list* places, size_t* offset,
                                       ortholan_qc_place* place) {
  return Next(kPlaceShape, places, offset, place);
}

ortholan_reason ortholan_psd2_role_next(const ortholan_list* roles, size_t* offset,
                                        ortholan_psd2_role* role) {
  return Next(kRoleShape, roles, offset, role);
}

ortholan_reason ortholan_capability_next(const ortholan_list* capabilities, size_t* offset,
                                         ortholan_capability* capability) {
  return Next(kCapabilityShape, capabilities, offset, capability);
}
