// SHA-256 (FIPS 180-4), for fingerprints.
#ifndef ORTHOLAN_EXAMPLES_SHA256_H_
#define ORTHOLAN_EXAMPLES_SHA256_H_

#include <string>
#include <string_view>

namespace Example {

// The 32 octets of the digest.
std::string Sha256(std::string_view message);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHA256_H_
