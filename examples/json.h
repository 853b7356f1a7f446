// JSON (RFC 8259) in UTF-8, without white space.
#ifndef ORTHOLAN_EXAMPLES_JSON_H_
#define ORTHOLAN_EXAMPLES_JSON_H_

#include <cstdint>
#include <list>
#include <string>

namespace Example {

// A string. What Visible shows as \uXXXX is escaped, and so is a surrogate without its partner,
// which comes back as it was.
std::string JsonString(const std::wstring& text);
// UTF-8; octets that are none become U+FFFD.
std::string JsonString(const std::string& text);

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
