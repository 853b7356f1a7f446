#include "examples/json.h"

#include <ortholan/der_helper.h>
#include <ortholan/platform.h>

#include <cstddef>

#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

bool IsHigh(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLow(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::string JsonString(const std::wstring& text) {
  std::wstring quoted = L"\"";
  quoted.reserve(text.size() + 2);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t unit = text[i];
    if (IsHigh(unit) && i + 1 < text.size() && IsLow(text[i + 1])) {
      quoted += unit;
      quoted += text[++i];
    } else if (unit == L'"' || unit == L'\\') {
      quoted += L'\\';
      quoted += unit;
    } else if (IsHidden(unit) || IsHigh(unit) || IsLow(unit)) {
      quoted += UnitEscape(unit);
    } else {
      quoted += unit;
    }
  }
  return ToUtf8(quoted + L"\"");
}

std::string JsonString(const std::string& text) {
  return JsonString(DerHelper::ToWString(text, CP_UTF8));
}

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
