#include "strict/general_names/escaped_text.h"

#include <ortholan/strict/general_names.h>

#include "bytes/hex.h"
#include "strict/der/string_value.h"
#include "strict/names/shown_characters.h"

namespace Ortholan::strict {
namespace {

void PutEscapedOctets(ByteView octets, Output* out) {
  for (const uint8_t& octet : octets) {
    out->Put('\\');
    PutHex({&octet, 1}, out);
  }
}

// Octets of text that stand for the first octet: "a", "\\\\", "\\0A"; 0 for a backslash that
// escapes nothing.
size_t UnitAt(std::string_view text, char* octet) {
  *octet = text[0];
  if (text[0] != '\\') return 1;
  if (text.size() > 1 && text[1] == '\\') return 2;
  if (text.size() < 3) return 0;
  if (!IsHexDigit(text[1]) || !IsHexDigit(text[2])) return 0;
  *octet = static_cast<char>(HexOctet(&text[1]));
  return 3;
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
      PutEscapedOctets(rest.First(size), out);
    }
    rest = rest.From(size);
  }
}

bool UnescapedText::Read(std::string_view escaped, Refusal* refusal) {
  escaped_ = text_ = escaped;
  if (escaped.find('\\') == std::string_view::npos) return true;
  storage_.clear();
  storage_.reserve(escaped.size());
  for (std::string_view rest = escaped; !rest.empty();) {
    char octet;
    const size_t size = UnitAt(rest, &octet);
    if (size == 0) return RefuseText(refusal, ORTHOLAN_REASON_NAME_ESCAPE, rest);
    storage_ += octet;
    rest.remove_prefix(size);
  }
  text_ = storage_;
  return true;
}

const char* UnescapedText::PlaceOf(size_t offset) const {
  if (storage_.empty()) return escaped_.data() + offset;
  std::string_view rest = escaped_;
  for (char octet; offset != 0 && !rest.empty(); --offset) rest.remove_prefix(UnitAt(rest, &octet));
  return rest.data();
}

}  // namespace Ortholan::strict
