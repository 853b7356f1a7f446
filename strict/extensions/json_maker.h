// JSON made by the program instead of read, so that all values are written by one writer.
//
//   JsonValue constraints = JsonObject();
//   AddMember("cA", JsonOf(true), &constraints);
#ifndef ORTHOLAN_STRICT_EXTENSIONS_JSON_MAKER_H_
#define ORTHOLAN_STRICT_EXTENSIONS_JSON_MAKER_H_

#include <string>
#include <utility>

#include "strict/der/output.h"
#include "strict/extensions/json_value.h"
#include "strict/extensions/leaf_text.h"

namespace Ortholan::strict {

// These throw std::bad_alloc.

inline JsonValue JsonOf(bool flag) {
  JsonValue value;
  value.form = flag ? JsonForm::kTrue : JsonForm::kFalse;
  return value;
}
inline JsonValue JsonOf(int64_t number) {
  JsonValue value;
  value.form = JsonForm::kNumber;
  value.text = std::to_string(number);
  return value;
}
inline JsonValue JsonOf(std::string text) {
  JsonValue value;
  value.form = JsonForm::kString;
  value.text = std::move(text);
  return value;
}
inline JsonValue JsonOfOctets(ByteView octets) {
  return JsonOf(TextOf([octets](Output* out) { PutHex(octets, out); }));
}

inline void AddElement(JsonValue value, JsonValue* list) {
  list->members.push_back({{}, {}, std::move(value)});
}
inline void AddMember(const char* name, JsonValue value, JsonValue* object) {
  object->members.push_back({name, {}, std::move(value)});
}

inline JsonValue JsonList() {
  JsonValue value;
  value.form = JsonForm::kArray;
  return value;
}
inline JsonValue JsonObject() {
  JsonValue value;
  value.form = JsonForm::kObject;
  return value;
}

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_JSON_MAKER_H_
