// Name text to elements: tokens, and the sequence that they have to come in.
#ifndef ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
#define ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_

#include <ortholan/name_text_error.h>
#include <ortholan/platform.h>

#include <cstdint>
#include <iterator>
#include <string_view>
#include <vector>

#include "bytes/arena.h"
#include "foundation/chunked_list.h"
#include "names/attribute_table.h"
#include "names/encoder/alphabets.h"
#include "names/encoder/type_resolver.h"
#include "names/encoder/value_chars.h"

namespace Ortholan {

// One `type = value` of the text, packed: a text may have millions.
template <typename Char>
class NameElem {
 public:
  using View = std::basic_string_view<Char>;

  void Set(const AttributeRow* row, View value, unsigned classes) {
    const auto place = row != nullptr ? static_cast<uint64_t>(row - kAttributes) : kNoRow;
    text_ = value.data();
    packed_ =
        uint64_t{value.size()} << kLengthShift | place << kRowShift | classes << kClassesShift;
  }
  // What was decided about the value.
  void Plan(DWORD type) { packed_ |= type; }

  // Null: the type text resolved to nothing.
  const AttributeRow* row() const {
    const size_t place = packed_ >> kRowShift & kNoRow;
    return place != kNoRow ? &kAttributes[place] : nullptr;
  }
  // Quotes removed, trimmed.
  View value() const { return {text_, static_cast<size_t>(packed_ >> kLengthShift)}; }
  // The alphabets that all of the value is in.
  unsigned classes() const { return packed_ >> kClassesShift & kInBoth; }
  // CERT_RDN_* that the value is written as.
  DWORD type() const { return packed_ & kTypeMask; }

 private:
  // No text is so long that its length lacks the bits for the rest.
  static constexpr unsigned kLengthShift = 16;
  static constexpr unsigned kRowShift = 8;
  static constexpr unsigned kClassesShift = 6;
  static constexpr uint64_t kTypeMask = 0x3F;
  static constexpr uint64_t kNoRow = 0xFF;
  static_assert(std::size(kAttributes) < kNoRow && kInBoth < 4);

  const Char* text_;
  uint64_t packed_;
};

template <typename Char>
using NameElems = ChunkedList<NameElem<Char>, 16>;

// Parses one text: UTF-16 in wide characters, or ASCII in bytes, which most texts are and which
// goes faster. The elements' values are views into the text, or into the parser where a doubled
// quote had to be written once: both must outlive them.
template <typename Char>
class NameParser {
 public:
  using View = std::basic_string_view<Char>;

  // `unfinished` is what the text before this one left behind, null for a fresh start: the type of
  // the element that it broke off in.
  NameParser(View trimmedText, DWORD options, const AttributeRow* unfinished);

  // The whole sequence. False where the text is no such sequence; fault() and stop() tell why and
  // where then.
  bool Parse_NameElems();

  NameElems<Char>& elements() { return elements_; }
  const AttributeRow* unfinished() const { return row_; }

  NameTextFault fault() const { return fault_; }
  // What stands where the text is refused: empty, at the end of the text or where something lacks.
  View stop() const { return stop_; }
  // Type text of the last element that was begun.
  View last_type() const { return type_; }
  // Where the text has the character that a value has at `at`.
  const Char* Origin(const Char* at) const;

 private:
  enum class TokenKind { kEnd, kType, kValue, kDelimiter, kEquals };

  bool IsElementDelimiter(Char c) const { return chars_.Ends(c); }
  bool AtEnd() const { return next_ == end_; }
  View Rest() const { return {next_, static_cast<size_t>(end_ - next_)}; }

  // Reads the next token. False where the text breaks off: behind "=", or in a type.
  bool GetToken();
  bool ReadType();
  void ReadUnquotedValue();
  void ReadQuotedValue();
  View Unescape(View quoted, size_t doubled);

  bool GetToken(TokenKind kind) { return GetToken() && kind_ == kind; }
  // Keeps why and where the text is refused; false.
  bool Refuse(NameTextFault fault, View stop);
  bool RefuseToken(NameTextFault fault) { return Refuse(fault, Token()); }
  bool RefuseForType();
  bool RefuseForValue();
  // The last token as it stands in the text.
  View Token() const;

  void AppendElem();
  bool Parse_NameElem();
  bool Parse_ElemType();
  void Parse_ElemValue();
  // The "=" and the value of an element whose type was just read. A text that ends there leaves
  // the value empty.
  bool Parse_ElemComponents();

  const Char* begin_;
  const Char* next_;
  const Char* end_;
  const ValueChars& chars_;
  const TypeResolver types_;
  TokenKind kind_ = TokenKind::kEnd;
  View token_;
  unsigned token_classes_ = 0;  // of a value token, as far as they are known
  // The element being read.
  const AttributeRow* row_;
  View value_;
  unsigned value_classes_ = kInBoth;
  View type_;
  NameElems<Char> elements_;
  Arena unescaped_;
  // Quoted values that were copied, with the text that they came from.
  struct Copy {
    View copy;
    View source;
  };
  std::vector<Copy> copies_;
  NameTextFault fault_ = NameTextFault::kNone;
  View stop_;
};

extern template class NameParser<char>;
extern template class NameParser<wchar_t>;

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_NAME_PARSER_H_
