// A whole name as one line of text.
#include <ortholan/name_decoder.h>

#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/quoting.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"

namespace Ortholan {
namespace {

constexpr DWORD kStyleMask = 0x0000FFFF;
constexpr DWORD kOptionMask = 0xFFFF0000;

// The first row whose option is set counts.
struct SeparatorRow {
  DWORD option;
  std::wstring_view separator;
};
constexpr SeparatorRow kSeparators[] = {
    {0x08000000, L"\r\n"},
    {0x40000000, L";"},
};
constexpr std::wstring_view kDefaultSeparator = L",";

std::wstring_view SeparatorFor(DWORD options, DWORD style) {
  if (style == kStyleValuesOnly) return kDefaultSeparator;
  for (const SeparatorRow& row : kSeparators) {
    if ((options & row.option) != 0) return row.separator;
  }
  return kDefaultSeparator;
}

// Appends one RDN: type, "=" and value, or the value alone. `text` is as it was on failure.
class RdnRenderer {
 public:
  RdnRenderer(DWORD style, std::wstring* text) : style_(style), text_(text) {}

  bool DecodeElem(ByteView rdn) {
    const size_t before = text_->size();
    Status dropped = Status::kOk;
    AttributeElements attribute;
    const bool rendered = SplitRdn(rdn, &attribute, &dropped) && Render(attribute);
    if (!rendered) text_->resize(before);
    return rendered;
  }

 private:
  // Children are decoded in the order in which they stand, so that the first failure is told.
  bool Render(const AttributeElements& attribute) {
    const bool type_first = IsType(attribute.child[0]);
    if (type_first) return AppendType(attribute.child[0]) && AppendValue(attribute.child[1]);
    std::wstring value;
    std::swap(*text_, value);
    const bool read = AppendValue(attribute.child[0]);
    std::swap(*text_, value);
    if (!read || !AppendType(attribute.child[1])) return false;
    text_->append(value);
    return true;
  }

  bool AppendType(const Element& child) {
    TypeText type;
    if (StandsAlone(child) != Status::kOk || !DecodeAttrOid(child, &type)) return false;
    if (style_ == kStyleValuesOnly) return true;
    Ortholan::AppendType(type, style_, text_);
    text_->push_back(L'=');
    return true;
  }

  bool AppendValue(const Element& child) {
    const size_t start = text_->size();
    if (StandsAlone(child) != Status::kOk || !DecodeAttrData(child, text_)) return false;
    EscapeAttrAuxSym(start, text_);
    return true;
  }

  DWORD style_;
  std::wstring* text_;
};

}  // namespace

X500NameDecoder::X500NameDecoder() noexcept : nameStyle_(kStyleKeys), decoderOptions_(0) {}
X500NameDecoder::X500NameDecoder(const X500NameDecoder&) noexcept = default;
X500NameDecoder& X500NameDecoder::operator=(const X500NameDecoder&) noexcept = default;
X500NameDecoder::~X500NameDecoder() = default;

void X500NameDecoder::SetDecoderOptions(DWORD options) { decoderOptions_ = options & kOptionMask; }

DWORD X500NameDecoder::GetDecoderOptions() const { return decoderOptions_; }

bool X500NameDecoder::Decode(const IdentObj& name, std::wstring& text, DWORD options) {
  const ByteView bytes(name);
  if (bytes.empty()) return false;
  text.clear();
  nameStyle_ = options & kStyleMask;
  size_t count = 0;
  const Status status = CountChildren(bytes, &count);
  if (status != Status::kOk) return FailWith(status);
  // What an RDN needs beside its text, its key included, takes about as many octets.
  text.reserve(bytes.size);
  const std::wstring_view separator = SeparatorFor(decoderOptions_, nameStyle_);
  RdnRenderer renderer(nameStyle_, &text);
  ElementReader reader(bytes);
  for (Element rdn; reader.Next(&rdn);) {
    const size_t before = text.size();
    if (before != 0) text.append(separator);
    if (!renderer.DecodeElem(rdn.bytes)) {
      text.resize(before);
      return false;
    }
  }
  return true;
}

}  // namespace Ortholan
