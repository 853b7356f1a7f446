#include "strict/extensions/qualified_shapes.h"

#include <ortholan/strict/extension_values.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// RFC 3739 3.2.6
static constexpr Field kSemanticsFields[] = {
    {"semanticsIdentifier", "semantics", &kOidShape, offsetof(ortholan_qc_semantics, oid),
     Presence::kOptional},
    {"nameRegistrationAuthorities", "name registration authorities", &kNamesShape,
     offsetof(ortholan_qc_semantics, authorities), Presence::kOptional},
};
const Shape kSemanticsShape = Sequence(kSemanticsFields);

// ETSI EN 319 412-5 4.3.2
static constexpr Field kCurrencyFields[] = {
    {"alphabetic", "currency", &kPrintableShape, offsetof(ortholan_qc_currency, alphabetic)},
    {"numeric", "currency", &kNumberShape, offsetof(ortholan_qc_currency, numeric)},
};
static constexpr Shape kCurrencyShape = Choice(kCurrencyFields);
static constexpr Field kValueFields[] = {
    {"currency", "currency", &kCurrencyShape, offsetof(ortholan_qc_limit, currency)},
    {"amount", "amount", &kNumberShape, offsetof(ortholan_qc_limit, amount)},
    {"exponent", "exponent of 10", &kNumberShape, offsetof(ortholan_qc_limit, exponent)},
};
const Shape kValueShape = Sequence(kValueFields);

// 4.3.4
static constexpr Field kPlaceFields[] = {
    {"url", "", &kIA5Shape, offsetof(ortholan_qc_place, url)},
    {"language", "language", &kPrintableShape, offsetof(ortholan_qc_place, language)},
};
const Shape kPlaceShape = Sequence(kPlaceFields, "disclosure statement");
const Shape kPlacesShape = SequenceOf(&kPlaceShape);

// 4.2.4
const Shape kCountriesShape = SequenceOf(&kPrintableShape);

// ETSI TS 119 495 5.1
static constexpr Field kRoleFields[] = {
    {"roleOfPspOid", "", &kOidShape, offsetof(ortholan_psd2_role, oid)},
    {"roleOfPspName", "name", &kUtf8Shape, offsetof(ortholan_psd2_role, name)},
};
const Shape kRoleShape = Sequence(kRoleFields, "role");
static constexpr Shape kRolesShape = SequenceOf(&kRoleShape);
static constexpr Field kPaymentFields[] = {
    {"rolesOfPSP", "roles", &kRolesShape, offsetof(ortholan_psd2_statement, roles)},
    {"nCAName", "competent authority", &kUtf8Shape, offsetof(ortholan_psd2_statement, authority)},
    {"nCAId", "identifier of the authority", &kUtf8Shape,
     offsetof(ortholan_psd2_statement, authority_identifier)},
};
const Shape kPaymentShape = Sequence(kPaymentFields);

static constexpr OpenType kStatements[] = {
    {"1.3.6.1.5.5.7.11.1", &kSemanticsShape}, {"1.3.6.1.5.5.7.11.2", &kSemanticsShape},
    {"0.4.0.1862.1.2", &kValueShape},         {"0.4.0.1862.1.3", &kNumberShape},
    {"0.4.0.1862.1.5", &kPlacesShape},        {"0.4.0.1862.1.6", &kOidsShape},
    {"0.4.0.1862.1.7", &kCountriesShape},     {"0.4.0.19495.2", &kPaymentShape},
};
static constexpr Shape kInformationShape = Open(kStatements);
static constexpr Field kStatementFields[] = {
    {"statementId", "", &kOidShape, offsetof(ortholan_qc_statement, oid)},
    {"statementInfo", "value", &kInformationShape, offsetof(ortholan_qc_statement, info),
     Presence::kOptional},
};
const Shape kStatementShape = Sequence(kStatementFields, "statement");
const Shape kQualifiedStatementsShape = SequenceOf(&kStatementShape);

// Guidelines for extended validation, 9.8.2
static constexpr Field kOrganizationFields[] = {
    {"registrationSchemeIdentifier", "scheme", &kPrintableShape,
     offsetof(ortholan_organization_identifier, scheme)},
    {"registrationCountry", "country", &kPrintableShape,
     offsetof(ortholan_organization_identifier, country)},
    {"registrationStateOrProvince", "state or province", &kPrintableShape,
     offsetof(ortholan_organization_identifier, state), Presence::kOptional, Tagging::kImplicit, 0},
    {"registrationReference", "reference", &kUtf8Shape,
     offsetof(ortholan_organization_identifier, reference)},
};
const Shape kOrganizationIdentifierShape = Sequence(kOrganizationFields);

}  // namespace Ortholan::strict
