#include "strict/extensions/qualified_shapes.h"

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// RFC 3739 3.2.6
static constexpr Field kSemanticsFields[] = {
    {"semanticsIdentifier", "semantics", &kOidShape, Presence::kOptional},
    {"nameRegistrationAuthorities", "name registration authorities", &kNamesShape,
     Presence::kOptional},
};
static constexpr Shape kSemanticsShape = Sequence(kSemanticsFields);

// ETSI EN 319 412-5 4.3.2
static constexpr Field kCurrencyFields[] = {
    {"alphabetic", "currency", &kPrintableShape},
    {"numeric", "currency", &kNumberShape},
};
static constexpr Shape kCurrencyShape = Choice(kCurrencyFields);
static constexpr Field kValueFields[] = {
    {"currency", "currency", &kCurrencyShape},
    {"amount", "amount", &kNumberShape},
    {"exponent", "exponent of 10", &kNumberShape},
};
static constexpr Shape kValueShape = Sequence(kValueFields);

// 4.3.4
static constexpr Field kPlaceFields[] = {
    {"url", "", &kIA5Shape},
    {"language", "language", &kPrintableShape},
};
static constexpr Shape kPlaceShape = Sequence(kPlaceFields, "disclosure statement");
static constexpr Shape kPlacesShape = SequenceOf(&kPlaceShape);

// 4.2.4
static constexpr Shape kCountriesShape = SequenceOf(&kPrintableShape);

// ETSI TS 119 495 5.1
static constexpr Field kRoleFields[] = {
    {"roleOfPspOid", "", &kOidShape},
    {"roleOfPspName", "name", &kUtf8Shape},
};
static constexpr Shape kRoleShape = Sequence(kRoleFields, "role");
static constexpr Shape kRolesShape = SequenceOf(&kRoleShape);
static constexpr Field kPaymentFields[] = {
    {"rolesOfPSP", "roles", &kRolesShape},
    {"nCAName", "competent authority", &kUtf8Shape},
    {"nCAId", "identifier of the authority", &kUtf8Shape},
};
static constexpr Shape kPaymentShape = Sequence(kPaymentFields);

static constexpr OpenType kStatements[] = {
    {"1.3.6.1.5.5.7.11.1", &kSemanticsShape}, {"1.3.6.1.5.5.7.11.2", &kSemanticsShape},
    {"0.4.0.1862.1.2", &kValueShape},         {"0.4.0.1862.1.3", &kNumberShape},
    {"0.4.0.1862.1.5", &kPlacesShape},        {"0.4.0.1862.1.6", &kOidsShape},
    {"0.4.0.1862.1.7", &kCountriesShape},     {"0.4.0.19495.2", &kPaymentShape},
};
static constexpr Shape kInformationShape = Open(kStatements);
static constexpr Field kStatementFields[] = {
    {"statementId", "", &kOidShape},
    {"statementInfo", "value", &kInformationShape, Presence::kOptional},
};
static constexpr Shape kStatementShape = Sequence(kStatementFields, "statement");
const Shape kQualifiedStatementsShape = SequenceOf(&kStatementShape);

// Guidelines for extended validation, 9.8.2
static constexpr Field kOrganizationFields[] = {
    {"registrationSchemeIdentifier", "scheme", &kPrintableShape},
    {"registrationCountry", "country", &kPrintableShape},
    {"registrationStateOrProvince", "state or province", &kPrintableShape, Presence::kOptional,
     Tagging::kImplicit, 0},
    {"registrationReference", "reference", &kUtf8Shape},
};
const Shape kOrganizationIdentifierShape = Sequence(kOrganizationFields);

}  // namespace Ortholan::strict
