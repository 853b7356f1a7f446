#include "names/decoder/name_renderer.h"

#include "foundation/code_page.h"
#include "foundation/status_code.h"
#include "names/decoder/quoting.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"
#include "platform/string_value.h"

namespace Ortholan {
namespace {

// The first row whose option is set counts.
struct SeparatorRow {
  DWORD option;
  std::string_view separator;
};
constexpr SeparatorRow kSeparators[] = {
    {0x08000000, "\r\n"},
    {0x40000000, ";"},
};
constexpr std::string_view kDefaultSeparator = ",";

std::string_view SeparatorFor(DWORD options, DWORD style) {
  if (style == kStyleValuesOnly) return kDefaultSeparator;
  for (const SeparatorRow& row : kSeparators) {
    if ((options & row.option) != 0) return row.separator;
  }
  return kDefaultSeparator;
}

// Copies characters and collects their quote classes; false for one that is not ASCII.
bool CopyAscii(const char* from, size_t size, char* to, unsigned* classes) {
  unsigned seen = 0;
  unsigned found = 0;
  for (size_t i = 0; i < size; ++i) {
    const auto c = static_cast<unsigned char>(from[i]);
    seen |= c;
    found |= kQuoteClasses.begin()[c & 0x7F];
    to[i] = from[i];
  }
  *classes = found;
  return seen < 0x80;
}

template <size_t N>
void AppendTo(std::string_view text, SmallBuffer<char, N>* out) {
  char* to = out->Extend(text.size());
  for (const char c : text) *to++ = c;
}

bool QuotesAnEnd(char c) {
  return (kQuoteClasses[static_cast<unsigned char>(c)] & kQuotedAtEnds) != 0;
}

}  // namespace

NameRenderer::NameRenderer(DWORD style, DWORD options, bool wide)
    : style_(style), separator_(SeparatorFor(options, style)), is_wide_(wide) {}

// In one pass: a fault of the sequence itself, also one behind an RDN that cannot be rendered,
// counts before everything else and leaves no text.
bool NameRenderer::Render(ByteView name) {
  bool rendered = true;
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) {
    rendered = rendered && RenderRdn(rdn.bytes, name.size - reader.position());
  }
  if (!reader.fault()) return rendered;
  ascii_.clear();
  wide_.clear();
  return FailWith(reader.fault().status);
}

// `left` is the number of octets behind the RDN.
bool NameRenderer::RenderRdn(ByteView rdn, size_t left) {
  if (!is_wide_) {
    if (RenderAscii(rdn)) return true;
    SwitchToWide();
    // About what the rest needs: an RDN's octets beside its text are as many as its key.
    wide_.reserve(wide_.size() + rdn.size + left);
  }
  return RenderWide(rdn);
}

void NameRenderer::MoveTo(std::wstring* out) {
  if (is_wide_) {
    out->swap(wide_);
    return;
  }
  out->clear();
  AppendAscii({ascii_.data(), ascii_.size()}, out);
}

std::string_view NameRenderer::ascii() const {
  return is_wide_ ? std::string_view() : std::string_view(ascii_.data(), ascii_.size());
}

void NameRenderer::SwitchToWide() {
  AppendAscii({ascii_.data(), ascii_.size()}, &wide_);
  is_wide_ = true;
}

// Takes the RDN where it has the usual shape and ASCII text; otherwise nothing is appended and it
// is left to RenderWide, failures included.
bool NameRenderer::RenderAscii(ByteView rdn) {
  const size_t before = ascii_.size();
  PlainAttribute attribute;
  if (!SplitPlainRdn(rdn, &attribute)) return false;
  if (before != 0) AppendTo(separator_, &ascii_);
  if (AppendAsciiType(attribute.type) && AppendAsciiValue(attribute.value)) return true;
  ascii_.Truncate(before);
  return false;
}

bool NameRenderer::AppendAsciiType(ByteView content) {
  TypeText type;
  if (!DecodeAttrOid(content, &type)) return false;
  if (style_ == kStyleValuesOnly) return true;
  const std::wstring_view key = KeyFor(type, style_);
  if (key.empty()) {
    AppendTo(type.dotted(), &ascii_);
  } else {
    char* out = ascii_.Extend(key.size());
    unsigned seen = 0;
    for (const wchar_t c : key) {
      seen |= static_cast<unsigned>(c);
      *out++ = static_cast<char>(c);
    }
    if (seen >= 0x80) return false;
  }
  ascii_.push_back('=');
  return true;
}

bool NameRenderer::AppendAsciiValue(const Element& child) {
  if (!IsDecodedString(child)) return false;
  StringValue decoded;
  if (!decoded.Decode(child.bytes.data, child.bytes.size) || decoded.is_utf16()) return false;
  const size_t size = decoded.size();
  const size_t start = ascii_.size();
  unsigned classes = 0;
  char* const value = ascii_.Extend(size);
  if (!CopyAscii(reinterpret_cast<const char*>(decoded.data()), size, value, &classes)) {
    return false;
  }
  const bool plain = size != 0 && (classes & kQuotedAnywhere) == 0 && !QuotesAnEnd(value[0]) &&
                     !QuotesAnEnd(value[size - 1]);
  if (!plain) {
    ascii_.Extend(QuotedSize(value, size) - size);
    QuoteAttr(ascii_.data() + start, size);
  }
  return true;
}

bool NameRenderer::RenderWide(ByteView rdn) {
  const size_t before = wide_.size();
  Status dropped = Status::kOk;
  AttributeElements attribute;
  bool rendered = SplitRdn(rdn, &attribute, &dropped);
  if (rendered && before != 0) AppendAscii(separator_, &wide_);
  rendered = rendered && AppendWideAttribute(attribute);
  if (!rendered) wide_.resize(before);
  return rendered;
}

// Children are decoded in the order in which they stand, so that the first failure is told.
bool NameRenderer::AppendWideAttribute(const AttributeElements& attribute) {
  const Element& first = attribute.child[0];
  const Element& second = attribute.child[1];
  if (IsType(first)) return AppendWideType(first) && AppendWideValue(second);
  std::wstring value;
  wide_.swap(value);
  const bool read = AppendWideValue(first);
  wide_.swap(value);
  if (!read || !AppendWideType(second)) return false;
  wide_.append(value);
  return true;
}

bool NameRenderer::AppendWideType(const Element& child) {
  TypeText type;
  if (StandsAlone(child) != Status::kOk || !DecodeAttrOid(child, &type)) return false;
  if (style_ == kStyleValuesOnly) return true;
  AppendType(type, style_, &wide_);
  wide_.push_back(L'=');
  return true;
}

bool NameRenderer::AppendWideValue(const Element& child) {
  const size_t start = wide_.size();
  if (StandsAlone(child) != Status::kOk || !DecodeAttrData(child, &wide_)) return false;
  EscapeAttrAuxSym(start, &wide_);
  return true;
}

}  // namespace Ortholan
