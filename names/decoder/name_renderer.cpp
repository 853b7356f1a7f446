#include "names/decoder/name_renderer.h"

#include <ortholan/name_options.h>

#include <cstdint>
#include <cstring>

#include "bytes/ascii.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "names/decoder/rdn_reader.h"
#include "names/decoder/short_key.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"
#include "names/decoder/when_quoted.h"
#include "names/separators.h"
#include "platform/string_value.h"

namespace Ortholan {
namespace {

// Copies characters and collects their quote classes; false for one that is not ASCII.
bool CopyAscii(const char* from, size_t size, char* to, unsigned* classes) {
  constexpr size_t kWord = sizeof(uint64_t);
  constexpr uint64_t kHighBits = 0x8080808080808080;
  uint64_t seen = 0;
  unsigned found = 0;
  size_t i = 0;
  for (; size - i >= kWord; i += kWord) {
    uint64_t word;
    std::memcpy(&word, from + i, kWord);
    std::memcpy(to + i, &word, kWord);
    seen |= word;
    for (size_t k = 0; k < kWord; ++k) found |= kQuoteClasses.begin()[word >> (8 * k) & 0x7F];
  }
  for (; i < size; ++i) {
    seen |= static_cast<unsigned char>(from[i]);
    found |= kQuoteClasses.begin()[from[i] & 0x7F];
    to[i] = from[i];
  }
  *classes = found;
  return (seen & kHighBits) == 0;
}

template <size_t N>
void AppendTo(std::string_view text, SmallBuffer<char, N>* out) {
  char* to = out->Extend(text.size());
  for (const char c : text) *to++ = c;
}

}  // namespace

NameRenderer::NameRenderer(DWORD style, DWORD options)
    : style_(style), separator_(WrittenSeparator(options, style)) {}

// In one pass: a fault of the sequence itself, also one behind an RDN that cannot be rendered,
// counts before everything else and leaves no text.
bool NameRenderer::Render(ByteView name) {
  bool rendered = true;
  ElementReader reader(name);
  for (Element rdn; reader.Next(&rdn);) {
    left_ = reader.rest();
    rendered = rendered && RenderRdn(rdn.bytes);
  }
  if (!reader.fault()) return rendered;
  ascii_.clear();
  wide_.clear();
  return FailWith(reader.fault().status);
}

bool NameRenderer::RenderRdn(ByteView rdn) {
  if (!is_wide_) {
    if (RenderAscii(rdn)) return true;
    SwitchToWide();
    // About what the rest needs: an RDN's octets beside its text are as many as its key.
    wide_.reserve(wide_.size() + rdn.size + left_);
  }
  return RenderWide(rdn);
}

void NameRenderer::MoveTo(std::wstring* out) {
  if (is_wide_) {
    out->swap(wide_);
    return;
  }
  if (ascii_.size() > out->capacity()) {
    // In one pass: a string that grows is filled with zeros first.
    std::wstring(ascii_.begin(), ascii_.end()).swap(*out);
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

// Takes the RDN where its type comes first and its text is ASCII; otherwise nothing is appended and
// it is left to RenderWide, failures included.
bool NameRenderer::RenderAscii(ByteView rdn) {
  const size_t before = ascii_.size();
  bool has_type = false;
  Status dropped = Status::kOk;
  const bool rendered = ReadRdn(
      rdn, &dropped,
      [&](ByteView type) {
        if (before != 0) AppendTo(separator_, &ascii_);
        has_type = AppendAsciiType(type);
        return has_type;
      },
      [&](const Element& value) { return has_type && AppendAsciiValue(value); });
  if (!rendered) ascii_.Truncate(before);
  return rendered;
}

bool NameRenderer::AppendAsciiType(ByteView content) {
  TypeText type;
  if (!DecodeAttrOid(content, &type)) return false;
  if (style_ == kStyleValues) return true;
  const ShortKey key = style_ == kStyleKeys ? GetShortKey(type) : ShortKey();
  if (key.size() == 0) return AppendLongType(type);
  const size_t before = ascii_.size();
  char* const out = ascii_.Extend(ShortKey::kLongest + 1);
  key.Write(out);
  out[key.size()] = '=';
  ascii_.Truncate(before + key.size() + 1);
  return true;
}

// False for a key that is not ASCII.
bool NameRenderer::AppendLongType(const TypeText& type) {
  unsigned seen = 0;
  const auto append = [this, &seen](const auto& text) {
    char* out = ascii_.Extend(text.size() + 1);
    for (const auto c : text) {
      seen |= static_cast<unsigned>(c);
      *out++ = static_cast<char>(c);
    }
    *out = '=';
  };
  const std::wstring_view key = KeyFor(type, style_);
  if (key.empty()) {
    append(type.dotted());
  } else {
    append(key);
  }
  return seen < 0x80;
}

bool NameRenderer::AppendAsciiValue(const Element& child) {
  if (!IsDecodedString(child)) return false;
  StringValue decoded;
  if (!decoded.Decode(child.bytes.data, child.bytes.size) || decoded.is_utf16()) return false;
  const size_t size = decoded.size();
  const size_t start = ascii_.size();
  unsigned classes = 0;
  ascii_.Reserve(start + size + left_);
  char* const value = ascii_.Extend(size);
  if (!CopyAscii(reinterpret_cast<const char*>(decoded.data()), size, value, &classes)) {
    return false;
  }
  if (CallsForQuotes(std::string_view(value, size), classes)) {
    const size_t quoted = QuotedSize(value, size);
    ascii_.Extend(quoted - size);
    QuoteInPlace(ascii_.data() + start, size, quoted);
  }
  return true;
}

// A value that comes first is kept until the type stands in front of it.
bool NameRenderer::RenderWide(ByteView rdn) {
  const size_t before = wide_.size();
  bool has_type = false;
  std::wstring kept;
  Status dropped = Status::kOk;
  const bool rendered = ReadRdn(
      rdn, &dropped,
      [&](ByteView type) {
        if (before != 0) AppendAscii(separator_, &wide_);
        has_type = AppendWideType(type);
        wide_.append(kept);
        return has_type;
      },
      [&](const Element& value) { return AppendWideValue(value, has_type ? &wide_ : &kept); });
  if (!rendered) wide_.resize(before);
  return rendered;
}

bool NameRenderer::AppendWideType(ByteView content) {
  TypeText type;
  if (!DecodeAttrOid(content, &type)) return false;
  if (style_ == kStyleValues) return true;
  AppendType(type, style_, &wide_);
  wide_.push_back(L'=');
  return true;
}

bool NameRenderer::AppendWideValue(const Element& child, std::wstring* text) {
  const size_t start = text->size();
  if (!DecodeAttrData(child, text)) return false;
  EscapeAttrAuxSym(start, text);
  return true;
}

}  // namespace Ortholan
