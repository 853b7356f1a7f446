#include "examples/help.h"

#include <cstddef>
#include <string_view>

#include "examples/colour.h"

namespace Example {
namespace {

constexpr std::size_t kColumn = 18;

constexpr char kExamples[] =
    R"(  x509name encode --sort 'CN=Alpha, O=Org, C=RU'
  x509name decode 3010310E300C06035504031305416C706861
  x509name show server.pem
  x509name show --json bundle.pem | jq -r '.[].subject.text'
)";

constexpr char kArguments[] = R"(
A NAME or RECORD is hexadecimal digits, base64, a FILE (its DER, or text in one of these forms or
PEM), or "-" for standard input, which FILE and TEXT take as well. Text is UTF-8.

Exit status: 0 done, 1 refused or failed, 2 wrong usage.
`x509name COMMAND --help` tells the options of a command, `man x509name` everything.
)";

std::string Heading(const char* text) { return "\n" + Paint(Colour::kHeading, text) + "\n"; }

// `left` in its column, `right` beside it, line under line.
std::string Row(const std::string& left, std::string_view right) {
  std::string row = "  " + Paint(Colour::kKey, left);
  row.append(left.size() + 2 < kColumn ? kColumn - left.size() - 2 : 1, ' ');
  for (const char character : right) {
    row += character;
    if (character == '\n') row.append(kColumn, ' ');
  }
  return row + "\n";
}

std::string Indented(std::string_view lines) {
  std::string text;
  for (const char character : lines) {
    if (text.empty() || text.back() == '\n') text += "  ";
    text += character;
  }
  return text;
}

}  // namespace

namespace {

std::string OptionRow(const Option& option) {
  std::string left = option.name;
  if (option.argument != nullptr) left += std::string(" ") + option.argument;
  return Row(left, option.about);
}

}  // namespace

std::string ProgramHelp() {
  std::string text =
      "usage: x509name COMMAND [OPTION]... ARGUMENT...\n"
      "Converts, shows and compares names of X.509 certificates.\n";
  text += Heading("Commands");
  for (const Command* command : AllCommands()) text += Row(command->name, command->about);
  text += Heading("Options");
  for (const Option& option : CommonOptions()) text += OptionRow(option);
  text += Row("--version", "the version");
  return text + Heading("Examples") + kExamples + kArguments;
}

std::string UsageLine(const Command& command) {
  std::string line = std::string("usage: x509name ") + command.name;
  for (const Option& option : OptionsOf(command)) {
    line += std::string(" [") + option.name;
    if (option.argument != nullptr) line += std::string(" ") + option.argument;
    line += "]";
  }
  return line + " " + command.operands;
}

std::string CommandHelp(const Command& command) {
  std::string text = UsageLine(command) + "\n" + command.details;
  if (!OptionsOf(command).empty()) text += Heading("Options");
  for (const Option& option : OptionsOf(command)) text += OptionRow(option);
  return text + Heading("Examples") + Indented(command.examples);
}

}  // namespace Example
