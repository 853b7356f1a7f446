// types: what the text form of RFC 4514 calls the attributes of names.
#include <optional>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/text.h"

namespace Example {
namespace {

using ortholan::AttributeType;

const char* NameOf(ortholan::ValueSyntax syntax) {
  constexpr const char* kNames[] = {
      "free text",  "PrintableString",         "IA5String",          "NumericString",
      "UTF8String", "IA5String or UTF8String", "lines of free text", "none, # alone"};
  return kNames[static_cast<std::size_t>(syntax)];
}

std::string NamesOf(const AttributeType& type) {
  std::string names(type.name());
  if (type.long_name() != type.name()) names.append(", ").append(type.long_name());
  std::string_view rest = type.aliases();
  while (!rest.empty()) {
    const std::string_view alias = rest.substr(0, rest.find(' '));
    names.append(", ").append(alias);
    rest.remove_prefix(alias.size() < rest.size() ? alias.size() + 1 : rest.size());
  }
  return names;
}

void PrintType(const AttributeType& type) {
  std::string line = ortholan::OidToText(type.oid()).value() + '\t' + NamesOf(type) + '\t' +
                     NameOf(type.syntax()) + '\t';
  if (type.bound() != 0) line += std::to_string(type.bound());
  Print(line + '\n');
}

// By a name or dotted digits.
AttributeType FindType(const std::string& asked) {
  std::optional<AttributeType> type = ortholan::AttributeTypeNamed(asked);
  if (!type) {
    if (const auto oid = ortholan::OidFromText(asked)) type = ortholan::AttributeTypeOf(*oid);
  }
  if (!type) Refuse("no type is called " + asked + "; types without operands lists them");
  return *type;
}

int RunTypes(const Arguments& arguments) {
  for (const std::string& asked : arguments.operands) PrintType(FindType(asked));
  if (!arguments.operands.empty()) return 0;
  for (const AttributeType& type : ortholan::AttributeTypes()) PrintType(type);
  return 0;
}

}  // namespace

const Command kTypesCommand = {
    "types",
    RunTypes,
    0,
    kAnyNumber,
    "[TYPE...]",
    "attribute types that the text form of RFC 4514 has names for",
    "Prints a line a type: its identifier, its names, of which the first is written and the "
    "second\n"
    "with --long-names, the string type of its values, and the most characters of one where the\n"
    "standards have a bound, with tabs between them. TYPE is a name in any letter case or dotted\n"
    "digits; without one all types come.\n",
    "x509name types emailAddress 2.5.4.97\n",
    {}};

}  // namespace Example
