#include "platform/string_value.h"

#include <cstring>

#include "platform/posix/der.h"
#include "platform/posix/fail.h"
#include "platform/posix/name_value.h"
#include "platform/posix/utf8.h"

namespace Ortholan {
namespace {

using posix::Bytes;
using posix::Fail;

constexpr BYTE kUtf8Tag = 0x0C;
constexpr BYTE kBmpTag = 0x1E;

constexpr BYTE TagOf(DWORD valueType) {
  switch (valueType) {
    case CERT_RDN_PRINTABLE_STRING:
      return 0x13;
    case CERT_RDN_IA5_STRING:
      return 0x16;
    case CERT_RDN_BMP_STRING:
      return kBmpTag;
    default:
      return kUtf8Tag;
  }
}

constexpr bool IsEightBitTag(BYTE tag) {
  return tag == 0x13 || tag == 0x14 || tag == 0x16 || tag == 0x1A;
}

bool IsAscii(Bytes text) {
  size_t i = 0;
  while (text.size - i >= posix::kRun && posix::IsAsciiRun(text.data + i)) i += posix::kRun;
  while (i < text.size && text.data[i] < 0x80) ++i;
  return i == text.size;
}

BYTE* WriteBigEndian(std::uint32_t unit, BYTE* out) {
  out[0] = static_cast<BYTE>(unit >> 8);
  out[1] = static_cast<BYTE>(unit);
  return out + 2;
}

void WriteBmp(const wchar_t* text, size_t count, BYTE* out) {
  for (size_t i = 0; i < count; ++i) {
    const auto c = static_cast<std::uint32_t>(text[i]);
    if (c <= 0xFFFF) {
      out = WriteBigEndian(c, out);
    } else if (c <= posix::kLastScalar) {
      out = WriteBigEndian(posix::HighSurrogate(c), out);
      out = WriteBigEndian(posix::LowSurrogate(c), out);
    } else {
      out = WriteBigEndian(posix::kReplacement, out);
    }
  }
}

// Content octets of an element of `size` octets in all.
size_t ContentSize(size_t size) {
  for (size_t header = 2;; ++header) {
    if (posix::ElementSize(size - header) == size) return size - header;
  }
}

}  // namespace

bool EncodeStringValue(DWORD valueType, const char* ascii, size_t count, BYTE* out, size_t) {
  if (valueType != CERT_RDN_BMP_STRING) {
    std::memcpy(posix::WriteHeader(TagOf(valueType), count, out), ascii, count);
    return true;
  }
  out = posix::WriteHeader(kBmpTag, 2 * count, out);
  for (size_t i = 0; i < count; ++i) out = WriteBigEndian(static_cast<BYTE>(ascii[i]), out);
  return true;
}

bool EncodeStringValue(DWORD valueType, const wchar_t* text, size_t count, BYTE* out, size_t size) {
  const size_t content = ContentSize(size);
  out = posix::WriteHeader(TagOf(valueType), content, out);
  if (valueType == CERT_RDN_BMP_STRING) {
    WriteBmp(text, count, out);
  } else if (valueType == CERT_RDN_UTF8_STRING) {
    posix::ToUtf8(posix::WideSource{text}, count, posix::ByteWriter{out, content});
  } else {
    for (size_t i = 0; i < count; ++i) out[i] = static_cast<BYTE>(text[i]);
  }
  return true;
}

bool StringValue::Decode(const BYTE* element, size_t size) {
  if (size == 0) return Fail(CRYPT_E_ASN1_CORRUPT) != FALSE;
  const BYTE tag = element[0];
  if (!IsEightBitTag(tag) && tag != kUtf8Tag && tag != kBmpTag) {
    return Fail(CRYPT_E_ASN1_BADTAG) != FALSE;
  }
  posix::Element read;
  if (!posix::ReadElement({element, size}, &read)) return Fail(CRYPT_E_ASN1_CORRUPT) != FALSE;
  const Bytes content = read.content;
  // UTF-8 of ASCII alone is 8-bit text in every code page.
  is_utf16_ = tag == kBmpTag || (tag == kUtf8Tag && !IsAscii(content));
  if (!is_utf16_) {
    data_ = content.data;
    size_ = content.size;
    return true;
  }
  const bool is_bmp = tag == kBmpTag;
  if (is_bmp && content.size % 2 != 0) return Fail(CRYPT_E_ASN1_CORRUPT) != FALSE;
  BYTE* const units = Take(is_bmp ? content.size : 2 * content.size);
  data_ = units;
  size_ = posix::ReadUtf16Le(is_bmp ? CERT_RDN_BMP_STRING : CERT_RDN_UTF8_STRING, content, units);
  return true;
}

}  // namespace Ortholan
