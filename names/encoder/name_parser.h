// Name text to elements: tokens, and the sequence that they have to come in.
#ifndef ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
#define ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_

#include <ortholan/platform.h>

#include <string>
#include <string_view>

#include "foundation/small_buffer.h"
#include "names/attribute_table.h"
#include "names/encoder/char_class.h"

namespace Ortholan {

// One `type = value` of the text.
struct NameElem {
  const AttributeRow* row = nullptr;  // null: the type text resolved to nothing
  std::wstring_view value;            // quotes removed, trimmed
  unsigned classes = kInBoth;         // the alphabets that all of the value is in
};

using NameElems = SmallBuffer<NameElem, 16>;

// Parses one text. The elements' values are views into the text, or into the parser where a
// doubled quote had to be written once: both must outlive them.
class NameParser {
 public:
  // `unfinished` is what the text before this one left behind, null for a fresh start: the type of
  // the element that it broke off in.
  NameParser(std::wstring_view trimmedText, DWORD options, const AttributeRow* unfinished);

  // The whole sequence. False where the text is no such sequence.
  bool Parse_NameElems();

  NameElems& elements() { return elements_; }
  const AttributeRow* unfinished() const { return current_.row; }

 private:
  enum class TokenKind { kEnd, kType, kValue, kDelimiter, kEquals };

  bool IsElementDelimiter(wchar_t c) const { return (ClassesOf(c) & delimiters_) != 0; }
  bool AtEnd() const { return next_ == end_; }
  std::wstring_view Rest() const { return {next_, static_cast<size_t>(end_ - next_)}; }

  // Reads the next token. False where the text breaks off: behind "=", or in a type.
  bool GetToken();
  bool ReadType();
  void ReadUnquotedValue();
  void ReadQuotedValue();
  std::wstring_view Unescape(std::wstring_view rest, size_t quote);

  bool GetToken(TokenKind kind) { return GetToken() && kind_ == kind; }
  bool Parse_ElemType();
  void Parse_ElemValue();
  // The "=" and the value of an element whose type was just read. A text that ends there leaves
  // the value empty.
  bool Parse_ElemComponents();

  const wchar_t* next_;
  const wchar_t* end_;
  unsigned delimiters_;  // the classes that end an unquoted value
  TokenKind kind_ = TokenKind::kEnd;
  std::wstring_view token_;
  unsigned token_classes_ = 0;  // of a value token, as far as they are known
  NameElem current_;
  NameElems elements_;
  std::wstring unescaped_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
