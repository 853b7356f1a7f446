// PEM text (RFC 7468).
#ifndef ORTHOLAN_EXAMPLES_PEM_H_
#define ORTHOLAN_EXAMPLES_PEM_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Example {

// Whether a line of `file` opens a block.
bool HasPemBlock(std::string_view file);

// Calls `found` with the number, from 1, and the octets of each certificate's block, `bad` with the
// number and a description for a block that cannot be read. Returns how many there were.
std::size_t ForEachPemBlock(std::string_view file,
                            const std::function<void(std::size_t, const std::string&)>& found,
                            const std::function<void(std::size_t, const std::string&)>& bad);

// The octets of base64 text (RFC 4648 section 4) with white space anywhere; nothing where it is
// none.
std::optional<std::string> FromBase64(std::string_view text);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_PEM_H_
