// A value as the platform's structures hold it.
#ifndef ORTHOLAN_NAMES_DECODER_STRUCTURED_VALUE_H_
#define ORTHOLAN_NAMES_DECODER_STRUCTURED_VALUE_H_

#include <ortholan/platform.h>

#include <string>
#include <string_view>

#include "names/decoder/value_text.h"

namespace Ortholan {

class DecodedAttribute;

// UTF-16LE with four zero bytes behind the text (CERT_RDN_UNICODE_STRING), or, where the value
// cannot be decoded, its encoding (CERT_RDN_ENCODED_BLOB). One object serves many values, each of
// which has to live until Write.
class StructuredValue {
 public:
  // False with last error 8 for a text of 4 GiB or more.
  bool Read(const Element& value);
  bool Read(const DecodedAttribute& attribute);

  DWORD type() const { return kind_ == Kind::kEncoding ? kEncoded : CERT_RDN_UNICODE_STRING; }
  DWORD size() const { return size_; }
  // Writes size() bytes.
  void Write(BYTE* out) const;

 private:
  enum class Kind { kAscii, kWide, kEncoding };
  static constexpr DWORD kEncoded = CERT_RDN_ENCODED_BLOB;

  bool ReadAscii(std::string_view text);
  bool ReadOther(const Element& value);
  bool SetTextSize(size_t units);

  Kind kind_ = Kind::kEncoding;
  DWORD size_ = 0;
  std::string_view ascii_;
  std::wstring wide_;
  ByteView encoding_;
  AsciiValue decoded_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_STRUCTURED_VALUE_H_
