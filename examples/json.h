// JSON (RFC 8259) in UTF-8, without white space.
#ifndef ORTHOLAN_EXAMPLES_JSON_H_
#define ORTHOLAN_EXAMPLES_JSON_H_

#include <cstdint>
#include <list>
#include <string>

namespace Example {

// A string. What Visible escapes is escaped; octets that are no UTF-8 and surrogates without a
// partner become U+FFFD, as many parsers refuse a text with such.
std::string JsonString(const std::string& text);
std::string JsonString(const std::wstring& text);

std::string JsonArray(const std::list<std::string>& values);

// An object, member by member; `value` is JSON.
class JsonObject {
 public:
  JsonObject& Add(const char* name, const std::string& value);
  JsonObject& AddText(const char* name, const std::wstring& text);
  JsonObject& AddText(const char* name, const std::string& text);
  JsonObject& AddNumber(const char* name, std::uint64_t number);
  JsonObject& AddBool(const char* name, bool value);

  std::string End() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_JSON_H_
