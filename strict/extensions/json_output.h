// JSON on its way out, in one line: commas and quotes are its affair.
//
//   JsonOutput json(&out);
//   json.Begin('{');
//   json.Member("cA");
//   json.Literal("true");
//   json.End('}');
#ifndef ORTHOLAN_STRICT_EXTENSIONS_JSON_OUTPUT_H_
#define ORTHOLAN_STRICT_EXTENSIONS_JSON_OUTPUT_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

class JsonOutput {
 public:
  explicit JsonOutput(Output* out) : out_(out) {}

  void Begin(char bracket);
  void End(char bracket);
  // The name of the next value; it needs no escape.
  void Member(std::string_view name);
  // A value that is written as it stands.
  void Literal(std::string_view text);
  // A string from UTF-8. Quotes, backslashes and what nobody sees are escaped.
  void String(std::string_view text);
  void Hex(ByteView octets);
  void Number(int64_t number);

  // A member and its value.
  void StringMember(std::string_view name, std::string_view text);
  void HexMember(std::string_view name, ByteView octets);

 private:
  void Separate();

  Output* out_;
  bool needs_comma_ = false;
};

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_EXTENSIONS_JSON_OUTPUT_H_
