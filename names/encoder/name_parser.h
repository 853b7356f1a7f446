// Name text to elements: tokens, and the sequence that they have to come in.
#ifndef ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
#define ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_

#include <ortholan/platform.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/small_buffer.h"
#include "names/attribute_table.h"

namespace Ortholan {

// One `type = value` of the text.
struct NameElem {
  const AttributeRow* row = nullptr;  // null: the type text resolved to nothing
  std::wstring_view value;            // quotes removed, trimmed
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
  enum class TokenKind { kEnd, kType, kValue, kDelimiter, kEquals, kNone };

  bool IsElementDelimiter(wchar_t c) const {
    return static_cast<uint32_t>(c) < 64 && (delimiters_ >> static_cast<uint32_t>(c) & 1) != 0;
  }
  bool AtEnd() const { return position_ >= source_.size(); }

  // Reads the next token. False where the text breaks off: behind "=", or in a type.
  bool GetToken();
  bool ReadType();
  void ReadUnquotedValue();
  void ReadQuotedValue();
  std::wstring_view UnescapeFrom(size_t start, size_t quote);

  bool GetToken(TokenKind kind) { return GetToken() && kind_ == kind; }
  bool Parse_ElemType();
  void Parse_ElemValue();
  // The "=" and the value of an element whose type was just read. A text that ends there leaves
  // the value empty.
  bool Parse_ElemComponents();

  std::wstring_view source_;
  size_t position_ = 0;
  uint64_t delimiters_;  // a bit a character below 64
  TokenKind kind_ = TokenKind::kNone;
  std::wstring_view token_;
  NameElem current_;
  NameElems elements_;
  std::wstring unescaped_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
