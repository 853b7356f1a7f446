#include "strict/extensions/json_value.h"

#include <ortholan/strict/extensions.h>

#include "bytes/ascii.h"
#include "bytes/hex.h"
#include "bytes/nesting_limit.h"
#include "bytes/utf16.h"
#include "strict/der/string_value.h"

namespace Ortholan::strict {
namespace {

constexpr size_t kMostDigits = 16;  // of 2^53

struct Literal {
  std::string_view word;
  JsonForm form;
};
constexpr Literal kLiterals[] = {
    {"null", JsonForm::kNull}, {"true", JsonForm::kTrue}, {"false", JsonForm::kFalse}};

struct Escape {
  char letter;
  char character;
};
constexpr Escape kEscapes[] = {{'"', '"'},  {'\\', '\\'}, {'/', '/'},  {'b', '\b'},
                               {'f', '\f'}, {'n', '\n'},  {'r', '\r'}, {'t', '\t'}};

void AppendUtf8(uint32_t scalar, std::string* text) {
  uint8_t octets[4];
  text->append(AsText({octets, static_cast<size_t>(WriteUtf8Scalar(octets, scalar) - octets)}));
}

class Parser {
 public:
  Parser(std::string_view text, Refusal* refusal) : rest_(text), refusal_(refusal) {}

  bool ReadWhole(JsonValue* value) {
    if (!ReadValue(value, kMaxNesting)) return false;
    SkipBlanks();
    return rest_.empty() || Fail();
  }

 private:
  bool Fail(ortholan_reason reason = ORTHOLAN_REASON_JSON) { return FailAt(rest_, reason); }
  bool FailAt(std::string_view place, ortholan_reason reason = ORTHOLAN_REASON_JSON) {
    return RefuseText(refusal_, reason, place);
  }

  void SkipBlanks() {
    const size_t blanks = rest_.find_first_not_of(" \t\n\r");
    rest_.remove_prefix(blanks == std::string_view::npos ? rest_.size() : blanks);
  }
  bool Sees(char c) const { return !rest_.empty() && rest_.front() == c; }
  bool Take(char c) {
    if (!Sees(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool ReadValue(JsonValue* value, size_t depth) {
    SkipBlanks();
    value->rest = rest_;
    if (depth == 0 && (Sees('{') || Sees('['))) return Fail(ORTHOLAN_REASON_JSON_DEPTH);
    if (Take('{')) return ReadMembers(value, '}', depth);
    if (Take('[')) return ReadMembers(value, ']', depth);
    if (Sees('"')) {
      value->form = JsonForm::kString;
      return ReadString(&value->text);
    }
    for (const Literal& literal : kLiterals) {
      if (rest_.substr(0, literal.word.size()) != literal.word) continue;
      value->form = literal.form;
      rest_.remove_prefix(literal.word.size());
      return true;
    }
    return ReadNumber(value);
  }

  // What stands between brackets, the first of which was taken.
  bool ReadMembers(JsonValue* value, char end, size_t depth) {
    value->form = end == '}' ? JsonForm::kObject : JsonForm::kArray;
    SkipBlanks();
    if (Take(end)) return true;
    do {
      value->members.emplace_back();
      JsonMember& member = value->members.back();
      if (end == '}' && !ReadName(&member)) return false;
      if (!ReadValue(&member.value, depth - 1)) return false;
      SkipBlanks();
    } while (Take(','));
    return Take(end) || Fail();
  }

  bool ReadName(JsonMember* member) {
    SkipBlanks();
    member->rest = rest_;
    if (!Sees('"')) return Fail();
    if (!ReadString(&member->name)) return false;
    SkipBlanks();
    return Take(':') || Fail();
  }

  bool ReadString(std::string* text) {
    Take('"');
    while (!Take('"')) {
      if (Sees('\\') ? !ReadEscape(text) : !ReadCharacter(text)) return false;
    }
    return true;
  }

  bool ReadCharacter(std::string* text) {
    uint32_t scalar = 0;
    const size_t size = ReadUtf8Scalar(AsBytes(rest_.data(), rest_.size()), &scalar);
    if (size == 0 || scalar < 0x20) return Fail();
    text->append(rest_.substr(0, size));
    rest_.remove_prefix(size);
    return true;
  }

  bool ReadEscape(std::string* text) {
    const std::string_view place = rest_;
    Take('\\');
    for (const Escape& escape : kEscapes) {
      if (!Take(escape.letter)) continue;
      *text += escape.character;
      return true;
    }
    uint32_t unit = 0;
    if (!ReadUnit(&unit)) return FailAt(place);
    if (!IsHighSurrogate(unit)) {
      if (IsLowSurrogate(unit)) return FailAt(place);
      AppendUtf8(unit, text);
      return true;
    }
    uint32_t low = 0;
    if (!Take('\\') || !ReadUnit(&low) || !IsLowSurrogate(low)) return FailAt(place);
    AppendUtf8(0x10000 + ((unit & 0x3FF) << 10 | (low & 0x3FF)), text);
    return true;
  }

  // "u" and four hexadecimal digits.
  bool ReadUnit(uint32_t* unit) {
    if (!Take('u') || rest_.size() < 4) return false;
    for (const char c : rest_.substr(0, 4)) {
      const int digit = HexDigitValue(c);
      if (digit < 0) return false;
      *unit = *unit << 4 | static_cast<uint32_t>(digit);
    }
    rest_.remove_prefix(4);
    return true;
  }

  bool TakeDigits() {
    size_t count = 0;
    while (count < rest_.size() && IsAsciiDigit(static_cast<uint8_t>(rest_[count]))) ++count;
    rest_.remove_prefix(count);
    return count != 0 || Fail();
  }

  bool ReadNumber(JsonValue* value) {
    Take('-');
    if (!Take('0') && !TakeDigits()) return false;
    if (Take('.') && !TakeDigits()) return false;
    if (Take('e') || Take('E')) {
      if (!Take('+')) Take('-');
      if (!TakeDigits()) return false;
    }
    value->form = JsonForm::kNumber;
    value->text.assign(value->rest.substr(0, value->rest.size() - rest_.size()));
    return true;
  }

  std::string_view rest_;
  Refusal* refusal_;
};

}  // namespace

bool JsonValue::IsInteger(int64_t* number) const {
  if (form != JsonForm::kNumber) return false;
  const bool is_negative = text[0] == '-';
  const std::string_view digits = std::string_view(text).substr(is_negative ? 1 : 0);
  if (digits.size() > kMostDigits) return false;
  int64_t size = 0;
  for (const char c : digits) {
    if (!IsAsciiDigit(static_cast<uint8_t>(c))) return false;
    size = size * 10 + (c - '0');
  }
  *number = is_negative ? -size : size;
  return size < INT64_C(1) << 53;
}

bool ReadJson(std::string_view text, JsonValue* value, Refusal* refusal) {
  return Parser(text, refusal).ReadWhole(value);
}

}  // namespace Ortholan::strict
