#include "strict/general_names/escaped_text.h"

#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

bool IsShown(uint32_t scalar) {
  return (scalar >= 0x20 && scalar < 0x7F) ||
         (scalar > 0xA0 && scalar < 0xD800 && (scalar < 0x2000 || scalar >= 0x2070));
}

void PutOctets(ByteView octets, Output* out) {
  for (const uint8_t& octet : octets) {
    out->Put('\\');
    PutHex({&octet, 1}, out);
  }
}

}  // namespace

void PutEscapedText(std::string_view text, Characters characters, std::string_view ends,
                    Output* out) {
  const ByteView all = AsBytes(text.data(), text.size());
  for (ByteView rest = all; !rest.empty();) {
    uint32_t scalar = rest[0];
    size_t size = characters == Characters::kUtf8 ? ReadUtf8Scalar(rest, &scalar) : 1;
    const bool is_text = size != 0 && (characters == Characters::kUtf8 || scalar < 0x80);
    if (size == 0) size = 1;
    const bool is_edge_blank = scalar == ' ' && (rest.data == all.data || rest.size == 1);
    const bool ends_part =
        is_text && scalar < 0x80 && ends.find(static_cast<char>(scalar)) != std::string_view::npos;
    if (is_text && scalar == '\\') {
      out->Put("\\\\");
    } else if (is_text && IsShown(scalar) && !is_edge_blank && !ends_part) {
      out->Put(rest.First(size));
    } else {
      PutOctets(rest.First(size), out);
    }
    rest = rest.From(size);
  }
}

}  // namespace Ortholan::strict
