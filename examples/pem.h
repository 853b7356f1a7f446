// PEM text (RFC 7468) and base64.
#ifndef ORTHOLAN_EXAMPLES_PEM_H_
#define ORTHOLAN_EXAMPLES_PEM_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Example {

struct PemBlock {
  std::string_view label;  // "CERTIFICATE"
  std::string octets;      // empty where there is a fault
  const char* fault;       // null, or what is wrong with the block
  std::size_t end;         // octets of the text up to behind the block
};

// What the lines of a block's two ends begin with.
inline constexpr std::string_view kPemBegin = "-----BEGIN ";
inline constexpr std::string_view kPemEnd = "-----END ";

// What the line that opens a block says it holds.
std::string_view PemLabel(std::string_view block);

// Whether a line of `text` opens a block.
bool HasPemBlock(std::string_view text);

// Calls `found` for each block, whatever stands between them.
void ForEachPemBlock(std::string_view text, const std::function<void(const PemBlock&)>& found);

// The octets of base64 text (RFC 4648 section 4) with white space anywhere; nothing where it is
// none.
std::optional<std::string> FromBase64(std::string_view text);

// Octets as base64 in lines of 64 characters, each with its line feed.
std::string Base64Lines(std::string_view octets);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_PEM_H_
