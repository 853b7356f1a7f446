// Names and extensions of X.509 certificates on the command line, built on the library's public
// headers alone.

#include <ortholan/ortholan.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "examples/arguments.h"
#include "examples/commands.h"
#include "examples/console.h"
#include "examples/failure.h"
#include "examples/input.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr char kHelp[] = R"(usage: x509name COMMAND [OPTION]... ARGUMENT...

  encode [--options N] [--sort] [--out FILE] TEXT
                          the DER of a name text as one line of hexadecimal digits,
                          or as octets in FILE; --sort puts the attributes in
                          canonical order, common name last
  decode [--options N] NAME
                          the text of a name; N is the style (1 values, 2 object
                          identifiers, 3 short keys: the default) and the separator
  pairs [--style N] NAME  a line for each RDN: type, tab, values joined by " | "
  get OID NAME            the value of an attribute
  set OID VALUE NAME      the DER of the name with another value for it
  equal A B               exit status 0 for equal names, 1 for others
  show FILE...            certificates, PEM or DER: subject and issuer as text and
                          as a tree, and the extensions
  survey FILE...          count what becomes of the names of certificates on the way
                          to text and back
  extension RECORD        a certificate extension: identifier, critical or not,
                          value, and the record written anew
  general-name NAME       tag and text of a general name

A NAME (A, B, RECORD) is hexadecimal digits, a file or "-" for standard input; files
hold the DER or hexadecimal text. An attribute is found by its OBJECT IDENTIFIER in
dotted form. N is a number in C notation:

  0x04000000  "," separates      0x40000000  ";" separates
  0x08000000  CR LF separates    0x00040000  encode: UTF8String, not BMPString
  0x00100000  with 0x00040000: every free text as UTF8String

Text is UTF-8. Exit status: 0 done, 1 refused or failed, 2 wrong usage.
)";

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Command {
  const char* name;
  int (*run)(const Arguments&);
  std::size_t leastOperands;
  std::size_t mostOperands;
  const char* usage;
  Option options[4];
};

const Command kCommands[] = {
    {"encode",
     RunEncode,
     1,
     1,
     "[--options N] [--sort] [--out FILE] TEXT",
     {{"--options", true}, {"--sort", false}, {"--out", true}, {nullptr, false}}},
    {"decode", RunDecode, 1, 1, "[--options N] HEX|FILE|-", {{"--options", true}}},
    {"pairs", RunPairs, 1, 1, "[--style N] NAME", {{"--style", true}}},
    {"get", RunGet, 2, 2, "OID NAME", {}},
    {"set", RunSet, 3, 3, "OID VALUE NAME", {}},
    {"equal", RunEqual, 2, 2, "A B", {}},
    {"show", RunShow, 1, kAnyNumber, "FILE...", {}},
    {"survey", RunSurvey, 1, kAnyNumber, "FILE...", {}},
    {"extension", RunExtension, 1, 1, "HEX|FILE|-", {}},
    {"general-name", RunGeneralName, 1, 1, "HEX|FILE|-", {}},
};

const Command& FindCommand(const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError{"a command is needed; x509name --help lists them"};
  const auto* const command =
      std::find_if(std::begin(kCommands), std::end(kCommands),
                   [&arguments](const Command& row) { return arguments[0] == row.name; });
  if (command == std::end(kCommands)) {
    throw UsageError{"there is no command " + arguments[0] + "; x509name --help lists them"};
  }
  return *command;
}

bool AsksForHelp(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return false;
  if (arguments[0] == "--help" || arguments[0] == "-h") return true;
  return arguments.size() == 2 && arguments[1] == "--help";
}

int RunCommand(const Command& command, const std::vector<std::string>& all) {
  const Arguments arguments(all, 1, command.options);
  const std::size_t count = arguments.operands.size();
  if (count < command.leastOperands || count > command.mostOperands) {
    throw UsageError{std::string("usage: x509name ") + command.name + " " + command.usage};
  }
  const int status = command.run(arguments);
  FinishOutput();
  return status;
}

int Run(const std::vector<std::string>& arguments) {
  if (AsksForHelp(arguments)) {
    Print(kHelp);
    FinishOutput();
    return 0;
  }
  const Command& command = FindCommand(arguments);
  return RunCommand(command, arguments);
}

int Refuse(const std::vector<std::string>& arguments, const Failure& failure) {
  ReportLine((arguments.empty() ? "" : arguments[0] + ": ") + Describe(failure));
  if (!failure.excerpt.empty()) ReportExcerpt(failure.excerpt);
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
