// The character strings of ASN.1 as text: checked, nothing repaired or replaced (X.690 8.23, X.680
// 41). TeletexString is read as Latin-1, as everybody writes it.
//
//   ScalarReader scalars(kBmpString, content);
//   for (uint32_t scalar; scalars.Next(&scalar);) ...
//   if (scalars.broken()) ...
#ifndef ORTHOLAN_STRICT_DER_STRING_VALUE_H_
#define ORTHOLAN_STRICT_DER_STRING_VALUE_H_

#include "bytes/ascii.h"
#include "bytes/byte_view.h"
#include "bytes/utf8_scalar.h"
#include "strict/der/element.h"
#include "strict/der/output.h"

namespace Ortholan::strict {

struct Refusal;

// Bits by tag number.
constexpr uint32_t kAsciiStrings =
    1u << kNumericString | 1u << kPrintableString | 1u << kIA5String | 1u << kVisibleString;
constexpr uint32_t kStrings = kAsciiStrings | 1u << kUtf8String | 1u << kTeletexString |
                              1u << kUniversalString | 1u << kBmpString;

// UTF8String, PrintableString, IA5String, NumericString, VisibleString, TeletexString, BMPString,
// UniversalString.
constexpr bool IsString(uint8_t identifier) {
  return identifier < 0x20 && (kStrings >> identifier & 1) != 0;
}

// Whether each octet of the type is one character of ASCII, so that checked content is its own
// UTF-8.
constexpr bool IsAsciiString(uint8_t identifier) {
  return identifier < 0x20 && (kAsciiStrings >> identifier & 1) != 0;
}

// Whether PrintableString has the character (X.680 41.4).
constexpr bool IsPrintable(uint8_t octet) {
  if (IsAsciiLetter(octet) || IsAsciiDigit(octet)) return true;
  for (const char c : {' ', '\'', '(', ')', '+', ',', '-', '.', '/', ':', '=', '?'}) {
    if (octet == static_cast<uint8_t>(c)) return true;
  }
  return false;
}

// Checks the encoding of what is a string, and its alphabet; refuses at the octet at fault.
bool CheckCharacters(const Element& value, bool checks_alphabet, Refusal* refusal);
// The same where it is a string and the leniency asks for it: the alphabet only with kDer.
inline bool CheckString(const Element& value, Leniency leniency, Refusal* refusal) {
  if (leniency == Leniency::kStructure || !IsString(value.identifier)) return true;
  return CheckCharacters(value, leniency == Leniency::kDer, refusal);
}

// Why the first octet at fault is refused, and where it stands; NONE for a string in order.
struct StringFault {
  ortholan_reason reason = ORTHOLAN_REASON_NONE;
  size_t offset = 0;
};
StringFault FindStringFault(uint8_t identifier, ByteView content, bool checksAlphabet);

// Whether all octets are characters of the type, which is an ASCII string.
bool IsInAlphabet(uint8_t identifier, ByteView content);

// Unicode scalars of a string, one by one; alphabets are not looked at.
class ScalarReader {
 public:
  // `identifier` is that of a string.
  ScalarReader(uint8_t identifier, ByteView content);

  // False at the end, and where the octets are no text.
  bool Next(uint32_t* scalar);
  bool broken() const { return broken_; }
  // What was not read yet, from the broken place on.
  ByteView rest() const { return rest_; }

 private:
  bool NextUtf8(uint32_t* scalar);
  bool NextUnit(uint32_t* scalar);

  ByteView rest_;
  size_t unit_;  // octets a character; 0 for UTF-8
  bool ascii_;
  bool broken_ = false;
};

// Puts a scalar as UTF-8.
void PutUtf8(uint32_t scalar, Output* out);
// Puts checked UTF-8 as the content of a string of the type; refuses the first character that the
// type does not have, with nothing promised of what was put.
StringFault PutString(uint8_t identifier, ByteView text, Output* out);

// Puts the text of a string as UTF-8; false where the octets are no text.
bool PutStringText(uint8_t identifier, ByteView content, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_DER_STRING_VALUE_H_
