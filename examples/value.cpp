#include "examples/value.h"

#include "examples/text.h"

namespace Example {

Value Value::Octets(std::string_view octets) { return {Form::kOctets, Hex(octets), {}}; }

Value Value::Line(std::string_view name, const std::string& first, const std::string& text) {
  Value value{Form::kLine, {}, {}};
  return value.Add(name, Text(first)).Add("text", Text(text));
}

Value Value::Unread(std::string_view octets) { return Object().Add("octets", Octets(octets)); }

bool Value::IsUnread() const {
  return form == Form::kObject && members.size() == 1 && members[0].name == "octets";
}

Value& Value::Add(Value member) { return Add({}, std::move(member)); }

Value& Value::Add(std::string_view name, Value member) {
  members.push_back({std::string(name), std::move(member)});
  return *this;
}

}  // namespace Example
