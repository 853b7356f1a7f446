// JSON text read to the letter (RFC 8259): what is out of form, nested deeper than 32 or not UTF-8
// is refused at its place. Members keep their order; whether one stands twice is its reader's
// affair.
//
//   JsonValue value;
//   if (!ReadJson("{\"cA\":true}", &value, &refusal)) ...
//   value.form == JsonForm::kObject && value.members[0].name == "cA"
#ifndef ORTHOLAN_STRICT_EXTENSIONS_JSON_VALUE_H_
#define ORTHOLAN_STRICT_EXTENSIONS_JSON_VALUE_H_

#include <string>
#include <string_view>
#include <vector>

#include "strict/der/refusal.h"

namespace Ortholan::strict {

enum class JsonForm : uint8_t { kNull, kTrue, kFalse, kNumber, kString, kArray, kObject };

struct JsonMember;

struct JsonValue {
  JsonForm form = JsonForm::kNull;
  std::string_view rest;            // the text from its first character on
  std::string text;                 // of a string, its characters; of a number, its digits
  std::vector<JsonMember> members;  // of an object; of an array, without names

  bool IsString() const { return form == JsonForm::kString; }
  // A whole number below 2^53 in size, which no reader of JSON has to round.
  bool IsInteger(int64_t* number) const;
};

struct JsonMember {
  std::string name;
  std::string_view rest;  // the text from the name on
  JsonValue value;
};

// Throws std::bad_alloc.
bool ReadJson(std::string_view text, JsonValue* value, Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_JSON_VALUE_H_
