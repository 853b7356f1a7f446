#include "strict/extensions/json_output.h"

#include "bytes/utf16.h"
#include "strict/der/string_value.h"
#include "strict/extensions/leaf_text.h"
#include "strict/names/shown_characters.h"

namespace Ortholan::strict {
namespace {

void PutUnit(uint32_t unit, Output* out) {
  const uint8_t octets[] = {static_cast<uint8_t>(unit >> 8), static_cast<uint8_t>(unit)};
  out->Put("\\u");
  PutHex({octets, 2}, out);
}

void PutHidden(uint32_t scalar, Output* out) {
  if (scalar <= 0xFFFF) return PutUnit(scalar, out);
  PutUnit(HighSurrogate(scalar), out);
  PutUnit(LowSurrogate(scalar), out);
}

void PutScalar(uint32_t scalar, ByteView octets, Output* out) {
  if (scalar == '"' || scalar == '\\') out->Put('\\');
  if (IsShown(scalar)) {
    out->Put(octets);
  } else {
    PutHidden(scalar, out);
  }
}

}  // namespace

void JsonOutput::Separate() {
  if (needs_comma_) out_->Put(',');
  needs_comma_ = true;
}

void JsonOutput::Begin(char bracket) {
  Separate();
  out_->Put(bracket);
  needs_comma_ = false;
}

void JsonOutput::End(char bracket) {
  out_->Put(bracket);
  needs_comma_ = true;
}

void JsonOutput::Member(std::string_view name) {
  Literal("\"");
  out_->Put(name);
  out_->Put("\":");
  needs_comma_ = false;
}

void JsonOutput::Literal(std::string_view text) {
  Separate();
  out_->Put(text);
}

void JsonOutput::String(std::string_view text) {
  Literal("\"");
  for (ByteView rest = AsBytes(text.data(), text.size()); !rest.empty();) {
    uint32_t scalar = kReplacement;
    const size_t size = ReadUtf8Scalar(rest, &scalar);
    if (size != 0) {
      PutScalar(scalar, rest.First(size), out_);
    } else {
      PutUnit(kReplacement, out_);
    }
    rest = rest.From(size != 0 ? size : 1);
  }
  out_->Put('"');
}

void JsonOutput::Hex(ByteView octets) {
  Literal("\"");
  PutHex(octets, out_);
  out_->Put('"');
}

void JsonOutput::Number(int64_t number) {
  Separate();
  PutSigned(number, out_);
}

void JsonOutput::StringMember(std::string_view name, std::string_view text) {
  Member(name);
  String(text);
}

void JsonOutput::HexMember(std::string_view name, ByteView octets) {
  Member(name);
  Hex(octets);
}

}  // namespace Ortholan::strict
