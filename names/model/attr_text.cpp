// One attribute between its text and the platform's structure.
#include <ortholan/name_decoder.h>
#include <ortholan/x509_name.h>

#include <string>
#include <string_view>

#include "bytes/small_buffer.h"
#include "foundation/required_text.h"
#include "foundation/untyped_failure.h"
#include "names/doubled_quotes.h"
#include "names/model/name_failure.h"

namespace Ortholan {
namespace {

// A bit that the encoder keeps and does not act on.
constexpr unsigned long kAttributeOptions = 0x2;

std::string_view TextOf(const char* text) { return text != nullptr ? text : ""; }

void AppendQuoted(std::string_view source, std::string* out) {
  const size_t start = out->size();
  out->append(source);
  QuoteFrom(start, out);
}

std::string Unquoted(std::string_view source) {
  std::string out(source.size(), '\0');
  out.resize(static_cast<size_t>(WriteUnquoted(source, out.data()) - out.data()));
  return out;
}

// Size in characters, terminator included, of the platform's 8-bit text; 0 where it has none. A
// blob with a size and no bytes is not handed to the platform.
DWORD TextSize(DWORD valueType, CERT_RDN_VALUE_BLOB* value) {
  if (value->pbData == nullptr && value->cbData != 0) return 0;
  return CertRDNValueToStrA(valueType, value, nullptr, 0);
}

void ReadValueText(DWORD valueType, CERT_RDN_VALUE_BLOB value, CZEPString* out) {
  const DWORD size = TextSize(valueType, &value);
  if (size == 0) return;
  SmallBuffer<char, 256> text;
  if (CertRDNValueToStrA(valueType, &value, text.Take(size), size) != 0) {
    SetRequiredText(text.data(), out);
  }
}

}  // namespace

void X509Name::QuoteString(const char* src, CZEPString& out) {
  std::string quoted;
  AppendQuoted(TextOf(src), &quoted);
  SetRequiredText(quoted, &out);
}

void X509Name::QuoteString(CZEPString& s) { QuoteString(s.c_str(), s); }

void X509Name::UnquoteString(const char* src, CZEPString& out) {
  SetRequiredText(Unquoted(TextOf(src)), &out);
}

void X509Name::UnquoteString(CZEPString& s) { UnquoteString(s.c_str(), s); }

void X509Name::FormatRDNAttr(const char* key, const char* value, CZEPString& out) {
  std::string text(TextOf(key));
  text.push_back('=');
  AppendQuoted(TextOf(value), &text);
  SetRequiredText(text, &out);
}

void X509Name::MakeRDNAttr(const char* key, const char* value, RDNAttr& out) {
  CZEPString text;
  FormatRDNAttr(key, value, text);
  const X509Name name(text.c_str(), kAttributeOptions, true);
  CertNameInfoWrapper wrapper;
  if (!X500NameDecoder().Decode(name, wrapper)) ThrowUntyped(kNameFailure);
  const CERT_NAME_INFO& info = *static_cast<CERT_NAME_INFO*>(wrapper);
  out.SetBy(info.rgRDN[0].rgRDNAttr[0]);
}

void X509Name::GetRDNAttrValueString(const RDNAttr& attr, CZEPString& out) {
  ReadValueText(attr.valueType, attr.value, &out);
}

void X509Name::GetRDNAttrValueString(const CERT_RDN_ATTR& attr, CZEPString& out) {
  ReadValueText(attr.dwValueType, attr.Value, &out);
}

// Sized by the 8-bit text, which has at least as many characters.
void X509Name::GetRDNAttrValueString(const CERT_RDN_ATTR& attr, std::wstring& out) {
  CERT_RDN_VALUE_BLOB value = attr.Value;
  const DWORD size = TextSize(attr.dwValueType, &value);
  if (size == 0) return;
  SmallBuffer<wchar_t, 256> text;
  if (CertRDNValueToStrW(attr.dwValueType, &value, text.Take(size), size) != 0) out = text.data();
}

RDNAttr::RDNAttr(const char* key, const char* text) { SetBy(key, text); }

void RDNAttr::SetBy(const char* key, const char* text) { X509Name::MakeRDNAttr(key, text, *this); }

void RDNAttr::GetValueString(CZEPString& out) const { X509Name::GetRDNAttrValueString(*this, out); }

}  // namespace Ortholan
