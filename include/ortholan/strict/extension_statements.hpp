// What statements about qualified certificates hold, in C++17: values by the information of a
// statement of <ortholan/strict/extension_values.hpp>.
//
//   for (const ortholan::QcStatement& statement : ortholan::ReadQcStatements(value).value()) {
//     const auto limit = ortholan::QcLimit::Read(statement.info);   // of qcLimitValue
//   }
#ifndef ORTHOLAN_STRICT_EXTENSION_STATEMENTS_HPP_
#define ORTHOLAN_STRICT_EXTENSION_STATEMENTS_HPP_

#include <ortholan/strict/extension_values.hpp>

namespace ortholan {

// QcEuLimitValue: amount times 10 to the power of the exponent.
struct QcLimit {
  std::string alphabetic;  // ISO 4217; one of the two
  std::optional<int64_t> numeric;
  int64_t amount = 0;
  int64_t exponent = 0;

  explicit QcLimit(const ortholan_qc_limit& plain)
      : alphabetic(detail::StringText(plain.currency.alphabetic)),
        numeric(detail::ToNumber(plain.currency.numeric)),
        amount(plain.amount.value),
        exponent(plain.exponent.value) {}
  static Result<QcLimit> Read(Octets info, Reading reading = Reading::kDer) {
    return detail::ReadValue<QcLimit, ortholan_qc_limit>(info, reading, ortholan_qc_limit_read);
  }
};

// A place of disclosure statements.
struct QcPlace {
  std::string url;
  std::string language;  // ISO 639-1

  explicit QcPlace(const ortholan_qc_place& plain)
      : url(detail::StringText(plain.url)), language(detail::StringText(plain.language)) {}
};
using QcPlaces = ValueList<QcPlace, ortholan_qc_place, ortholan_qc_place_next>;
// QcEuPDS.
inline Result<QcPlaces> ReadQcPlaces(Octets info, Reading reading = Reading::kDer) {
  return detail::ReadValue<QcPlaces, ortholan_list>(info, reading, ortholan_qc_places_read);
}

// QcCClegislation: country codes.
inline Result<std::vector<std::string>> ReadQcCountries(Octets info,
                                                        Reading reading = Reading::kDer) {
  const auto list = detail::ReadPlain<ortholan_list>(info, reading, ortholan_qc_countries_read);
  if (!list) return list.refusal();
  return detail::StringTexts(*list);
}

// SemanticsInformation (RFC 3739 3.2.6.1).
struct QcSemantics {
  Octets oid;  // content octets; these are empty where they are not there
  GeneralNames authorities;

  explicit QcSemantics(const ortholan_qc_semantics& plain)
      : oid(plain.oid), authorities(plain.authorities) {}
  static Result<QcSemantics> Read(Octets info, Reading reading = Reading::kDer) {
    return detail::ReadValue<QcSemantics, ortholan_qc_semantics>(info, reading,
                                                                 ortholan_qc_semantics_read);
  }
};

// A role of a payment service provider.
struct Psd2Role {
  Octets oid;  // content octets
  std::string name;

  explicit Psd2Role(const ortholan_psd2_role& plain)
      : oid(plain.oid), name(detail::StringText(plain.name)) {}
};
using Psd2Roles = ValueList<Psd2Role, ortholan_psd2_role, ortholan_psd2_role_next>;

// The statement of payment services (ETSI TS 119 495 5.1).
struct Psd2Statement {
  Psd2Roles roles;
  std::string authority;
  std::string authority_identifier;

  explicit Psd2Statement(const ortholan_psd2_statement& plain)
      : roles(plain.roles),
        authority(detail::StringText(plain.authority)),
        authority_identifier(detail::StringText(plain.authority_identifier)) {}
  static Result<Psd2Statement> Read(Octets info, Reading reading = Reading::kDer) {
    return detail::ReadValue<Psd2Statement, ortholan_psd2_statement>(info, reading,
                                                                     ortholan_psd2_statement_read);
  }
};

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSION_STATEMENTS_HPP_
