// What there is to show, as plain values: neither where it was read from nor how it is printed.
//
//   Value usage = Value::List();
//   usage.Add(Value::Text("keyCertSign"));
#ifndef ORTHOLAN_EXAMPLES_VALUE_H_
#define ORTHOLAN_EXAMPLES_VALUE_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Example {

struct Member;

struct Value {
  enum class Form {
    kText,
    kOctets,   // hexadecimal digits
    kLiteral,  // a number, true, false
    kList,     // members without names
    kObject,   // members with names
    kLine,     // an object whose first two members, both texts, tell it in one line
  };

  static Value Text(std::string text) { return {Form::kText, std::move(text), {}}; }
  static Value Octets(std::string_view octets);
  static Value Number(std::uint64_t number) { return {Form::kLiteral, std::to_string(number), {}}; }
  static Value Bool(bool value) { return {Form::kLiteral, value ? "true" : "false", {}}; }
  static Value List() { return {Form::kList, {}, {}}; }
  static Value Object() { return {Form::kObject, {}, {}}; }
  static Value Line(std::string_view name, const std::string& first, const std::string& text);

  // What could not be read.
  static Value Unread(std::string_view octets);
  bool IsUnread() const;

  Value& Add(Value member);
  Value& Add(std::string_view name, Value member);

  Form form = Form::kText;
  std::string text;  // UTF-8
  std::vector<Member> members;
};

struct Member {
  std::string name;
  Value value;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_VALUE_H_
