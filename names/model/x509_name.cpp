#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_options.h>
#include <ortholan/x509_name.h>

#include <cstring>

#include "bytes/ascii.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "foundation/required_text.h"
#include "foundation/untyped_failure.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/name_renderer.h"
#include "names/decoder/structured_value.h"
#include "names/encoder/text_encoder.h"
#include "names/model/name_failure.h"
#include "names/model/thread_text.h"

namespace Ortholan {
namespace {

// Runs one of the encoder's forms into a blob of its own; `name` changes on success alone.
template <typename... Form>
bool EncodeInto(X509Name* name, DWORD options, const Form&... form) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  const auto encode = [&encoder](IdentObj* der, const auto& source, const auto&... sort) {
    return encoder.Encode(source, *der, sort...);
  };
  IdentObj der;
  if (!encode(&der, form...)) return false;
  *name = std::move(der);
  return true;
}

DWORD StructureOptions(bool flag) { return flag ? kEncodeAlwaysUtf8 : 0; }

// With kEncodeUtf8 everything else but kEncodeAlways is dropped, kEncodeUtf8 itself included.
DWORD TextOptions(unsigned long options) {
  const DWORD word = static_cast<DWORD>(options);
  return (word & kEncodeUtf8) != 0 ? word & kEncodeAlways : word;
}

void Require(bool done) {
  if (!done) ThrowUntyped(kNameFailure);
}

// Renders into `text`, which on failure holds the RDNs before the one that failed.
bool Render(const X509Name& name, unsigned long options, std::wstring* text) {
  text->clear();
  if (name.cbData == 0) return true;
  const DWORD word = static_cast<DWORD>(options);
  X500NameDecoder decoder;
  decoder.SetDecoderOptions(word);
  return decoder.Decode(name, *text, word);
}

// The 8-bit readers: `out` changes on success alone. ASCII needs no conversion.
bool RenderNarrow(const X509Name& name, unsigned long options, std::string* out) {
  const DWORD word = static_cast<DWORD>(options);
  NameRenderer renderer(word & kStyleMask, word);
  const ByteView bytes = ViewOf(name);
  if (name.cbData != 0 && (bytes.empty() || !renderer.Render(bytes))) return false;
  const std::string_view ascii = renderer.ascii();
  if (ascii.data() != nullptr) {
    const std::string_view text = ascii.substr(0, ascii.find('\0'));
    *out = text.size() + 1 <= kMaxConvertedText ? text : std::string_view();
  } else {
    *out = ToThreadText(renderer.wide());
  }
  return true;
}

}  // namespace

X509Name::X509Name() noexcept = default;
X509Name::X509Name(const X509Name& other) = default;
X509Name::X509Name(X509Name&& other) noexcept = default;
X509Name::X509Name(const IdentObj& der) : IdentObj(der) {}
X509Name::X509Name(IdentObj&& der) noexcept : IdentObj(std::move(der)) {}
X509Name::X509Name(const CERT_NAME_INFO& info) { SetBy(info, true); }
X509Name::X509Name(const std::list<std::list<RDNAttr>>& rdns) { SetBy(rdns, true); }
X509Name::X509Name(const std::list<SimpleRDN>& list) { SetBy(list, true, true); }
X509Name::X509Name(const char* text, unsigned long options, bool sort) {
  SetBy(text, options, sort);
}
X509Name::~X509Name() = default;

X509Name& X509Name::operator=(const X509Name& other) = default;
X509Name& X509Name::operator=(X509Name&& other) noexcept = default;

X509Name& X509Name::operator=(const IdentObj& der) {
  IdentObj::operator=(der);
  return *this;
}

X509Name& X509Name::operator=(IdentObj&& der) noexcept {
  IdentObj::operator=(std::move(der));
  return *this;
}

X509Name& X509Name::operator=(const CERT_NAME_INFO& info) {
  SetBy(info, true);
  return *this;
}

X509Name& X509Name::operator=(const std::list<std::list<RDNAttr>>& rdns) {
  SetBy(rdns, true);
  return *this;
}

X509Name& X509Name::operator=(const std::list<SimpleRDN>& list) {
  SetBy(list, true, true);
  return *this;
}

void X509Name::SetBy(const CERT_NAME_INFO& info, bool flag) { Require(TrySetBy(info, flag)); }

void X509Name::SetBy(const std::list<std::list<RDNAttr>>& rdns, bool flag) {
  Require(TrySetBy(rdns, flag));
}

void X509Name::SetBy(const std::list<SimpleRDN>& list, bool flag, bool sort) {
  Require(TrySetBy(list, flag, sort));
}

void X509Name::SetBy(const char* text, unsigned long options, bool sort) {
  const bool done = TrySetBy(text, options, sort);
  if (!done) Clear();
  Require(done);
}

bool X509Name::TrySetBy(const CERT_NAME_INFO& info, bool flag) {
  return EncodeInto(this, StructureOptions(flag), info);
}

bool X509Name::TrySetBy(const std::list<std::list<RDNAttr>>& rdns, bool flag) {
  return EncodeInto(this, StructureOptions(flag), rdns);
}

bool X509Name::TrySetBy(const std::list<SimpleRDN>& list, bool flag, bool sort) {
  return EncodeInto(this, StructureOptions(flag), list, sort);
}

bool X509Name::TrySetBy(const char* text, unsigned long options, bool sort) {
  if (text == nullptr) return FailWith(Status::kBadArgument);
  const size_t length = std::strlen(text);
  if (length + 1 > kMaxConvertedText) return FailWith(Status::kBadArgument);
  if (IsAscii(std::string_view(text, length))) {
    const AttributeRow* fresh = nullptr;
    IdentObj der;
    const std::string_view ascii(text, length);
    if (!EncodeNameText(ascii, TextOptions(options), sort, &fresh, &der)) return false;
    *this = std::move(der);
    return true;
  }
  std::wstring wide;
  if (Widen({text, length}, kCodePageThreadAnsi, &wide) != Conversion::kDone) return false;
  return EncodeInto(this, TextOptions(options), wide, sort);
}

void X509Name::GetX500String(std::wstring& out, unsigned long options) const {
  Require(Render(*this, options, &out));
}

void X509Name::GetX500String(std::string& out, unsigned long options) const {
  out.clear();
  Require(TryGetX500String(out, options));
}

void X509Name::GetX500String(CZEPString& out, unsigned long options) const {
  out = CZEPString();
  Require(TryGetX500String(out, options));
}

bool X509Name::TryGetX500String(std::wstring& out, unsigned long options) const {
  std::wstring text;
  if (!Render(*this, options, &text)) return false;
  out.swap(text);
  return true;
}

bool X509Name::TryGetX500String(std::string& out, unsigned long options) const {
  return RenderNarrow(*this, options, &out);
}

bool X509Name::TryGetX500String(CZEPString& out, unsigned long options) const {
  std::string text;
  if (!RenderNarrow(*this, options, &text)) return false;
  SetRequiredText(text, &out);
  return true;
}

void X509Name::GetNameInfo(std::list<std::list<RDNAttr>>& out) const {
  out.clear();
  Require(TryGetNameInfo(out));
}

bool X509Name::TryGetNameInfo(std::list<std::list<RDNAttr>>& out) const {
  std::list<std::list<RDNAttr>> rdns;
  StructuredValue value;
  const auto append = [&](const DecodedAttribute& attribute) {
    if (!value.Read(attribute)) return false;
    RDNAttr& attr = rdns.emplace_back().emplace_back();
    SetRequiredText(attribute.type().dotted(), &attr.oid);
    attr.valueType = value.type();
    attr.value.Allocate(value.size());
    value.Write(attr.value.pbData);
    return true;
  };
  if (cbData != 0 && !ForEachAttribute(ViewOf(*this), append)) return false;
  out.swap(rdns);
  return true;
}

}  // namespace Ortholan
