// Single string values of names to and from DER: the platform's X509_NAME_VALUE codec as the
// conversions' inner loop needs it, without a second call for the size and without an allocation
// for values of ordinary length.
#ifndef ORTHOLAN_PLATFORM_STRING_VALUE_H_
#define ORTHOLAN_PLATFORM_STRING_VALUE_H_

#include <ortholan/platform.h>

#include <cstddef>
#include <memory>

namespace Ortholan {

// Writes one string: `count` characters, all in the type's alphabet, as CERT_RDN_PRINTABLE_STRING,
// _IA5_STRING (ASCII), _BMP_STRING or _UTF8_STRING. Its content takes `content` octets, and `out`
// has room for them and a header with a definite, minimal length. False with the last error set
// where the platform refuses; nothing behind the encoding is written then either.
bool EncodeStringValue(DWORD valueType, const char* ascii, size_t count, BYTE* out, size_t content);
bool EncodeStringValue(DWORD valueType, const wchar_t* text, size_t count, BYTE* out,
                       size_t content);

// The content of one string element.
class StringValue {
 public:
  StringValue() noexcept {}
  StringValue(const StringValue&) = delete;
  StringValue& operator=(const StringValue&) = delete;

  // Decodes the element that `size` octets hold. False with the last error set: 0x8009310B for what
  // is no primitive string of tag 12, 19, 20, 22, 26 or 30, 0x80093103 for broken content.
  bool Decode(const BYTE* element, size_t size);

  // The value's bytes, valid as long as this object and the element: 8-bit text in the thread's
  // code page, or UTF-16LE.
  const BYTE* data() const { return data_; }
  size_t size() const { return size_; }
  bool is_utf16() const { return is_utf16_; }

 private:
  static constexpr size_t kLocalBytes = 512;

  // Scratch space of at least `size` bytes.
  BYTE* Take(size_t size);

  const BYTE* data_ = nullptr;
  size_t size_ = 0;
  bool is_utf16_ = false;
  std::unique_ptr<BYTE[]> heap_;
  alignas(std::max_align_t) BYTE local_[kLocalBytes];
};

}  // namespace Ortholan

#endif  // ORTHOLAN_PLATFORM_STRING_VALUE_H_
