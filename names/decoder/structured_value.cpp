#include "names/decoder/structured_value.h"

#include <algorithm>
#include <limits>

#include "bytes/utf16.h"
#include "foundation/report.h"
#include "names/decoder/attribute_walk.h"

namespace Ortholan {
namespace {

// Zero bytes behind a text, which its size counts: a reader that wants a terminator finds one.
constexpr uint64_t kPaddingBytes = 4;

BYTE* WriteAsciiUnits(std::string_view text, BYTE* out) {
  for (size_t i = 0; i < text.size(); ++i) {
    out[2 * i] = static_cast<BYTE>(text[i]);
    out[2 * i + 1] = 0;
  }
  return out + 2 * text.size();
}

}  // namespace

bool StructuredValue::Read(const Element& value) {
  return decoded_.Decode(value) ? ReadAscii(decoded_.text()) : ReadOther(value);
}

bool StructuredValue::Read(const DecodedAttribute& attribute) {
  return attribute.is_ascii() ? ReadAscii(attribute.ascii()) : ReadOther(attribute.value());
}

void StructuredValue::Write(BYTE* out) const {
  if (kind_ == Kind::kEncoding) {
    std::copy(encoding_.begin(), encoding_.end(), out);
    return;
  }
  out = kind_ == Kind::kAscii ? WriteAsciiUnits(ascii_, out) : WriteUtf16Le(wide_, out);
  std::fill_n(out, kPaddingBytes, BYTE{0});
}

// Most values are ASCII and need no wide text between.
bool StructuredValue::ReadAscii(std::string_view text) {
  kind_ = Kind::kAscii;
  ascii_ = text;
  return SetTextSize(text.size());
}

bool StructuredValue::ReadOther(const Element& value) {
  wide_.clear();
  if (DecodeAttrData(value, &wide_)) {
    kind_ = Kind::kWide;
    return SetTextSize(wide_.size());
  }
  kind_ = Kind::kEncoding;
  encoding_ = value.bytes;
  size_ = static_cast<DWORD>(value.bytes.size);
  return true;
}

bool StructuredValue::SetTextSize(size_t units) {
  const uint64_t size = 2 * static_cast<uint64_t>(units) + kPaddingBytes;
  if (size > std::numeric_limits<DWORD>::max()) return FailWith(Status::kNoMemory);
  size_ = static_cast<DWORD>(size);
  return true;
}

}  // namespace Ortholan
