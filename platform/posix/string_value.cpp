#include "platform/string_value.h"

#include <cstring>

#include "bytes/ascii.h"
#include "bytes/utf8.h"
#include "platform/posix/der.h"
#include "platform/posix/fail.h"
#include "platform/posix/structures/name_value.h"

namespace Ortholan {
namespace {

using posix::Fail;

constexpr BYTE TagOf(DWORD valueType) {
  switch (valueType) {
    case CERT_RDN_PRINTABLE_STRING:
      return kTagPrintableString;
    case CERT_RDN_IA5_STRING:
      return kTagIA5String;
    case CERT_RDN_BMP_STRING:
      return kTagBmpString;
    default:
      return kTagUtf8String;
  }
}

constexpr bool IsEightBitTag(BYTE tag) {
  return tag == kTagPrintableString || tag == kTagTeletexString || tag == kTagIA5String ||
         tag == kTagVisibleString;
}

}  // namespace

bool EncodeStringValue(DWORD valueType, const char* ascii, size_t count, BYTE* out,
                       size_t content) {
  out = WriteHeader(out, TagOf(valueType), content);
  if (valueType != CERT_RDN_BMP_STRING) {
    std::memcpy(out, ascii, count);
    return true;
  }
  for (size_t i = 0; i < count; ++i) {
    *out++ = 0;
    *out++ = static_cast<BYTE>(ascii[i]);
  }
  return true;
}

bool EncodeStringValue(DWORD valueType, const wchar_t* text, size_t count, BYTE* out,
                       size_t content) {
  out = WriteHeader(out, TagOf(valueType), content);
  if (valueType == CERT_RDN_BMP_STRING) {
    WriteUtf16Be({text, count}, out);
  } else if (valueType == CERT_RDN_UTF8_STRING) {
    ToUtf8(WideSource{text}, count, ByteWriter{out, content});
  } else {
    for (size_t i = 0; i < count; ++i) out[i] = static_cast<BYTE>(text[i]);
  }
  return true;
}

bool StringValue::Decode(const BYTE* element, size_t size) {
  if (size == 0) return Fail<bool>(CRYPT_E_ASN1_CORRUPT);
  const BYTE tag = element[0];
  if (!IsEightBitTag(tag) && tag != kTagUtf8String && tag != kTagBmpString) {
    return Fail<bool>(CRYPT_E_ASN1_BADTAG);
  }
  posix::Element read;
  if (!posix::ReadElement({element, size}, &read)) return Fail<bool>(CRYPT_E_ASN1_CORRUPT);
  const ByteView content = read.content;
  // UTF-8 of ASCII alone is 8-bit text in every code page.
  is_utf16_ = tag == kTagBmpString || (tag == kTagUtf8String && !IsAscii(AsText(content)));
  if (!is_utf16_) {
    data_ = content.data;
    size_ = content.size;
    return true;
  }
  const bool is_bmp = tag == kTagBmpString;
  if (is_bmp && content.size % 2 != 0) return Fail<bool>(CRYPT_E_ASN1_CORRUPT);
  BYTE* const units = Take(is_bmp ? content.size : 2 * content.size);
  data_ = units;
  size_ = posix::ReadUtf16Le(is_bmp ? CERT_RDN_BMP_STRING : CERT_RDN_UTF8_STRING, content, units);
  return true;
}

}  // namespace Ortholan
