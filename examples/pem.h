// PEM text (RFC 7468).
#ifndef ORTHOLAN_EXAMPLES_PEM_H_
#define ORTHOLAN_EXAMPLES_PEM_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Example {

// The number of a certificate, from 1, its octets, and where in the file it ends.
using CertificateFound =
    std::function<void(std::size_t number, const std::string& der, std::size_t position)>;
// The number of what cannot be read, and a description.
using CertificateBad = std::function<void(std::size_t number, const std::string& what)>;

// Whether a line of `file` opens a block.
bool HasPemBlock(std::string_view file);

// Calls `found` for each certificate's block, `bad` for one that cannot be read. Returns how many
// there were.
std::size_t ForEachPemBlock(std::string_view file, const CertificateFound& found,
                            const CertificateBad& bad);

// The octets of base64 text (RFC 4648 section 4) with white space anywhere; nothing where it is
// none.
std::optional<std::string> FromBase64(std::string_view text);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_PEM_H_
