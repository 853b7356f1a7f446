// Characters of a general name in its text: "\\" is a backslash, "\0A" an octet.
//
//   UnescapedText text;
//   if (text.Read("a\\\\b\\0A", &refusal)) use(text.octets());   // 61 5C 62 0A
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_

#include <string>
#include <string_view>

#include "strict/der/output.h"
#include "strict/der/refusal.h"

namespace Ortholan::strict {

enum class Characters { kAscii, kUtf8 };

// Puts characters with what cannot be seen, blanks at both ends and those of `ends` escaped.
void PutEscapedText(std::string_view text, Characters characters, std::string_view ends,
                    Output* out);

// What escaped text stands for, as a view of the text where nothing is escaped.
class UnescapedText {
 public:
  // Throws std::bad_alloc. A backslash that escapes nothing is refused.
  bool Read(std::string_view escaped, Refusal* refusal);

  std::string_view text() const { return text_; }
  ByteView octets() const { return AsBytes(text_.data(), text_.size()); }
  // The place in the escaped text of the octet number `offset`.
  const char* PlaceOf(size_t offset) const;

 private:
  std::string_view escaped_;
  std::string storage_;
  std::string_view text_;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_ESCAPED_TEXT_H_
