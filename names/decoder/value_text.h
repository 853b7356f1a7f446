// Attribute values as wide text.
#ifndef ORTHOLAN_NAMES_DECODER_VALUE_TEXT_H_
#define ORTHOLAN_NAMES_DECODER_VALUE_TEXT_H_

#include <list>
#include <string>
#include <string_view>

#include "foundation/element_reader.h"
#include "platform/string_value.h"

namespace Ortholan {

// Tag numbers of the strings whose characters are shown.
inline bool IsDecodedString(const Element& value) {
  constexpr DWORD kTags = 1u << kTagUtf8String | 1u << kTagPrintableString |
                          1u << kTagTeletexString | 1u << kTagIA5String | 1u << kTagVisibleString |
                          1u << kTagBmpString;
  return value.header.tag < 32 && (kTags >> value.header.tag & 1) != 0;
}

// The text of a string value in ASCII, as most values are.
class AsciiValue {
 public:
  // False for any other value. The last error is then left to whoever decodes it in full.
  bool Decode(const Element& value);
  std::string_view text() const { return text_; }

 private:
  StringValue decoded_;
  std::string_view text_;
};

// Appends the value's text, by tag number alone:
//   12, 30          the platform's UTF-16 of the string
//   19, 20, 22, 26  the string's octets in the thread's code page
//   16              the texts of the children, nested ones too, that have any, a line each
//   any other       the whole encoding in hexadecimal
// False with the last error set for bytes that are no such value, and for a SEQUENCE nested more
// than kMaxNesting deep; `text` then ends with what was decoded before.
bool DecodeAttrData(const Element& value, std::wstring* text);

// Replaces `texts` by the non-empty texts of the children of a SEQUENCE, or by the one text of
// any other value where it is not empty.
bool DecodeAttrData(const Element& value, std::list<std::wstring>* texts);

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_DECODER_VALUE_TEXT_H_
