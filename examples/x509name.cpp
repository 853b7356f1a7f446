// Names and extensions of X.509 certificates on the command line, built on the library's public
// headers alone.

#include <ortholan/ortholan.h>
#include <ortholan/version.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "examples/arguments.h"
#include "examples/command_table.h"
#include "examples/completion.h"
#include "examples/console.h"
#include "examples/failure.h"
#include "examples/help.h"
#include "examples/input.h"

namespace Example {

using namespace Ortholan;

namespace {

bool IsHelp(const std::string& argument) { return argument == "--help" || argument == "-h"; }

// What the command line asks for in place of a command's work; nothing where it does not.
std::optional<std::string> Information(const std::vector<std::string>& arguments) {
  const std::string& first = arguments[0];
  if (first == "--version" || first == "-V") return "x509name " ORTHOLAN_VERSION_STRING "\n";
  if (first == "--complete") return Completions({arguments.begin() + 1, arguments.end()});
  if (first == "help" && arguments.size() > 1) return CommandHelp(FindCommand(arguments[1]));
  if (IsHelp(first) || first == "help") return ProgramHelp();
  const auto operands = std::find(arguments.begin(), arguments.end(), "--");
  const bool isAsked = std::any_of(arguments.begin(), operands, IsHelp);
  if (!isAsked) return std::nullopt;
  return CommandHelp(FindCommand(first));
}

int Run(const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError{"a command is needed; x509name --help lists them"};
  const std::optional<std::string> information = Information(arguments);
  if (!information) return RunCommand(FindCommand(arguments[0]), arguments);
  Print(*information);
  FinishOutput();
  return 0;
}

int Refuse(const std::vector<std::string>& arguments, const Failure& failure) {
  Report(arguments[0], failure);
  return 1;
}

int RunGuarded(const std::vector<std::string>& arguments) {
  try {
    return Run(arguments);
  } catch (const UsageError& error) {
    ReportLine(error.what);
    return 2;
  } catch (const Failure& failure) {
    return Refuse(arguments, failure);
  } catch (const XZEPStatus& failure) {
    return Refuse(arguments,
                  {ASNTStatusToWinError(failure.GetStatus()), "the data cannot be read"});
  } catch (const std::bad_alloc&) {
    return Refuse(arguments, {ERROR_NOT_ENOUGH_MEMORY, "not enough memory"});
  } catch (...) {
    // What no type catches: the last error says why.
    return Refuse(arguments, {GetLastError(), "the name is not accepted"});
  }
}

}  // namespace
}  // namespace Example

int main(int argc, char** argv) { return Example::RunGuarded(Example::OpenConsole(argc, argv)); }
