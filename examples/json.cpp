#include "examples/json.h"

#include <cstdio>
#include <string_view>

#include "examples/text.h"

namespace Example {
namespace {

std::string UnitEscape(unsigned unit) {
  char escape[8];
  std::snprintf(escape, sizeof escape, "\\u%04X", unit & 0xFFFFU);
  return escape;
}

// RFC 8259 7: a pair of surrogates outside the basic plane.
std::string JsonEscape(char32_t character) {
  const auto value = static_cast<unsigned>(character);
  if (value <= 0xFFFF) return UnitEscape(value);
  return UnitEscape(0xD800 + ((value - 0x10000) >> 10)) + UnitEscape(0xDC00 + (value & 0x3FF));
}

}  // namespace

std::string JsonString(const std::string& text) {
  const std::string repaired = Repaired(text);
  std::string quoted = "\"";
  quoted.reserve(repaired.size() + 2);
  for (std::string_view rest = repaired; !rest.empty();) {
    const char* const start = rest.data();
    const char32_t character = TakeCharacter(rest);
    if (character == U'"' || character == U'\\') quoted += '\\';
    if (IsHidden(character)) {
      quoted += JsonEscape(character);
    } else {
      quoted.append(start, rest.data());
    }
  }
  return quoted + "\"";
}

std::string JsonString(const std::wstring& text) { return JsonString(ToUtf8(text)); }

std::string JsonArray(const std::list<std::string>& values) {
  std::string array = "[";
  for (const std::string& value : values) array += (&value == &values.front() ? "" : ",") + value;
  return array + "]";
}

JsonObject& JsonObject::Add(const char* name, const std::string& value) {
  if (!members_.empty()) members_ += ",";
  members_ += "\"" + std::string(name) + "\":" + value;
  return *this;
}

JsonObject& JsonObject::AddText(const char* name, const std::wstring& text) {
  return Add(name, JsonString(text));
}

JsonObject& JsonObject::AddText(const char* name, const std::string& text) {
  return Add(name, JsonString(text));
}

JsonObject& JsonObject::AddNumber(const char* name, std::uint64_t number) {
  return Add(name, std::to_string(number));
}

JsonObject& JsonObject::AddBool(const char* name, bool value) {
  return Add(name, value ? "true" : "false");
}

}  // namespace Example
