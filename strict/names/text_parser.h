// The text of a name taken apart (RFC 4514 section 3, and what RFC 2253 section 4 asks to accept:
// ";" for ",", quoted values, "OID." before a dotted type, blanks round what separates). Types and
// values stay as they are written.
//
//   TextParser parser(text, &refusal);
//   for (TextAttribute attribute; parser.Next(&attribute);) ...
//   if (refusal) ...
#ifndef ORTHOLAN_STRICT_NAMES_TEXT_PARSER_H_
#define ORTHOLAN_STRICT_NAMES_TEXT_PARSER_H_

#include <string_view>

#include "strict/der/refusal.h"

namespace Ortholan::strict {

enum class ValueForm : uint8_t { kString, kHex };

struct TextAttribute {
  std::string_view type;  // a descriptor, or dotted text without "OID." before it
  bool dotted = false;
  ValueForm form = ValueForm::kString;
  // Without the blanks round it, the quotes or the "#".
  std::string_view value;
  size_t octets = 0;  // of the value when it is unescaped or read from its digits
  bool begins_rdn = false;
};

class TextParser {
 public:
  // Refuses text that is not UTF-8.
  TextParser(std::string_view text, Refusal* refusal);

  // The next attribute in the order of the text. False at the end and after a refusal.
  bool Next(TextAttribute* attribute);

 private:
  char Here() const { return position_ < text_.size() ? text_[position_] : '\0'; }
  bool AtEnd() const { return position_ == text_.size(); }
  // The end, or one of , ; +
  bool AtSeparator() const;
  void SkipBlanks();
  bool ReadType(TextAttribute* attribute);
  bool RefuseType(size_t start);
  bool ReadValue(TextAttribute* attribute);
  bool ReadHex(TextAttribute* attribute);
  bool ReadQuoted(TextAttribute* attribute);
  bool ReadPlain(TextAttribute* attribute);
  bool SkipPair();
  bool EndValue();
  bool RefuseAt(ortholan_reason reason, size_t position);

  std::string_view text_;
  Refusal* refusal_;
  size_t position_ = 0;
  bool more_ = false;  // an attribute has to stand here
  bool begins_rdn_ = true;
};

// Writes the octets of a string value, whose pairs are in order, to `out`: as many as the parser
// told.
void Unescape(std::string_view value, uint8_t* out);
// The place in the value of the octet number `offset` of what is unescaped.
size_t PlaceOf(size_t offset, std::string_view value);

// Writes what the digits of a value stand for.
void ReadHexDigits(std::string_view digits, uint8_t* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_NAMES_TEXT_PARSER_H_
