#include "strict/names/text_error.h"

#include <algorithm>
#include <iterator>

#include "bytes/hex.h"
#include "bytes/utf8_scalar.h"
#include "strict/der/reader.h"
#include "strict/der/refusal.h"
#include "strict/der/string_value.h"
#include "strict/names/escaped_value.h"

namespace Ortholan::strict {
namespace {

// How much of the text a refusal is about.
enum class Extent : uint8_t { kCharacter, kEscaped, kPair, kPart };

struct Row {
  ortholan_reason reason;
  Extent extent;
  const char* expected;
};

constexpr Row kRows[] = {
    {ORTHOLAN_REASON_TEXT_UTF8, Extent::kCharacter, "text in UTF-8"},
    {ORTHOLAN_REASON_TEXT_NO_TYPE, Extent::kCharacter, "a type such as CN, \"=\" and a value"},
    {ORTHOLAN_REASON_TEXT_NO_EQUALS, Extent::kPart,
     "\"=\" and a value behind the type; a comma, plus or semicolon inside a value has a backslash "
     "before it"},
    {ORTHOLAN_REASON_TEXT_TYPE, Extent::kPart,
     "a type of letters, digits and hyphens such as CN, or dotted digits such as 2.5.4.3, before "
     "\"=\""},
    {ORTHOLAN_REASON_TEXT_UNKNOWN_TYPE, Extent::kPart,
     "a type that is known, such as CN, O or emailAddress; any other is written in dotted digits"},
    {ORTHOLAN_REASON_TEXT_OID, Extent::kPart,
     "an object identifier: numbers with dots between them, the first 0 to 2, the second below 40 "
     "behind 0 or 1, none with a zero in front"},
    {ORTHOLAN_REASON_TEXT_PAIR, Extent::kPair,
     "two hexadecimal digits, a blank or one of \\ \" + , ; < > # = behind the backslash; a "
     "backslash of the value is written twice"},
    {ORTHOLAN_REASON_TEXT_UNESCAPED, Extent::kCharacter,
     "a backslash before this character of a value"},
    {ORTHOLAN_REASON_TEXT_HEX, Extent::kCharacter,
     "pairs of hexadecimal digits alone behind \"#\"; a value that begins with \"#\" is written "
     "with a backslash before it"},
    {ORTHOLAN_REASON_TEXT_ELEMENT, Extent::kPair,
     "the digits of one whole element behind \"#\"; a value that begins with \"#\" is "
     "written with a backslash before it"},
    {ORTHOLAN_REASON_TEXT_VALUE_UTF8, Extent::kPair, "escaped octets that are text in UTF-8"},
    {ORTHOLAN_REASON_TEXT_QUOTE, Extent::kCharacter,
     "a closing quote at the end of the value; a quote of the value has a backslash before it"},
    {ORTHOLAN_REASON_TEXT_BEHIND_QUOTE, Extent::kPart,
     "a comma, plus or the end behind the closing quote; a quote of the value has a backslash "
     "before it"},
    {ORTHOLAN_REASON_TEXT_ALPHABET, Extent::kEscaped, ""},
    {ORTHOLAN_REASON_TEXT_LINE, Extent::kEscaped,
     "lines with \"$\" between them, none of them empty; in a line \"$\" is written \\\\24 and a "
     "backslash \\\\5C"},
    {ORTHOLAN_REASON_TEXT_NO_STRING, Extent::kPart,
     "\"#\" and the hexadecimal digits of the value's encoding, because values of this type are no "
     "strings"},
};

const Row* FindRow(ortholan_reason reason) {
  const Row* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                      [reason](const Row& each) { return each.reason == reason; });
  return row != std::end(kRows) ? row : nullptr;
}

const char* AlphabetOf(uint32_t identifier) {
  switch (identifier) {
    case kPrintableString:
      return "letters, digits, blank and '()+,-./:=? alone in a value of this type";
    case kNumericString:
      return "digits and blanks alone in a value of this type";
    default:
      return "ASCII characters alone in a value of this type";
  }
}

size_t CharacterSize(std::string_view text) {
  uint32_t scalar;
  const size_t size = ReadUtf8Scalar(AsBytes(text.data(), text.size()), &scalar);
  return size != 0 ? size : std::min<size_t>(text.size(), 1);
}

size_t CountCharacters(std::string_view text) {
  return static_cast<size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<uint8_t>(c) & 0xC0) != 0x80; }));
}

// Up to "=" or what separates, without the blanks before it.
size_t PartSize(std::string_view text) {
  size_t size = std::min(text.find_first_of("=,;+"), text.size());
  while (size > 1 && text[size - 1] == ' ') --size;
  return std::max(size, CharacterSize(text));
}

// A backslash with what stands behind it, or two digits.
size_t PairSize(std::string_view text) {
  if (text.empty()) return 0;
  const size_t first = CharacterSize(text);
  const size_t size = first + CharacterSize(text.substr(first));
  const bool is_octet = text[0] == '\\' && size < text.size() && IsHexDigit(text[1]);
  return is_octet ? size + CharacterSize(text.substr(size)) : size;
}

size_t MetSize(std::string_view text, Extent extent) {
  switch (extent) {
    case Extent::kPart:
      return PartSize(text);
    case Extent::kPair:
      return PairSize(text);
    case Extent::kEscaped:
      return !text.empty() && text[0] == '\\' ? PairSize(text) : CharacterSize(text);
    default:
      return CharacterSize(text);
  }
}

// What was met, with what cannot be seen escaped, and cut where it is long.
void PutMet(std::string_view met, Output* out) {
  constexpr size_t kMost = 40;
  if (met.empty()) return out->Put("the end of the text");
  size_t shown = 0;
  for (size_t count = 0; shown < met.size() && count < kMost; ++count) {
    shown += CharacterSize(met.substr(shown));
  }
  const size_t before = out->size();
  out->Put('"');
  if (!PutVisible(AsBytes(met.data(), shown), out)) {
    out->Rewind(before);
    out->Put("octet ");
    return PutHex(AsBytes(met.data(), 1), out);
  }
  if (shown < met.size()) out->Put("...");
  out->Put('"');
}

}  // namespace

ortholan_text_error ExplainTextError(std::string_view text, const ortholan_refusal& refusal) {
  const Row* const row = FindRow(refusal.reason);
  const size_t offset = std::min(refusal.offset, text.size());
  if (row == nullptr) return {refusal.reason, offset, 0, 0, ""};
  const bool by_type = refusal.reason == ORTHOLAN_REASON_TEXT_ALPHABET;
  return {refusal.reason, offset, MetSize(text.substr(offset), row->extent),
          CountCharacters(text.substr(0, offset)),
          by_type ? AlphabetOf(refusal.expected) : row->expected};
}

void PutTextSentence(std::string_view text, const ortholan_refusal& refusal, Output* out) {
  const ortholan_text_error error = ExplainTextError(text, refusal);
  if (error.expected[0] == '\0') return out->Put(SentenceOf(refusal.reason));
  PutMet(text.substr(error.offset, error.size), out);
  out->Put(" at character ");
  PutDecimal(error.character + 1, out);
  out->Put(": expected ");
  out->Put(std::string_view(error.expected));
  if (refusal.reason != ORTHOLAN_REASON_TEXT_ELEMENT) return;
  out->Put(" (");
  out->Put(SentenceOf(static_cast<ortholan_reason>(refusal.expected)));
  out->Put(')');
}

}  // namespace Ortholan::strict
