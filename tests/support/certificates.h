// Certificates made for tests: names and extensions as given, everything else a stand-in.
#ifndef ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_
#define ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_

#include <cstdint>
#include <string>

namespace Ortholan::testing {

// An element of DER with a one-octet identifier.
std::string Der(uint8_t identifier, const std::string& content);

// The Extension with the identifier 2.5.29.`number`.
std::string Extension(uint8_t number, const std::string& value);

// A certificate with the given Names and Extensions, one behind the other.
std::string Certificate(const std::string& issuer, const std::string& subject,
                        const std::string& extensions);

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_CERTIFICATES_H_
