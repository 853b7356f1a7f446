#include "platform/string_value.h"

#include <cstring>
#include <limits>
#include <vector>

#include "bytes/der_length.h"

namespace Ortholan {
namespace {

constexpr DWORD kEncodings = X509_ASN_ENCODING | PKCS_7_ASN_ENCODING;

// Characters as the 8-bit or UTF-16LE bytes that the platform takes, where they are not that yet.
class CharacterBytes {
 public:
  template <typename To, typename From>
  const BYTE* Convert(const From* text, size_t count) {
    const size_t size = count * sizeof(To);
    if (size > sizeof(local_)) heap_.resize(size);
    BYTE* const bytes = size > sizeof(local_) ? heap_.data() : local_;
    for (size_t i = 0; i < count; ++i) {
      const To character = static_cast<To>(text[i]);
      std::memcpy(bytes + i * sizeof(To), &character, sizeof(To));
    }
    return bytes;
  }

 private:
  BYTE local_[512];
  std::vector<BYTE> heap_;
};

bool IsEightBit(DWORD valueType) {
  return valueType == CERT_RDN_PRINTABLE_STRING || valueType == CERT_RDN_IA5_STRING;
}

bool Encode(DWORD valueType, const BYTE* bytes, size_t count, BYTE* out, size_t content) {
  if (count > std::numeric_limits<DWORD>::max()) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return false;
  }
  // The platform takes a pointer that could be written through, and does not.
  const CERT_NAME_VALUE value = {valueType, {static_cast<DWORD>(count), const_cast<BYTE*>(bytes)}};
  const uint64_t size = ElementSize(content);
  DWORD written = static_cast<DWORD>(size);
  return CryptEncodeObject(kEncodings, X509_NAME_VALUE, &value, out, &written) && written == size;
}

// Universal, primitive strings alone: what a constructed form would be read as differs between
// versions of the platform.
bool IsPrimitiveString(BYTE tag) {
  return tag == 0x0C || tag == 0x13 || tag == 0x14 || tag == 0x16 || tag == 0x1A || tag == 0x1E;
}

}  // namespace

bool EncodeStringValue(DWORD valueType, const char* ascii, size_t count, BYTE* out,
                       size_t content) {
  if (IsEightBit(valueType)) {
    return Encode(valueType, reinterpret_cast<const BYTE*>(ascii), count, out, content);
  }
  CharacterBytes bytes;
  return Encode(valueType, bytes.Convert<wchar_t>(ascii, count), 2 * count, out, content);
}

bool EncodeStringValue(DWORD valueType, const wchar_t* text, size_t count, BYTE* out,
                       size_t content) {
  if (!IsEightBit(valueType)) {
    return Encode(valueType, reinterpret_cast<const BYTE*>(text), 2 * count, out, content);
  }
  CharacterBytes bytes;
  return Encode(valueType, bytes.Convert<char>(text, count), count, out, content);
}

bool StringValue::Decode(const BYTE* element, size_t size) {
  if (size == 0 || !IsPrimitiveString(element[0])) {
    SetLastError(static_cast<DWORD>(size == 0 ? CRYPT_E_ASN1_CORRUPT : CRYPT_E_ASN1_BADTAG));
    return false;
  }
  // UTF-8 grows most: two bytes of UTF-16 an octet. Where the platform wants more it says so.
  uint64_t room = sizeof(CERT_NAME_VALUE) + 2 * static_cast<uint64_t>(size);
  for (;;) {
    if (room > std::numeric_limits<DWORD>::max()) {
      SetLastError(ERROR_NOT_ENOUGH_MEMORY);
      return false;
    }
    BYTE* const out = Take(static_cast<size_t>(room));
    std::memset(out, 0, sizeof(CERT_NAME_VALUE));
    DWORD needed = static_cast<DWORD>(room);
    if (CryptDecodeObject(kEncodings, X509_NAME_VALUE, element, static_cast<DWORD>(size), 0, out,
                          &needed)) {
      const auto* value = reinterpret_cast<const CERT_NAME_VALUE*>(out);
      data_ = value->Value.pbData;
      size_ = data_ != nullptr ? value->Value.cbData : 0;
      is_utf16_ = element[0] == 0x0C || element[0] == 0x1E;
      return true;
    }
    if (GetLastError() != ERROR_MORE_DATA || needed <= room) return false;
    room = needed;
  }
}

}  // namespace Ortholan
